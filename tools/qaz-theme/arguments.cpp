#include "tools/qaz-theme/arguments.h"

#include "base/diagnostics.h"
#include "settings/directories.h"
#include "tools/qaz-theme/commands.h"

#include <QFileInfo>

#include <algorithm>
#include <climits>
#include <iterator>

namespace {

// clang-format off
constexpr Command commands[] = {
    {"get", "KEY...", 1, INT_MAX, "print values, one a line",
     "A key that is not set has its default. With a key that has neither, the status is 1.", getValues},
    {"set", "KEY=VALUE...", 1, INT_MAX, "store and announce values",
     "All values are checked before the first is stored. What changes is printed.", setValues},
    {"unset", "KEY...", 1, INT_MAX, "go back to the defaults",
     "Removes the keys from the theme file and announces their defaults.", unsetKeys},
    {"list", "[PATTERN]", 0, 1, "print every known key",
     "Each with its value, its default and what it means; '*' marks values that differ from the default.\n"
     "PATTERN, such as 'Menu*', is compared without regard to case.", listKeys},
    {"diff", "[FILE] [FILE]", 0, 2, "print what differs",
     "Compares two theme files, defaults included; the theme file with FILE; or the defaults with the\n"
     "theme file. The status is 1 when something differs.", diffFiles},
    {"apply", "FILE", 1, 1, "take over the known keys of another theme file",
     "All values are checked before the first is stored. What changes is announced and printed.", applyFile},
    {"pack", "FILE.qaztheme", 1, 1, "put theme file, wallpaper, sounds and theme names in one archive",
     "An existing FILE is backed up before it is replaced.", pack},
    {"unpack", "FILE.qaztheme", 1, 1, "put what was packed in place",
     "Takes over the packed values and copies wallpaper and sounds to ~/.local/share. What stands there is\n"
     "backed up before it is replaced. What changes is announced and printed.", unpack},
    {"backups", "[FILE]", 0, 1, "list the copies that were kept, newest first",
     "All of them, or those of FILE.", listBackups},
    {"restore", "N|FILE", 1, 1, "put a copy back",
     "Copy N of the list of backups, or the newest copy of FILE. What stands there is backed up first.", restore},
    {"complete", "commands|keys|values [KEY]", 1, 2, "print the words that a shell completes",
     "One a line.", complete}};
// clang-format on

constexpr char options[]
    = "Options:\n"
      "  -f FILE    work on FILE in place of the user's theme file\n"
      "  --json     print one JSON object\n"
      "  -n         say what would change, and change nothing\n"
      "  -q         print errors only\n"
      "  --force    take keys that no page knows\n"
      "  --help     print help, also of one command\n"
      "  --version  print the version\n"
      "Status: 0 success; 1 not set, or different; 2 wrong arguments or a value that does\n"
      "not fit, nothing was written; 3 a file can't be read or written.\n";

struct Flag {
    const char *name;
    bool Arguments::*flag;
};
constexpr Flag flags[] = {{"--json", &Arguments::json},      {"-n", &Arguments::dryRun},
                          {"-q", &Arguments::quiet},         {"--force", &Arguments::force},
                          {"--help", &Arguments::help},      {"-h", &Arguments::help},
                          {"--version", &Arguments::version}};

template<typename Rows>
auto findRow(const Rows &rows, const QString &name)
{
    const auto *row = std::find_if(std::begin(rows), std::end(rows),
                                   [&name](const auto &each) { return name == QLatin1String(each.name); });
    return row == std::end(rows) ? nullptr : row;
}

bool check(const Arguments &arguments, QString *error)
{
    if (arguments.help || arguments.version)
        return true;
    if (!arguments.command)
        return failed(error, QStringLiteral("a command is missing"));
    const Command &command = *arguments.command;
    const int number = arguments.operands.size();
    return (number >= command.leastOperands && number <= command.mostOperands)
           || failed(error, QStringLiteral("wrong number of arguments for %1: it takes %2")
                                .arg(QLatin1String(command.name), QLatin1String(command.operands)));
}

} // namespace

bool parseArguments(const QStringList &texts, Arguments *arguments, QString *error)
{
    bool optionsEnded = false;
    QString file;
    for (QStringList rest = texts; !rest.isEmpty();) {
        const QString text = rest.takeFirst();
        if (!optionsEnded && text == QLatin1String("--")) {
            optionsEnded = true;
        } else if (!optionsEnded && text == QLatin1String("-f")) {
            if (rest.isEmpty())
                return failed(error, QStringLiteral("-f needs a file"));
            file = rest.takeFirst();
        } else if (!optionsEnded && text.startsWith(QLatin1Char('-')) && text.size() > 1) {
            const Flag *flag = findRow(flags, text);
            if (!flag)
                return failed(error, QStringLiteral("unknown option '%1'").arg(text));
            arguments->*flag->flag = true;
        } else if (arguments->command) {
            arguments->operands.append(text);
        } else {
            arguments->command = findRow(commands, text);
            if (!arguments->command)
                return failed(error, QStringLiteral("unknown command '%1'").arg(text));
        }
    }
    arguments->themeFile = file.isEmpty() ? defaultThemeFile() : QFileInfo(file).absoluteFilePath();
    return check(*arguments, error);
}

QStringList commandNames()
{
    QStringList names;
    for (const Command &command : commands)
        names.append(QLatin1String(command.name));
    return names;
}

QString helpText(const Command *command)
{
    if (command)
        return QStringLiteral("Usage: qaz-theme %1 [OPTION]... %2\n%3.\n%4\n\n%5")
            .arg(QLatin1String(command->name), QLatin1String(command->operands),
                 QString::fromLatin1(command->summary)
                     .replace(0, 1, QChar::fromLatin1(command->summary[0]).toUpper()),
                 QLatin1String(command->help), QLatin1String(options));
    QString text = QStringLiteral("Usage: qaz-theme COMMAND [OPTION]... [ARGUMENT]...\n"
                                  "Reads and changes the desktop's settings as the theme editor does.\n\n");
    for (const Command &each : commands)
        text += QStringLiteral("  %1 %2\n")
                    .arg(QStringLiteral("%1 %2").arg(QLatin1String(each.name), QLatin1String(each.operands)),
                         -28)
                    .arg(QLatin1String(each.summary));
    return text + QLatin1Char('\n') + QLatin1String(options);
}
