#pragma once

#include "pages/sounds/soundpage.h"
#include "platform/qazsettings.h"
#include "tests/support/environment.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QComboBox>
#include <QGroupBox>
#include <QTreeWidget>
#include <QtTest>

/// The page over a theme file and sounds of its own: one built-in file, and themes named after their files' ending.
struct PageOverFile {
    explicit PageOverFile(const QByteArray &content)
    {
        home.write(".asoundrc"_s, "pcm.!default { type null }\n");
        home.write("some.themerc"_s, content);
        home.write("data/sounds/x-qaz-wm-chimes.wav"_s, "sound");
        home.write("data/sounds/broken/index.theme"_s, "");
        home.write("data/sounds/x.ogg/a -o x.ogg"_s, "sound");
        for (const QString &theme : {"wav"_s, "oga"_s, "flac"_s, "x.ogg"_s}) {
            const QString ending = theme.section(u'.', -1);
            home.write("data/sounds/%1/menu-popup.%2"_s.arg(theme, ending), "sound");
            home.write("data/sounds/%1/desktop-login.%2"_s.arg(theme, ending), "sound");
            home.write("data/sounds/%1/index.theme"_s.arg(theme),
                       "[Sound Theme]\nName=Fine sounds\nDirectories=.\n");
        }
        visitFile(&SoundPage::loadValues);
        page->show();
    }

    QString path(const char *name) const { return home.path(QLatin1String(name)); }
    void visitFile(bool (SoundPage::*pass)(QazSettings *)) const
    {
        QazSettings store(path("some.themerc"));
        store.sync(true);
        (page.get()->*pass)(&store);
    }
    /// Saves; returns what was announced.
    QString save() const
    {
        WmListener windowManager;
        visitFile(&SoundPage::saveValues);
        return windowManager.take().join(QLatin1Char('\n')).remove(QLatin1String("QAZWM_UPDATE_VAL "));
    }
    QWidget *find(const char *name) const { return page->findChild<QWidget *>(QLatin1String(name)); }
    void click(const char *button) const { QTest::mouseClick(find(button), Qt::LeftButton); }
    void choose(const QString &theme) const
    {
        themes->setCurrentIndex(themes->findText(theme));
        emit themes->activated(themes->currentIndex());
    }
    void assign(int row, const QString &text) const { list->topLevelItem(row)->setText(1, text); }
    /// The assignments that are not empty, as "row=text".
    QString assignments() const
    {
        QString result;
        for (int row = 0; row < list->topLevelItemCount(); ++row) {
            if (const QString text = list->topLevelItem(row)->text(1); !text.isEmpty())
                result += "%1=%2 "_s.arg(QString::number(row), text);
        }
        return result.trimmed();
    }
    /// The beginnings of the enabled controls' names.
    QString enabled() const
    {
        QStringList result;
        for (const char *name :
             {"soundThemeCombo", "defaultSoundsButton", "clearSoundsButton", "soundListView",
              "selectSoundButton", "removeSoundButton", "playButton", "stopButton"}) {
            if (find(name)->isEnabled())
                result << QString::fromLatin1(name).remove(QLatin1String("sound")).left(4);
        }
        return result.join(QLatin1Char(' '));
    }

    const TemporaryHome home;
    const ScopedEnvironment dataRoot{"QAZ_DATA_DIR", QFile::encodeName(path("data"))};
    std::unique_ptr<SoundPage> page = std::make_unique<SoundPage>();
    QComboBox *const themes = page->findChild<QComboBox *>();
    QGroupBox *const group = page->findChild<QGroupBox *>();
    QTreeWidget *const list = page->findChild<QTreeWidget *>();
};
