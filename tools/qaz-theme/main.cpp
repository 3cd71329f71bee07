// Reads and changes the desktop's settings from the command line, by the editor's rules.

#include "tools/qaz-theme/commands.h"
#include "tools/qaz-theme/output.h"

#include <QCoreApplication>

#include <clocale>
#include <cstring>

#include <langinfo.h>

namespace {

/// Scripts often run in the C locale, whose encoding knows no letter of a theme file or an archive but the plain ones.
void takeTextsForUtf8InTheCLocale()
{
    if (std::strcmp(::nl_langinfo(CODESET), "ANSI_X3.4-1968") != 0)
        return;
    std::setlocale(LC_CTYPE, "C.UTF-8");
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    takeTextsForUtf8InTheCLocale();
    Arguments arguments;
    QString error;
    if (!parseArguments(QCoreApplication::arguments().mid(1), &arguments, &error))
        return complainOf({QStringLiteral("%1; see qaz-theme --help").arg(error)});
    if (arguments.version)
        return print(false, {}, {QStringLiteral("qaz-theme " QAZ_VERSION)});
    if (arguments.help)
        return print(false, {}, helpText(arguments.command).split(QLatin1Char('\n')));
    return arguments.command->run(arguments);
}
