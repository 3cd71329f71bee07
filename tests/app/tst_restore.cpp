#include "app/configdialog.h"
#include "app/restore.h"
#include "resources/registerresources.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

namespace {

const QString theme = ".config/qaz/current.themerc"_s;
const QString desktop = "Desktops/Desktop1/.directory"_s;
const QStringList settings = {theme,   ".config/qaz/a/b"_s, ".Xresources"_s, ".config/Trolltech.conf"_s,
                              desktop, ".config/other"_s};

/// The names of the settings files that are still as \a content says, shortened to one letter each.
QString unchanged(const TemporaryHome &home, const QByteArray &content)
{
    QString letters;
    for (int i = 0; i < settings.size(); ++i)
        letters += home.read(settings.at(i)) == content ? "TDXQKO"_s.at(i) : QChar(u'-');
    return letters;
}

/// Restores to \a depth (empty: cancels), and answers the boxes that follow by Ok, Yes, No and Cancel as the letters of
/// \a answers say. Returns the texts of the first dialog, then all that came up.
QStringList restored(ConfigDialog *dialog, const QString &depth, const QString &answers)
{
    ModalDriver driver;
    QStringList choice;
    driver.then([&](QDialog *shown) {
        auto *input = qobject_cast<QInputDialog *>(shown);
        choice << input->labelText() << input->comboBoxItems() << input->textValue();
        input->setTextValue(depth);
        input->done(depth.isEmpty() || input->isComboBoxEditable() ? QDialog::Rejected : QDialog::Accepted);
    });
    constexpr QMessageBox::StandardButton buttons[] = {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No,
                                                       QMessageBox::Cancel};
    for (const QChar answer : answers)
        driver.thenAnswer(buttons["OYNC"_s.indexOf(answer)]);
    dialog->restoreSlot();
    return choice + driver.seen();
}

/// Restores all settings below \a home; returns the boxes that came up, without the last one.
QStringList restoredAll(const TemporaryHome &home, const QString &answers = {})
{
    ConfigDialog dialog(home.path(theme));
    return restored(&dialog, "All Qaz settings"_s, answers + u'N').mid(5, answers.size());
}

} // namespace

class TestRestore : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        registerResources();
    }

    void settingsAreRemoved()
    {
        // The theme file, the depth (empty: cancelled), the answers to the boxes that follow (Ok, Yes, No, Cancel), what is
        // left of the settings, and how many backups there are.
        const std::tuple<QString, QString, QString, QString, int> rows[] = {
            {theme, {}, {}, "TDXQKO"_s, 0},
            {theme, "Theme only"_s, "Y"_s, "-DX--O"_s, 3},
            {theme, "All Qaz settings"_s, "N"_s, "-----O"_s, 4},
            {"missing <b>%1"_s, "Theme only"_s, "ON"_s, "TDX--O"_s, 2},
            {".config/qaz/a"_s, "Theme only"_s, "OY"_s, "TDX--O"_s, 2}, // a directory
            {theme, "Theme only"_s, "YC"_s, "-DX--O"_s, 3}};            // closing cancelled
        for (const auto &[themeFile, depth, answers, left, backups] : rows) {
            const TemporaryHome home;
            const QByteArray content = "[Desktop Entry]\nX-QAZ-WallPaper=a\n";
            for (const QString &file : settings)
                home.write(file, content);
            WmListener listener;
            ConfigDialog dialog(home.path(themeFile));
            dialog.show();
            if (answers.endsWith(u'C'))
                dialog.findChild<QLineEdit *>("wallpaperLineEdit"_s)->setText("/edited"_s);
            const QString done = "Restore done|Selected settings are restored. You need to restart session. "
                                 "Do it now (recommended)?"_s;
            const QString boxes[] = {"Error|Can't remove '"_s + home.path(themeFile) + u'\'', done, done,
                                     "Save ?|Save changes?"_s};
            QStringList seen
                = "Are you sure?\nIf yes then select restore type and press Yes\n\nRestore type:!"
                  "Theme only!All Qaz settings!Theme only!Restore|QInputDialog"_s.split(u'!');
            for (const QChar answer : answers)
                seen += boxes["OYNC"_s.indexOf(answer)];
            QCOMPARE(restored(&dialog, depth, answers), seen);
            QCOMPARE(dialog.isVisible(), depth.isEmpty() || answers.endsWith(u'C'));
            QCOMPARE(unchanged(home, content), left);
            QCOMPARE(home.read(desktop).count('\n'), depth.isEmpty() ? 2 : 1); // the key's line alone is gone
            QCOMPARE(listener.take().join(u'|'), answers.contains(u'Y') ? "QAZWM_RESTART"_s : QString());
            QCOMPARE(home.backups().size(), backups);
        }
    }

    void whatCantBeBackedUpIsLostOnlyAtTheUsersWish()
    {
        const TemporaryHome home;
        home.write(".local/state/qaz"_s, "in the way of the backups");
        for (const QString &file : settings)
            home.write(file, "precious");
        const auto question = [&home](const QString &file) {
            return "Warning|Can't back up '%2/%1': Can't create directory %2/.local/state/qaz/backup\n"
                   "Remove it all the same?"_s.arg(file, home.path());
        };
        const QStringList expected = {question(".Xresources"_s), question(".config/qaz"_s),
                                      question(".config/Trolltech.conf"_s)};
        QCOMPARE(restoredAll(home, "NNY"_s), expected);
        QCOMPARE(unchanged(home, "precious"), "TDX-KO"_s);
        QCOMPARE(restoredAll(home, "YY"_s), expected.mid(0, 2));
        QCOMPARE(unchanged(home, "precious"), "----KO"_s);
    }

    void dangerousDirectoriesAreRefused()
    {
        const QString home = "/home/me"_s;
        for (const QString &path :
             " / //.// . home/me/.config /home/me /home/me/a/..// /home /home/"_s.split(u' '))
            QVERIFY2(!mayRemoveTree(path, home), qPrintable(path));
        for (const char *path : {"/home/me/.config/qaz", "/home/me2", "/home/m", "/srv/qaz"})
            QVERIFY2(mayRemoveTree(QLatin1String(path), home), path);
        QVERIFY(!mayRemoveTree("/home"_s, "/home/me/"_s));
    }

    void linksAreNotFollowed()
    {
        // No settings, a link among them, and the settings as a link.
        for (const QString &link : {"link"_s, ".config/qaz/inner"_s, ".config/qaz"_s}) {
            const TemporaryHome home;
            home.write("kept/file"_s, "precious");
            home.makeDirectory(QFileInfo(link).path());
            QVERIFY(QFile::link(home.path("kept"_s), home.path(link)));
            restoredAll(home);
            QVERIFY(!home.exists(".config/qaz"_s));
            QCOMPARE(home.read("kept/file"_s), QByteArray("precious"));
        }
        // Settings whose real directory is the home.
        const TemporaryHome around;
        const ScopedEnvironment home("HOME", QFile::encodeName(around.path("config/qaz"_s)));
        const ScopedEnvironment config("XDG_CONFIG_HOME", QFile::encodeName(around.path("link"_s)));
        around.write("config/qaz/file"_s, "precious");
        QVERIFY(QFile::link("config"_s, around.path("link"_s)));
        QCOMPARE(restoredAll(around, "O"_s),
                 QStringList{"Error|Can't remove '%1/link/qaz'"_s.arg(around.path())});
        QCOMPARE(around.read("config/qaz/file"_s), QByteArray("precious"));
    }
};

QTEST_MAIN(TestRestore)
#include "tst_restore.moc"
