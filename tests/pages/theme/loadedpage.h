#pragma once

#include "pages/theme/themepage.h"
#include "tests/support/environment.h"
#include "tests/support/pageoverfile.h"
#include "tests/support/samplethemes.h"

#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

/// A page on a theme file, in a home with themes of each kind.
class LoadedPage : public PageOverFile<ThemePage>
{
public:
    explicit LoadedPage(const QByteArray &content)
        : m_data("QAZ_DATA_DIR", home.path("data"_s).toLocal8Bit())
    {
        makeCursorTheme(home, ".icons/b"_s, Qt::red);
        makeCursorTheme(home, ".icons/B"_s, Qt::blue);
        makeIconTheme(home, ".icons/square"_s, Qt::red);
        makeIconTheme(home, ".icons/Round"_s, Qt::blue);
        home.write(".icons/hicolor/index.theme"_s, "[Icon Theme]\nDirectories=p\n[p]\nSize=32\n");
        makeDecorTheme(home, "data/themes/glass"_s, Qt::red);
        makeDecorTheme(home, "data/themes/No theme"_s, Qt::green);
        makeDecorTheme(home, "data/themes/Wood"_s, Qt::blue);
        load(content);
    }

    void load(const QByteArray &content)
    {
        PageOverFile::load(content);
        page.show();
        QCoreApplication::processEvents(); // ends the reading pass
    }
    QComboBox *combo(const char *name) { return find<QComboBox>(name); }
    QPushButton *button(const char *name) { return find<QPushButton>(name); }
    QString texts(const char *name)
    {
        QStringList texts;
        for (int i = 0; i < combo(name)->count(); ++i)
            texts.append(combo(name)->itemText(i));
        return texts.join(u'|');
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

    QSignalSpy changed{&page, &ThemePage::changedSignal};

private:
    ScopedEnvironment m_data;
    ScopedEnvironment m_cursors{"XCURSOR_PATH", "~/.icons"};
};
