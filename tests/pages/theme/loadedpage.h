#pragma once

#include "pages/theme/themepage.h"
#include "platform/qazsettings.h"
#include "tests/support/environment.h"
#include "tests/support/literals.h"
#include "tests/support/samplethemes.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

inline const QString themeFile = "test.themerc"_s;

/// A page on a theme file, in a home with themes of each kind.
class LoadedPage
{
public:
    explicit LoadedPage(const QByteArray &themeFileContent = {})
        : m_data("QAZ_DATA_DIR", home.path("data"_s).toLocal8Bit())
        , m_cursors("XCURSOR_PATH", "~/.icons")
    {
        home.write(themeFile, themeFileContent);
        makeCursorTheme(home, ".icons/b"_s, Qt::red);
        makeCursorTheme(home, ".icons/B"_s, Qt::blue);
        makeIconTheme(home, ".icons/square"_s, Qt::red);
        makeIconTheme(home, ".icons/Round"_s, Qt::blue);
        home.write(".icons/hicolor/index.theme"_s, "[Icon Theme]\nDirectories=p\n[p]\nSize=32\n");
        makeDecorTheme(home, "data/themes/glass"_s, Qt::red);
        makeDecorTheme(home, "data/themes/No theme"_s, Qt::green);
        makeDecorTheme(home, "data/themes/Wood"_s, Qt::blue);
        load();
    }

    void pass(bool (ThemePage::*loadOrSave)(QazSettings *))
    {
        QazSettings settings(home.path(themeFile));
        settings.sync(true);
        (page.*loadOrSave)(&settings);
    }
    void load()
    {
        pass(&ThemePage::loadValues);
        page.show();
        QCoreApplication::processEvents(); // ends the reading pass
    }
    /// The updates that the window manager was told of, one a line.
    QByteArray save()
    {
        pass(&ThemePage::saveValues);
        QByteArray updates;
        for (const QString &command : windowManager.take())
            updates += command.section(QLatin1Char(' '), 1).toUtf8() + '\n';
        return updates;
    }
    QComboBox *combo(const char *name) { return page.findChild<QComboBox *>(QLatin1String(name)); }
    QPushButton *button(const char *name) { return page.findChild<QPushButton *>(QLatin1String(name)); }
    QString texts(const char *name)
    {
        QStringList texts;
        for (int i = 0; i < combo(name)->count(); ++i)
            texts.append(combo(name)->itemText(i));
        return texts.join(QLatin1Char('|'));
    }
    QColor pixel(const char *name, int index, int x, int y)
    {
        return combo(name)->itemIcon(index).pixmap(110, 32).toImage().pixelColor(x, y);
    }
    void choose(const char *name, int index)
    {
        combo(name)->setCurrentIndex(index);
        emit combo(name)->activated(index); // as the user's choice does
    }
    void remove(const char *path) { QVERIFY(QFile::remove(home.path(QString::fromLatin1(path)))); }

    TemporaryHome home;
    WmListener windowManager;
    ThemePage page;
    QSignalSpy changed{&page, &ThemePage::changedSignal};

private:
    ScopedEnvironment m_data;
    ScopedEnvironment m_cursors;
};
