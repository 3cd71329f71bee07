#include "app/configdialog.h"
#include "app/restore.h"
#include "resources/registerresources.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QInputDialog>
#include <QLineEdit>
#include <QTest>

#include <algorithm>

namespace {

const QString theme = QStringLiteral(".config/qaz/current.themerc");
const QString trolltech = QStringLiteral(".config/Trolltech.conf");
const QString xResources = QStringLiteral(".Xresources");
const QString desktop = QStringLiteral("Desktops/Desktop1/.directory");

void fill(const TemporaryHome &home)
{
    home.write(theme, "WallPaper=#102030\n");
    home.write(QStringLiteral(".config/qaz/a/b"), "deep");
    home.write(QStringLiteral(".config/other"), "other");
    home.write(trolltech, "[Qt]\n");
    home.write(xResources, "Xft.dpi: 96\n");
    home.write(desktop, "[Desktop Entry]\nX-QAZ-WallPaper=a\n");
}

/// Shows the dialog, edited or not, answers the choice and the boxes of Restore, and returns whether the window stayed.
bool restore(const QString &themeFile, const QString &item, ModalDriver *driver,
             const QList<QMessageBox::StandardButton> &answers, bool isEdited = false)
{
    ConfigDialog dialog(themeFile);
    dialog.show();
    if (isEdited)
        dialog.findChild<QLineEdit *>(QStringLiteral("wallpaperLineEdit"))
            ->setText(QStringLiteral("/edited"));
    driver->then([item](QDialog *choice) {
        auto *input = qobject_cast<QInputDialog *>(choice);
        input->setTextValue(item);
        input->accept();
    });
    for (const QMessageBox::StandardButton answer : answers)
        driver->thenAnswer(answer);
    dialog.restoreSlot();
    return dialog.isVisible();
}

/// The contents of the copies, sorted.
QByteArrayList backedUp(const TemporaryHome &home)
{
    const QString directory = QStringLiteral(".local/state/qaz/backup/");
    QByteArrayList contents;
    const QStringList names = QDir(home.path(directory)).entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        if (name != QLatin1String("manifest"))
            contents.append(home.read(directory + name));
    }
    std::sort(contents.begin(), contents.end());
    return contents;
}

} // namespace

class TestRestore : public QObject
{
    Q_OBJECT
private slots:
    void cancelChangesNothing();
    void themeOnlyRemovesTheThemeFile();
    void allSettingsRemovesTheDirectory();
    void failureIsToldAndTheRestGoesOn();
    void cancelledCloseKeepsTheWindow();
    void dangerousDirectoriesAreRefused_data();
    void dangerousDirectoriesAreRefused();
    void linksAreNotFollowed();
};

void TestRestore::cancelChangesNothing()
{
    const TemporaryHome home;
    fill(home);
    WmListener listener;
    ModalDriver driver;
    ConfigDialog dialog(home.path(theme));
    dialog.show();
    const QString before = home.fingerprint();
    QString choice;
    driver.then([&choice](QDialog *dialog) {
        auto *input = qobject_cast<QInputDialog *>(dialog);
        const QStringList parts = QStringList(input->labelText())
                                  << input->comboBoxItems() << input->textValue();
        choice = input->isComboBoxEditable() ? QString() : parts.join(QLatin1Char('|'));
        input->reject();
    });
    dialog.restoreSlot();
    QVERIFY(driver.isDone());
    QCOMPARE(home.fingerprint(), before);
    QCOMPARE(listener.take(), QStringList());
    QVERIFY(dialog.isVisible());
    QCOMPARE(choice,
             QStringLiteral("Are you sure?\nIf yes then select restore type and press Yes\n\nRestore type:|"
                            "Theme only|All Qaz settings|Theme only"));
    QCOMPARE(driver.seen(), QStringList{QStringLiteral("Restore|QInputDialog")});
}

void TestRestore::themeOnlyRemovesTheThemeFile()
{
    const TemporaryHome home;
    fill(home);
    WmListener listener;
    ModalDriver driver;
    QVERIFY(!restore(home.path(theme), QStringLiteral("Theme only"), &driver, {QMessageBox::Yes}));
    QVERIFY(driver.isDone());
    QVERIFY(!home.exists(theme) && !home.exists(trolltech));
    QVERIFY(home.exists(QStringLiteral(".config/qaz/a/b")) && home.exists(xResources));
    QCOMPARE(home.read(desktop), QByteArray("[Desktop Entry]\n"));
    QCOMPARE(listener.take(), QStringList{QStringLiteral("QAZWM_RESTART")});
    QCOMPARE(driver.seen().last(),
             QStringLiteral("Restore done|Selected settings are restored. You need to restart "
                            "session. Do it now (recommended)?"));
    QCOMPARE(backedUp(home).join('|'),
             QByteArray("WallPaper=#102030\n|[Desktop Entry]\nX-QAZ-WallPaper=a\n|[Qt]\n"));
}

void TestRestore::allSettingsRemovesTheDirectory()
{
    const TemporaryHome home;
    fill(home);
    WmListener listener;
    ModalDriver driver;
    QVERIFY(!restore(home.path(theme), QStringLiteral("All Qaz settings"), &driver, {QMessageBox::No}));
    QVERIFY(driver.isDone());
    QVERIFY(!home.exists(QStringLiteral(".config/qaz/a")) && !home.exists(trolltech)
            && !home.exists(xResources));
    QCOMPARE(home.read(QStringLiteral(".config/other")), QByteArray("other"));
    QCOMPARE(home.read(desktop), QByteArray("[Desktop Entry]\n"));
    QCOMPARE(listener.take(), QStringList());
    QVERIFY(backedUp(home).contains("Xft.dpi: 96\n"));
}

void TestRestore::failureIsToldAndTheRestGoesOn()
{
    const TemporaryHome home;
    fill(home);
    const QString missing = home.path(QStringLiteral("missing <b>%1.themerc"));
    ModalDriver driver;
    QVERIFY(!restore(missing, QStringLiteral("Theme only"), &driver, {QMessageBox::Ok, QMessageBox::Yes}));
    QVERIFY(driver.isDone());
    QCOMPARE(driver.seen().value(1), QStringLiteral("Error|Can't remove '%1'").arg(missing));
    QVERIFY(home.exists(theme) && !home.exists(trolltech));
}

void TestRestore::cancelledCloseKeepsTheWindow()
{
    const TemporaryHome home;
    fill(home);
    ModalDriver driver;
    QVERIFY(restore(home.path(theme), QStringLiteral("Theme only"), &driver,
                    {QMessageBox::Yes, QMessageBox::Cancel}, true));
    QVERIFY(driver.isDone());
    QCOMPARE(driver.seen().last(), QStringLiteral("Save ?|Save changes?"));
    QVERIFY(!home.exists(theme));
}

void TestRestore::dangerousDirectoriesAreRefused_data()
{
    QTest::addColumn<QString>("path"); // below the home's parent
    QTest::newRow("empty") << QString();
    QTest::newRow("root") << QStringLiteral("/");
    QTest::newRow("root, long way") << QStringLiteral("//.//");
    QTest::newRow("home") << QStringLiteral("home");
    QTest::newRow("home, long way") << QStringLiteral("home/a/..//");
    QTest::newRow("above home") << QStringLiteral(".");
    QTest::newRow("home through a link above it") << QStringLiteral("link/home");
}

void TestRestore::dangerousDirectoriesAreRefused()
{
    QFETCH(QString, path);
    const TemporaryHome outer;
    outer.write(QStringLiteral("top/home/a/file"), "precious");
    QVERIFY(QFile::link(outer.path(QStringLiteral("top")), outer.path(QStringLiteral("top/link"))));
    const QString before = outer.fingerprint();
    const QString full = path.isEmpty() || path.startsWith(QLatin1Char('/'))
                             ? path
                             : outer.path(QStringLiteral("top/") + path);
    QVERIFY(!removeDirectory(full, outer.path(QStringLiteral("top/home"))));
    QCOMPARE(outer.fingerprint(), before);
}

void TestRestore::linksAreNotFollowed()
{
    const TemporaryHome home;
    home.write(QStringLiteral("kept/file"), "precious");
    home.write(QStringLiteral("settings/file"), "old");
    QVERIFY(QFile::link(home.path(QStringLiteral("kept")), home.path(QStringLiteral("settings/inner"))));
    QVERIFY(QFile::link(home.path(QStringLiteral("kept")), home.path(QStringLiteral("outer"))));
    QVERIFY(removeDirectory(home.path(QStringLiteral("settings")), home.path()));
    QVERIFY(removeDirectory(home.path(QStringLiteral("outer")), home.path()));
    QVERIFY(!home.exists(QStringLiteral("settings")) && !home.exists(QStringLiteral("outer")));
    QCOMPARE(home.read(QStringLiteral("kept/file")), QByteArray("precious"));
    QVERIFY(removeDirectory(home.path(QStringLiteral("missing")), home.path()));

    // Backups inside the directory would be copied into themselves.
    const ScopedEnvironment state("XDG_STATE_HOME", QFile::encodeName(home.path(QStringLiteral("kept"))));
    QVERIFY(removeDirectory(home.path(QStringLiteral("kept")), home.path()));
    QVERIFY(!home.exists(QStringLiteral("kept")));
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    registerResources();
    TestRestore test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_restore.moc"
