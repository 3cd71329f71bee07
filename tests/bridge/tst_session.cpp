#include "app/configdialog.h"
#include "platform/qazinit.h"
#include "resources/registerresources.h"
#include "tests/bridge/bridgeprocess.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

/// The editor, Openbox, the bridge and the real tools together: what is applied is seen.
class TestSession : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        QByteArray theme = "WallPaper=#204060\nScreenSaverDelay=300\nTitlebarActiveColor=#112233\n"
                           "TitlebarActiveColor2=#112233\nEnableSound=true\n";
        for (const char *event :
             {"Open", "Close", "RestoreUp", "RestoreDown", "Minimize", "Maximize", "SystemStart",
              "SystemExit", "Paging", "ForceTrayMessage"}) // each has a sound called after it
            theme += QByteArray(event) + "Sound="
                     + QFile::encodeName(m_home.write("sounds/"_s + QLatin1String(event), "sound")) + '\n';
        m_home.write(".config/qaz/current.themerc"_s, theme);
        m_home.write("Desktops/Desktop1/.directory"_s, "[Desktop Entry]\n");
        m_programs.add("aplay"_s);
        m_openbox.start("openbox"_s, QStringList());
        QTRY_VERIFY(output("xprop"_s, {"-root"_s}).contains("_OB_THEME("_s));
        registerResources();
        qazInit("1", "title");
    }

    void whatTheEditorAppliesIsSeen()
    {
        BridgeProcess bridge({"--openbox"_s});
        QTRY_COMPARE(pixel().name(), "#204060"_s);
        ConfigDialog dialog(m_home.path(".config/qaz/current.themerc"_s));
        dialog.show();
        auto *list = dialog.findChild<QListWidget *>("contentsWidget"_s);
        for (int row = 0; row < list->count(); ++row)
            list->setCurrentRow(row);
        const auto titleBar = [&dialog] {
            return pixel(dialog.geometry().center().x(), dialog.geometry().y() - 8).name();
        };
        QTRY_COMPARE(titleBar(), "#112233"_s);

        dialog.findChild<QLineEdit *>("wallpaperLineEdit"_s)->setText(picture("a.png"_s, Qt::green));
        dialog.findChild<QWidget *>("minutesToStartSpinBox"_s)->setProperty("value", 7);
        dialog.findChild<QComboBox *>("elementComboBox"_s)->setCurrentText("Titlebar active"_s);
        ModalDriver driver;
        for (const char *button : {"color1Button", "color2Button"}) {
            driver.then([](QDialog *chooser) {
                qobject_cast<QColorDialog *>(chooser)->setCurrentColor(QColor(0xaa, 0x22, 0x44));
                chooser->accept();
            });
            dialog.findChild<QPushButton *>(QLatin1String(button))->click();
        }
        driver.then([](QDialog *chooser) {
            qobject_cast<QFontDialog *>(chooser)->setCurrentFont(QFont("DejaVu Sans"_s, 13, QFont::Bold));
            chooser->accept();
        });
        dialog.findChild<QPushButton *>("adjustAllButton"_s)->click();
        dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Apply)->click();
        QVERIFY(driver.isDone());

        QTRY_COMPARE(pixel(), QColor(Qt::green));
        QTRY_VERIFY2(settings().contains("DejaVu Sans Bold 13"_s), qPrintable(settings()));
        QTRY_VERIFY(output("xset"_s, {"q"_s}).contains("timeout:  420"_s));
        QTRY_COMPARE(titleBar(), "#aa2244"_s);
        QCOMPARE(m_home.read(".config/openbox/rc.xml"_s).count("<size>13</size>"), 4);
        bridge.process().terminate();
        QCOMPARE(bridge.exitCode(), 0);
        QTRY_VERIFY(settings().isEmpty()); // its settings manager is gone, too
    }

    void wallpapersAreOfTheirDesktopAndFitted()
    {
        m_home.write("Desktops/Desktop2/.directory"_s, "[Desktop Entry]\nX-QAZ-WallPaper=\"#a6caf0\"\n");
        BridgeProcess bridge;
        QTRY_VERIFY(BridgeProcess::isServing());
        announce("WallPaper", "#010203"_s);
        QTRY_COMPARE(pixel().name(), "#010203"_s);
        goToDesktop("1");
        QTRY_COMPARE(pixel().name(), "#a6caf0"_s);
        m_home.write("Desktops/Desktop2/.directory"_s,
                     "[Desktop Entry]\nX-QAZ-WallPaper=" + QFile::encodeName(picture("b.png"_s, Qt::red))
                         + '\n');
        announce("WallPaperLocal", "x"_s);
        QTRY_COMPARE(pixel(), QColor(Qt::red));
        goToDesktop("0");
        QTRY_COMPARE(pixel().name(), "#010203"_s);

        announce("DesktopColor", "qvblue"_s);
        announce("WallPaperPos", "Center"_s);
        announce("WallPaper", picture("c.png"_s, Qt::red));
        QTRY_COMPARE(pixel(640, 512), QColor(Qt::red));
        QCOMPARE(pixel(), QColor(Qt::blue));
        announce("WallPaper",
                 m_home.write("d.svg"_s, "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='2'>"
                                         "<rect width='2' height='2' fill='lime'/>"
                                         "<rect x='2' width='2' height='2' fill='red'/></svg>"));
        QTRY_COMPARE(pixel(), QColor(Qt::green));
        QCOMPARE(pixel(1270), QColor(Qt::red));
    }

    void windowEventsAreHeard()
    {
        const int before = m_programs.calls("aplay"_s).size();
        QWidget earlier; // was opened before anybody listened
        earlier.show();
        QVERIFY(QTest::qWaitForWindowActive(&earlier));
        BridgeProcess bridge;
        QTRY_COMPARE(heard(before), "SystemStart"_s);
        QWidget window;
        window.setGeometry(100, 100, 200, 200);
        const std::pair<std::function<void()>, QString> events[] = {
            {[&] { window.show(); }, "SystemStart Open"_s},
            {[&] { window.showMaximized(); }, "Open Maximize"_s},
            {[&] { window.showNormal(); }, "Maximize RestoreDown"_s},
            {[&] { window.showMinimized(); }, "RestoreDown Minimize"_s},
            {[&] { window.showNormal(); }, "Minimize RestoreUp"_s},
            {[&] { window.close(); }, "RestoreUp Close"_s},
            {[&] { earlier.close(); }, "Close Close"_s},
            {[&] { goToDesktop("1"); }, "Close Paging"_s},
            {[&] { goToDesktop("0"); }, "Paging Paging"_s}};
        for (const auto &[act, last] : events) {
            act();
            QTRY_VERIFY2(heard().endsWith(last), qPrintable(last));
        }
        bridge.process().terminate();
        QCOMPARE(bridge.exitCode(), 0);
        QCOMPARE(
            heard(before),
            "SystemStart Open Maximize RestoreDown Minimize RestoreUp Close Close Paging Paging SystemExit"_s);

        // Three sounds at once are enough.
        const int silence = m_programs.calls("aplay"_s).size();
        m_programs.add("aplay"_s, "exec sleep 3600");
        BridgeProcess loud;
        QTRY_COMPARE(heard(silence), "SystemStart"_s);
        QWidget windows[4];
        for (QWidget &each : windows) {
            each.setGeometry(100, 100, 200, 200);
            each.show();
            QVERIFY(QTest::qWaitForWindowExposed(&each));
        }
        announce("WallPaper", "#0a0b0c"_s);
        QTRY_COMPARE(pixel().name(), "#0a0b0c"_s);
        QCOMPARE(heard(silence), "SystemStart Open Open"_s);
    }

    void anotherSettingsManagerIsLeftAlone()
    {
        QProcess other;
        other.start("xsettingsd"_s, {"-c"_s, m_home.write("other.conf"_s, "Gtk/FontName \"Theirs 9\"\n")});
        QTRY_VERIFY(settings().contains("Theirs 9"_s));
        BridgeProcess bridge;
        QTRY_COMPARE(bridge.errors(), "qaz-wm-bridge: Another settings manager runs: fonts, icons and "
                                      "cursors are left to it\n"_s);
        announce("DefaultFont", "DejaVu Sans-8:normal"_s);
        announce("WallPaper", "#0d0e0f"_s);
        QTRY_COMPARE(pixel().name(), "#0d0e0f"_s);
        QVERIFY(settings().contains("Theirs 9"_s));
        other.terminate();
        other.waitForFinished();
        QTRY_VERIFY(settings().contains("DejaVu Sans 8"_s));
        announce("XftSettings", "0 true vbgr slight"_s);
        QTRY_VERIFY(settings().contains("Xft/RGBA \"vbgr\""_s));
    }

private:
    /// What a client reads of the session's settings; empty without a settings manager.
    static QString settings() { return output("dump_xsettings"_s, {}); }
    static void goToDesktop(const char *number)
    {
        output("xdotool"_s, {"set_desktop"_s, QLatin1String(number)});
    }
    QString heard(int before = 0) const
    {
        QStringList names;
        for (const QStringList &call : m_programs.calls("aplay"_s).mid(before))
            names.append(QFileInfo(call.value(1)).fileName());
        return names.join(u' ');
    }
    QString picture(const QString &name, Qt::GlobalColor color) const
    {
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(color);
        image.save(m_home.path(name));
        return m_home.path(name);
    }

    TemporaryHome m_home;
    ScopedEnvironment m_configurations{"XDG_CONFIG_DIRS", "/etc/xdg"}; // where Openbox has its own
    ScopedEnvironment m_data{"XDG_DATA_DIRS", "/usr/share"};
    // What these name is what they mean when they are not set.
    ScopedEnvironment m_configHome{"XDG_CONFIG_HOME", {}};
    ScopedEnvironment m_dataHome{"XDG_DATA_HOME", {}};
    FakePrograms m_programs;
    QProcess m_openbox;
};

QTEST_MAIN(TestSession)
#include "tst_session.moc"
