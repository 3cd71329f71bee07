#include "tools/qaz-theme/arguments.h"

#include "settings/themefile.h"
#include "tools/qaz-theme/commands.h"

#include <QFileInfo>

namespace {

struct Flag {
    const char *text;
    bool Arguments::*flag;
};
constexpr Flag flags[] = {{"--json", &Arguments::json},      {"-n", &Arguments::dryRun},
                          {"-q", &Arguments::quiet},         {"--force", &Arguments::force},
                          {"--help", &Arguments::help},      {"-h", &Arguments::help},
                          {"--version", &Arguments::version}};

bool takeFlag(const QString &text, Arguments *arguments)
{
    for (const Flag &flag : flags) {
        if (text == QLatin1String(flag.text)) {
            arguments->*flag.flag = true;
            return true;
        }
    }
    return false;
}

bool hasRightNumber(const Arguments &arguments)
{
    const int number = arguments.operands.size();
    return number >= arguments.command->leastOperands
           && (arguments.command->mostOperands < 0 || number <= arguments.command->mostOperands);
}

bool check(const Arguments &arguments, QString *error)
{
    if (arguments.help || arguments.version)
        return true;
    if (!arguments.command)
        *error = QStringLiteral("a command is missing");
    else if (!hasRightNumber(arguments))
        *error = QStringLiteral("wrong number of arguments for %1: it takes %2")
                     .arg(QLatin1String(arguments.command->name),
                          *arguments.command->operands ? QLatin1String(arguments.command->operands)
                                                       : QLatin1String("none"));
    return error->isEmpty();
}

} // namespace

bool parseArguments(const QStringList &texts, Arguments *arguments, QString *error)
{
    bool optionsEnded = false;
    QString file;
    for (int i = 0; i < texts.size(); ++i) {
        const QString &text = texts.at(i);
        if (!optionsEnded && text == QLatin1String("--")) {
            optionsEnded = true;
        } else if (!optionsEnded && text == QLatin1String("-f") && i + 1 < texts.size()) {
            file = texts.at(++i);
        } else if (!optionsEnded && text.startsWith(QLatin1Char('-')) && text.size() > 1) {
            if (!takeFlag(text, arguments)) {
                *error = text == QLatin1String("-f") ? QStringLiteral("-f needs a file")
                                                     : QStringLiteral("unknown option '%1'").arg(text);
                return false;
            }
        } else if (arguments->command) {
            arguments->operands.append(text);
        } else if (!(arguments->command = findCommand(text))) {
            *error = QStringLiteral("unknown command '%1'").arg(text);
            return false;
        }
    }
    arguments->themeFile = file.isEmpty() ? defaultThemeFile() : QFileInfo(file).absoluteFilePath();
    return check(*arguments, error);
}
