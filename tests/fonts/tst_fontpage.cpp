#include "fonts/fontpage.h"

#include "fonts/fontroles.h"
#include "fonts/fontuseitem.h"
#include "platform/qazsettings.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QComboBox>
#include <QFontDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QtTest>

namespace {

const QString messageBox = QStringLiteral(
    "Font Settings Changed|<p>Some changes such as anti-aliasing or DPI will only affect newly started "
    "applications.</p>");

void setOwn(const QString &key, const QVariant &value)
{
    QSettings().setValue(key, value);
}

QVariant own(const QString &key)
{
    return QSettings().value(key);
}

/// The page as the dialog uses it: a fresh store on the theme file for each load and save.
class Editor
{
public:
    explicit Editor(const TemporaryHome &home)
        : m_themeFile(home.path(QStringLiteral("theme")))
    {
        load();
    }

    void load()
    {
        QazSettings store(m_themeFile);
        store.sync(true);
        page.loadValues(&store);
    }

    void save()
    {
        QazSettings store(m_themeFile);
        store.sync(true);
        page.saveValues(&store);
    }

    template<typename Widget>
    Widget *find(const char *name) const
    {
        return page.findChild<Widget *>(QLatin1String(name));
    }

    /// As a user's choice: the index and the notice of it.
    void chooseAntiAliasing(int index) const
    {
        find<QComboBox>("aaComboBox")->setCurrentIndex(index);
        emit find<QComboBox>("aaComboBox")->activated(index);
    }

    FontPage page;

private:
    QString m_themeFile;
};

} // namespace

class TestFontPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QCoreApplication::setOrganizationName(QStringLiteral("qaz")); }
    void init()
    {
        QProcess::execute(QStringLiteral("xrdb"), {QStringLiteral("-quiet"), QStringLiteral("-remove")});
    }
    void rolesFollowTheTable();
    void rolesAreSavedOnce();
    void generalFontBecomesTheToolkitsDefault();
    void editsAreAnnounced();
    void dpiSnaps();
    void typedDpiIsForced();
    void dpiIsNoLongerForced();
    void systemSettingsRemoveTheUsersFiles();
    void antiAliasingModes();
    void resetShowsTheDefaults();
    void adjustingAllFonts();
    void tabOrderFollowsTheRows();
};

void TestFontPage::rolesFollowTheTable()
{
    const TemporaryHome home;
    QByteArray theme;
    int size = 6;
    for (const FontRole &role : fontRoles)
        theme += QByteArray(role.key) + "=DejaVu Sans-" + QByteArray::number(size++) + ":bold\n";
    home.write(QStringLiteral("theme"), theme);
    const Editor editor(home);
    QVERIFY(editor.page.loaded);
    const QList<FontUseItem *> items = editor.page.findChildren<FontUseItem *>();
    QCOMPARE(items.size(), int(std::size(fontRoles)));
    for (int i = 0; i < items.size(); ++i) {
        const QString key = QLatin1String(fontRoles[i].key);
        QCOMPARE(items.at(i)->objectName(), key);
        const auto *preview = items.at(i)->findChild<QLabel *>();
        QCOMPARE(preview->text(), QStringLiteral("DejaVu Sans %1").arg(6 + i));
        QCOMPARE(preview->toolTip(),
                 QStringLiteral("Preview of the \"%1\" font").arg(QLatin1String(fontRoles[i].label)));
        const auto *label = editor.page.findChild<QLabel *>(key + QLatin1String("Label"));
        QCOMPARE(label->text(), QLatin1String(fontRoles[i].label));
        QCOMPARE(label->whatsThis(), QLatin1String(fontRoles[i].help));
    }
}

void TestFontPage::rolesAreSavedOnce()
{
    const TemporaryHome home;
    WmListener manager;
    home.write(QStringLiteral("theme"), "TitleFont=DejaVu Sans-10:normal\nTooltipFont=no font\n");
    Editor editor(home);
    editor.save();
    const QByteArray saved = home.read(QStringLiteral("theme"));
    const QStringList commands = manager.take();
    QStringList expected;
    for (const FontRole &role : fontRoles) {
        const QByteArray line = QByteArray(role.key) + "=DejaVu Sans";
        QVERIFY2(saved.contains(line), saved.constData());
        expected.append(QLatin1String("QAZWM_UPDATE_VAL ") + QLatin1String(role.key) + QLatin1Char(' '));
    }
    expected.removeAt(1); // the title's font is the stored one
    QCOMPARE(commands.size(), expected.size());
    for (int i = 0; i < expected.size(); ++i)
        QVERIFY2(commands.at(i).startsWith(expected.at(i)), qPrintable(commands.at(i)));
    const QString files = home.fingerprint();
    editor.save();
    QCOMPARE(manager.take(), QStringList());
    QCOMPARE(home.fingerprint(), files);
}

void TestFontPage::generalFontBecomesTheToolkitsDefault()
{
    const TemporaryHome home;
    home.write(QStringLiteral("theme"),
               "DefaultFont=DejaVu Sans-10:normal\nTitleFont=DejaVu Sans-10:normal\n");
    Editor editor(home);
    const QString file = QStringLiteral(".config/Trolltech.conf");
    editor.find<FontUseItem>("TitleFont")->applyChosenFont(QFont(QStringLiteral("DejaVu Sans Mono"), 12));
    editor.save();
    QVERIFY2(!home.exists(file), home.read(file).constData());
    editor.find<FontUseItem>("DefaultFont")->applyChosenFont(QFont(QStringLiteral("DejaVu Sans Mono"), 12));
    editor.save();
    const QString description = editor.find<FontUseItem>("DefaultFont")->font().toString();
    QVERIFY2(description.startsWith(QLatin1String("DejaVu Sans Mono,12,-1,")), qPrintable(description));
    QCOMPARE(QSettings(home.path(file), QSettings::IniFormat).value(QStringLiteral("Qt/font")).toString(),
             description);
}

void TestFontPage::editsAreAnnounced()
{
    const TemporaryHome home;
    Editor editor(home);
    QSignalSpy changed(&editor.page, &FontPage::changedSignal);
    editor.find<FontUseItem>("IconFont")->applyChosenFont(QFont(QStringLiteral("DejaVu Sans"), 12));
    QCOMPARE(changed.size(), 1);
    editor.find<QSpinBox>("dpiSpinBox")->setValue(80);
    QCOMPARE(changed.size(), 2);
    editor.chooseAntiAliasing(2);
    QCOMPARE(changed.size(), 3);
    changed.clear();
    QSignalSpy edited(&editor.page, &KFonts::changed);
    editor.load();
    QCOMPARE(changed.size(), edited.size());
    QCOMPARE(edited.last().value(0).toBool(), false);
}

void TestFontPage::dpiSnaps()
{
    const TemporaryHome home;
    const Editor editor(home);
    auto *spinBox = editor.find<QSpinBox>("dpiSpinBox");
    QCOMPARE(spinBox->text(), QStringLiteral("Disabled"));
    // One row after the other: each depends on where the last snap went.
    const QPair<int, int> steps[] = {{50, 70}, {40, 0},    {69, 70}, {70, 70},
                                     {1, 0},   {120, 120}, {1, 70},  {60, 0}};
    for (const auto &[entered, shown] : steps) {
        spinBox->setValue(entered);
        QCOMPARE(spinBox->value(), shown);
    }
    spinBox->stepUp();
    QCOMPARE(spinBox->text(), QStringLiteral("70dpi"));
    spinBox->stepDown();
    QCOMPARE(spinBox->text(), QStringLiteral("Disabled"));
    // The remembered value is shared: a second page goes on where the first one ended.
    spinBox->setValue(30);
    const Editor other(home);
    other.find<QSpinBox>("dpiSpinBox")->setValue(30);
    QCOMPARE(other.find<QSpinBox>("dpiSpinBox")->value(), 0);
}

void TestFontPage::typedDpiIsForced()
{
    const TemporaryHome home;
    home.write(QStringLiteral(".Xresources"), "A.a: 1\n");
    Editor editor(home);
    editor.save();
    WmListener manager;
    ModalDriver driver;
    driver.thenAnswer(QMessageBox::Ok);
    QSignalSpy changed(&editor.page, &FontPage::changedSignal);
    auto *line = editor.find<QSpinBox>("dpiSpinBox")->findChild<QLineEdit *>();
    line->selectAll();
    QTest::keyClicks(line, QStringLiteral("120"));
    QVERIFY2(!changed.isEmpty(), "typing is an edit before the field is left");
    editor.save();
    QCOMPARE(driver.seen(), QStringList(messageBox));
    QCOMPARE(home.read(QStringLiteral(".Xresources")), QByteArray("A.a: 1\nXft.dpi: 120\n"));
    QCOMPARE(own(QStringLiteral("forceFontDPI")).toInt(), 120);
    QCOMPARE(manager.take().size(), 1);
    QVERIFY2(
        manager.commands().constLast().startsWith(QLatin1String("QAZWM_UPDATE_VAL XftSettings 120 unknown ")),
        qPrintable(manager.commands().constLast()));
    editor.save();
    QVERIFY(driver.isDone());
    QCOMPARE(manager.take(), QStringList());
}

void TestFontPage::dpiIsNoLongerForced()
{
    const TemporaryHome home;
    const QString resources = home.write(QStringLiteral(".Xresources"), "Xft.dpi: 119.9\nA.a: 1\n");
    QProcess::execute(QStringLiteral("xrdb"), {QStringLiteral("-merge"), resources});
    setOwn(QStringLiteral("forceFontDPI"), 120);
    Editor editor(home);
    QCOMPARE(editor.find<QSpinBox>("dpiSpinBox")->text(), QStringLiteral("119dpi"));
    FakePrograms programs;
    programs.add(QStringLiteral("xrdb"), "[ \"$1\" = -merge ] || cat >>\"$HOME/removed\"");
    ModalDriver driver;
    int callsBeforeTheMessage = 0;
    driver.then([&](QDialog *box) {
        callsBeforeTheMessage = programs.calls(QStringLiteral("xrdb")).size();
        box->accept();
    });
    editor.find<QSpinBox>("dpiSpinBox")->setValue(0);
    editor.save();
    QCOMPARE(home.read(QStringLiteral(".Xresources")), QByteArray("A.a: 1\n"));
    // The resources are merged last, after the message; merging without a DPI removes once more.
    QCOMPARE(callsBeforeTheMessage, 1);
    QCOMPARE(programs.calls(QStringLiteral("xrdb")).size(), 3);
    QCOMPARE(home.read(QStringLiteral("removed")), QByteArray("Xft.dpi\nXft.dpi\n"));
}

void TestFontPage::systemSettingsRemoveTheUsersFiles()
{
    const TemporaryHome home;
    const QByteArray fonts = "<?xml version=\"1.0\"?>\n<fontconfig><!-- mine --></fontconfig>\n";
    home.write(QStringLiteral(".fonts.conf"), fonts);
    home.write(QStringLiteral(".config/fontconfig/fonts.conf"), "second");
    Editor editor(home);
    QCOMPARE(editor.find<QComboBox>("aaComboBox")->currentText(), QStringLiteral("System Settings"));
    editor.save();
    QVERIFY(!home.exists(QStringLiteral(".fonts.conf")));
    QVERIFY(!home.exists(QStringLiteral(".config/fontconfig/fonts.conf")));
    const QDir backups(home.path(QStringLiteral(".local/state/qaz/backup")));
    const QStringList copies = backups.entryList({QStringLiteral("*fonts.conf")}, QDir::Files | QDir::Hidden);
    QCOMPARE(copies.size(), 2);
    QCOMPARE(own(QStringLiteral("dontChangeAASettings")).toBool(), true);
}

void TestFontPage::antiAliasingModes()
{
    const TemporaryHome home;
    WmListener manager;
    const QString file = QStringLiteral(".config/fontconfig/fonts.conf");
    const QByteArray words[] = {"0 true none hintmedium", "0 unknown none hintmedium",
                                "0 false none hintmedium"};
    for (const int mode : {0, 2, 1}) {
        Editor editor(home);
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok);
        editor.chooseAntiAliasing(mode);
        editor.save();
        QCOMPARE(driver.seen(), QStringList(messageBox));
        QCOMPARE(manager.take().constLast(),
                 QLatin1String("QAZWM_UPDATE_VAL XftSettings ") + QString::fromLatin1(words[mode]));
        QCOMPARE(home.exists(file), mode != 1);
        const QByteArray value = mode == 0 ? "<bool>true</bool>" : "<bool>false</bool>";
        QVERIFY2(mode == 1 || home.read(file).contains(value), home.read(file).constData());
        editor.load();
        QCOMPARE(editor.find<QComboBox>("aaComboBox")->currentIndex(), mode);
        QCOMPARE(editor.find<QPushButton>("configureButton")->isEnabled(), mode == 0);
    }
}

void TestFontPage::resetShowsTheDefaults()
{
    const TemporaryHome home;
    setOwn(QStringLiteral("forceFontDPI"), 120);
    setOwn(QStringLiteral("dontChangeAASettings"), false);
    home.write(QStringLiteral("theme"), "TitleFont=DejaVu Sans Mono-20:bold\n");
    Editor editor(home);
    QSignalSpy changed(&editor.page, &KFonts::changed);
    editor.page.resetToDefaults();
    QCOMPARE(editor.find<QComboBox>("aaComboBox")->currentIndex(), 1);
    QCOMPARE(editor.find<QSpinBox>("dpiSpinBox")->value(), 0);
    QCOMPARE(editor.find<FontUseItem>("TitleFont")->font(), editor.find<FontUseItem>("IconFont")->font());
    QCOMPARE(changed.last().value(0).toBool(), true);
}

void TestFontPage::adjustingAllFonts()
{
    const TemporaryHome home;
    const Editor editor(home);
    ModalDriver driver;
    driver.then([](QDialog *dialog) {
        qobject_cast<QFontDialog *>(dialog)->setCurrentFont(
            QFont(QStringLiteral("DejaVu Sans Mono"), 12, QFont::Bold));
        dialog->accept();
    });
    driver.thenReject();
    editor.find<QPushButton>("adjustAllButton")->click();
    for (const FontUseItem *item : editor.page.findChildren<FontUseItem *>())
        QCOMPARE(item->findChild<QLabel *>()->text(), QStringLiteral("DejaVu Sans Mono 12"));
    QSignalSpy changed(&editor.page, &KFonts::changed);
    editor.find<QPushButton>("adjustAllButton")->click();
    QVERIFY(driver.isDone());
    QCOMPARE(changed.size(), 0);
}

void TestFontPage::tabOrderFollowsTheRows()
{
    const TemporaryHome home;
    Editor editor(home);
    editor.chooseAntiAliasing(0);
    editor.page.show();
    editor.page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor.page));
    editor.find<FontUseItem>("DefaultFont")->setFocus();
    QStringList visited;
    for (int i = 0; i < 15; ++i) {
        const QWidget *focused = QApplication::focusWidget();
        visited.append(focused->objectName() == QLatin1String("chooseButton")
                           ? focused->parentWidget()->objectName()
                           : focused->objectName());
        QTest::keyClick(&editor.page, Qt::Key_Tab);
    }
    QStringList expected;
    for (const FontRole &role : fontRoles)
        expected.append(QLatin1String(role.key));
    expected << QStringLiteral("aaComboBox") << QStringLiteral("configureButton")
             << QStringLiteral("dpiSpinBox") << QStringLiteral("adjustAllButton");
    QCOMPARE(visited, expected);
}

QTEST_MAIN(TestFontPage)
#include "tst_fontpage.moc"
