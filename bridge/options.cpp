#include "bridge/options.h"

#include "settings/themefile.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

struct Switch {
    const char *name;
    const char *help;
    bool Options::*value;
};

constexpr Switch switches[] = {
    {"once", "Apply everything and end; nothing that would have to stay is started.", &Options::once},
    {"dry-run", "Print each command line instead of running it; write nothing.", &Options::dryRun},
    {"verbose", "Tell what is run and which commands are not for this program.", &Options::verbose},
    {"replace", "Take over from a bridge that runs on this screen.", &Options::replace},
    {"openbox", "Tell Openbox's rc.xml, after a backup, to use the theme and its fonts.", &Options::openbox},
};

} // namespace

bool readOptions(const QStringList &arguments, Options *options, QString *error)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Carries out on an ordinary X11 session what the theme editor announces to the window manager."));
    for (const Switch &known : switches)
        parser.addOption({QString::fromLatin1(known.name), QString::fromLatin1(known.help)});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("themefile"),
                                 QStringLiteral("The theme file to follow (default: the user's)."),
                                 QStringLiteral("[themefile]"));
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return false;
    }
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) {
        *error = QStringLiteral("There is one theme file at most, not '%1'").arg(files.at(1));
        return false;
    }
    if (!files.isEmpty() && !QFileInfo(files.first()).isFile()) {
        *error = QStringLiteral("There is no theme file '%1'").arg(files.first());
        return false;
    }
    for (const Switch &known : switches)
        options->*known.value = parser.isSet(QString::fromLatin1(known.name));
    options->themeFile = files.isEmpty() ? defaultThemeFile() : QFileInfo(files.first()).absoluteFilePath();
    if (parser.isSet(help))
        options->answer = parser.helpText();
    else if (parser.isSet(version))
        options->answer = QStringLiteral("qaz-wm-bridge " QAZ_VERSION "\n");
    return true;
}
