#include "settings/soundassignments.h"
#include "tests/pages/sounds/pageoverfile.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/modaldriver.h"

#include <QFileDialog>
#include <QLineEdit>

class TestSoundPage : public QObject
{
    Q_OBJECT
private slots:
    void untouchedPageChangesNothing()
    {
        const QByteArray content
            = "EnableSound=True\nEnableAlsa=true\nSoundTheme=oga\nOpenSound=/not there.wav\n"
              "CloseSound=window-close\nPagingSound=built.wav\n";
        PageOverFile over(content);
        over.assign(4, "edited"_s);
        over.group->setChecked(false);
        QSignalSpy changes(over.page.get(), &SoundPage::changedSignal);
        over.visitFile(&SoundPage::loadValues); // a repeated load is no edit
        QCOMPARE(over.themes->currentText(), "oga"_s);
        QCOMPARE(over.assignments(), "2=/not there.wav 3=window-close 13=built.wav"_s);
        QCOMPARE(over.save(), QString());
        QCOMPARE(over.home.read("some.themerc"_s), content);
        QCOMPARE(changes.count(), 0);
        QVERIFY(over.page->loaded);
    }

    void savesEveryEvent()
    {
        QByteArray content = "EnableSound=true\nSoundTheme=not installed\n";
        QString expected = "EnableSound false\n"_s;
        for (const SoundEvent &event : soundEvents) {
            content += QByteArray(event.key->name) + "=x\n";
            expected += QLatin1String(event.key->name) + QLatin1String(" \n");
        }
        PageOverFile over(content);
        QCOMPARE(over.themes->currentText(), "No theme"_s);
        over.click("clearSoundsButton");
        over.group->setChecked(false);
        QCOMPARE(over.save(), expected + QLatin1String("SoundTheme "));
        QCOMPARE(over.save(), QString());
    }

    void themesReplaceEverythingButOwnFiles()
    {
        const QString builtIn = "8=x-qaz-wm-chimes.wav 9=x-qaz-wm-chimes.wav 10=x-qaz-wm-chimes.wav"_s;
        PageOverFile over(
            "EnableSound=true\nMenuCommandSound=/own.wav\nSystemStartSound=/own.wav\nPagingSound=x\n");
        over.click("defaultSoundsButton"); // no theme is open before one is chosen
        QCOMPARE(over.assignments(), builtIn);
        over.assign(1, "/own.wav"_s);
        over.assign(8, "/own.wav"_s);
        over.choose("wav"_s);
        QCOMPARE(over.assignments(), "0=menu-popup 1=/own.wav 8=/own.wav"_s);
        over.click("defaultSoundsButton");
        QCOMPARE(over.assignments(), "0=menu-popup 8=desktop-login"_s);
        over.choose("No theme"_s);
        QCOMPARE(over.assignments(), builtIn);
    }

    void tellsWhatIsWrongWithATheme_data()
    {
        const QString attention = "Attention|Not all files in theme 'Fine sounds' are in wav format\n"_s;
        const QString question = attention + "Would you like to convert them to wav now?"_s;
        const QString refusal
            = "\nWarning|File 'DIR/%1/menu-popup.%1' is not wav.\nSelect other theme or conver to wav,\n"
              "for example ogg/oga to wav by oggdev utility."_s;
        QTest::addColumn<QString>("theme");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("messages"); // at the choice and at a play
        const int ok = QMessageBox::Ok, no = QMessageBox::No, yes = QMessageBox::Yes;
        QTest::newRow("broken") << "broken" << ok << "Warning|Can't load sound theme 'broken'";
        QTest::newRow("flac") << "flac" << ok
                              << attention + "You should convert them to wav."_s + refusal.arg("flac"_s);
        const QString unsafe = "They can't be converted: 'DIR/x.ogg/a -o x.ogg' has to be renamed first.\n"
                               "Blanks, quotation marks, backslashes and control characters are not safe."_s;
        QTest::newRow("unsafe") << "x.ogg" << ok
                                << attention + unsafe
                                       + QString(refusal).replace("%1/menu-popup.%1"_s,
                                                                  "x.ogg/menu-popup.ogg"_s);
        QTest::newRow("oga") << "oga" << no << question + refusal.arg("oga"_s);
        QTest::newRow("converted") << "oga" << yes << question;
    }
    void tellsWhatIsWrongWithATheme()
    {
        QFETCH(QString, theme);
        QFETCH(int, answer);
        const bool converted = answer == QMessageBox::Yes;
        FakePrograms programs;
        programs.add("qaz-su"_s, "exec sh \"$@\"");
        programs.add("oggdec"_s, "for file; do cp \"$file\" \"${file%.oga}.wav\"; done");
        PageOverFile over("EnableSound=true\nCloseSound=/own.wav\n");
        QSignalSpy changes(over.page.get(), &SoundPage::changedSignal);
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::StandardButton(answer));
        over.choose(theme);
        QVERIFY(changes.count() > 0); // the choice is an edit, also when no row changes
        QCOMPARE(over.assignments(),
                 theme == "broken"_s ? "3=/own.wav"_s : "0=menu-popup 3=/own.wav 8=desktop-login"_s);
        const QStringList call{
            "-c"_s, "find %1 -name \"*.og[ga]\" | xargs oggdec"_s.arg(over.path("data/sounds/oga"))};
        QCOMPARE(programs.calls("qaz-su"_s).value(0), converted ? call : QStringList());

        driver.thenAnswer(QMessageBox::Ok);
        over.click("playButton");
        QCOMPARE(over.enabled() == "stop"_s, converted);
        QTEST(driver.seen().join(QLatin1Char('\n')).replace(over.path("data/sounds"), "DIR"_s), "messages");
    }

    void takesTheChosenFile()
    {
        PageOverFile over("EnableSound=true\n");
        ModalDriver driver;
        const auto take = [&](const char *name) {
            QString found;
            driver.then([&found, path = over.path(name)](QDialog *dialog) {
                found = qobject_cast<QFileDialog *>(dialog)->directory().path() + u' '
                        + dialog->findChild<QLineEdit *>()->text();
                dialog->findChild<QLineEdit *>()->setText(path);
                dialog->accept();
            });
            emit over.list->itemDoubleClicked(over.list->topLevelItem(0), 1);
            found += QLatin1Char(' ') + over.assignments();
            return found.replace(over.path("data/sounds"), "DIR"_s);
        };
        QCOMPARE(take("data/sounds/x-qaz-wm-chimes.wav"), "DIR  0=x-qaz-wm-chimes.wav"_s);
        QCOMPARE(take("data/sounds/wav/menu-popup.wav"),
                 "DIR x-qaz-wm-chimes.wav 0=DIR/wav/menu-popup.wav"_s);
        const QString before = over.assignments();
        driver.thenReject();
        over.click("selectSoundButton");
        QCOMPARE(over.assignments(), before);
        QCOMPARE(driver.seen().last(), "Open File|QazFileDialog"_s);
        QVERIFY(driver.isDone());
    }
};

QTEST_MAIN(TestSoundPage)
#include "tst_soundpage.moc"
