#include "pages/theme/swatches.h"
#include "pages/theme/themelists.h"
#include "tests/support/samplethemes.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

namespace {

const QSize canvasSize(110, 32);

using Parts = QVector<std::pair<QRect, QColor>>;

/// A home whose themes are the only ones.
struct Home : TemporaryHome {
    const ScopedEnvironment data{"QAZ_DATA_DIR", QFile::encodeName(path("data"_s))};
    const ScopedEnvironment cursors{"XCURSOR_PATH", "~/.icons"};
};

/// A picture of coloured rectangles, each over those before.
QImage picture(const QSize &size, const Parts &parts)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const auto &[rect, color] : parts)
        painter.fillRect(rect, color);
    return image;
}

QImage filled(int width, int height, const QColor &color)
{
    return picture({width, height}, {{{0, 0, width, height}, color}});
}

QString names(const QVector<ThemeEntry> &entries)
{
    QStringList names;
    for (const ThemeEntry &entry : entries)
        names.append(entry.name);
    return names.join(u'|');
}

/// The preview as a box draws it, if its list paints the same.
QImage shown(const ThemeEntry &entry)
{
    QImage painted = picture(canvasSize, {});
    QPainter painter(&painted);
    entry.preview.paint(&painter, painted.rect());
    const QImage shown = entry.preview.pixmap(1000).toImage().convertToFormat(painted.format());
    return shown == painted ? shown : QImage();
}

} // namespace

class TestPreviews : public QObject
{
    Q_OBJECT
private slots:
    void swatchesAreSharp()
    {
        QImage swatch = colorButtonPixmap(Qt::red, Qt::blue, 4, 2).toImage();
        QCOMPARE(swatch.devicePixelRatio(), 2);
        swatch.setDevicePixelRatio(1);
        QCOMPARE(swatch.convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 picture({24, 8}, {{{0, 0, 24, 8}, Qt::blue}, {{2, 2, 20, 4}, Qt::red}}));
        const QImage dots = ellipsisPixmap(Qt::black, 16, 1).toImage();
        QString alphas;
        for (int i = 0; i < 256; ++i)
            alphas += QString::number(dots.pixelColor(i % 16, i / 16).alpha() / 26);
        QCOMPARE(alphas.remove(QRegularExpression("^0{96}|0{96}$"_s)), "0142000330002410"
                                                                       "0799003993009970"
                                                                       "0799003993009970"
                                                                       "0142000330002410"_s);
    }

    void wholeCursorThemesAreListed()
    {
        const Home home;
        makeCursorTheme(home, ".icons/b"_s, Qt::red);
        makeCursorTheme(home, ".icons/B"_s, Qt::blue);
        makeCursorTheme(home, ".icons/B"_s, Qt::green, {"watch"_s}, 40);
        makeCursorTheme(home, ".icons/B"_s, QColor(51, 0, 0, 51), {"xterm"_s}, 17); // premultiplied
        makeCursorTheme(home, ".icons/half"_s, Qt::red, {"left_ptr"_s});
        makeCursorTheme(home, ".icons/garbage"_s, Qt::red);
        home.write(".icons/garbage/cursors/watch"_s, "Xcur\0\0\0garbage");
        makeCursorTheme(home, ".icons/pipe"_s, Qt::red, {"left_ptr"_s, "watch"_s});
        home.makeFifo(".icons/pipe/cursors/xterm"_s);
        const QVector<ThemeEntry> entries = cursorThemeEntries(canvasSize);
        QCOMPARE(names(entries), "B|b"_s);
        QCOMPARE(shown(entries[0]), picture(canvasSize, {{{0, 4, 24, 24}, Qt::blue},
                                                         {{36, 0, 40, 32}, Qt::green},
                                                         {{72, 8, 17, 17}, QColor(255, 0, 0, 51)}}));
    }

    void wholeIconThemesAreListed()
    {
        const Home home;
        for (const QString &theme : {"Round"_s, "large"_s, "larger"_s, "default"_s, "no %1 clock"_s})
            makeIconTheme(home, ".icons/"_s + theme, Qt::red);
        home.write(".icons/hicolor/index.theme"_s, "[Icon Theme]\nDirectories=p\n[p]\nSize=32\n");
        QVERIFY(filled(20, 32, Qt::blue).save(home.path(".icons/Round/p/user-trash.png"_s)));
        QVERIFY(QFile::remove(home.path(".icons/Round/p/user-desktop.png"_s)));
        home.write(".icons/Round/p/user-desktop.svg"_s,
                   "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
                   "<rect width='8' height='8' fill='#00ff00'/></svg>");
        QImage large(4096, 4097, QImage::Format_Mono);
        large.setColorTable({qRgb(0, 0, 255), qRgb(0, 0, 255)});
        QVERIFY(large.copy(0, 0, 4096, 4096).save(home.path(".icons/large/p/user-home.png"_s)));
        QVERIFY(large.save(home.path(".icons/larger/p/user-home.png"_s)));
        QVERIFY(QFile::remove(home.path(".icons/no %1 clock/a/preferences-system-time.png"_s)));
        home.write(".icons/preferences-system-time.png"_s, "outside all themes");
        StandardError errors;
        const QVector<ThemeEntry> entries = iconThemeEntries(canvasSize);
        QCOMPARE(errors.take(), QByteArray("qaz-admin-theme: theme no %1 clock is not full "
                                           "(no preferences-system-time in apps)\n"));
        QCOMPARE(names(entries), "Round|large|larger"_s);
        const Parts red = {{{36, 0, 32, 32}, Qt::red}, {{72, 0, 32, 32}, Qt::red}};
        QCOMPARE(shown(entries[0]), picture(canvasSize, {{{0, 0, 32, 32}, Qt::red},
                                                         {{36, 0, 20, 32}, Qt::blue},
                                                         {{72, 0, 32, 32}, Qt::green}}));
        QCOMPARE(shown(entries[1]), picture(canvasSize, Parts{{{0, 0, 110, 32}, Qt::blue}} + red));
        QCOMPARE(shown(entries[2]), picture(canvasSize, red));
    }

    void wholeDecorationThemesAreListed()
    {
        const Home home;
        const auto theme = [&home](const QString &file) { return home.path("data/themes/"_s + file); };
        for (const QString &name :
             {"eight"_s, "bad"_s, "nameless"_s, ".hidden"_s, "tall"_s, "Wood"_s, "none"_s})
            makeDecorTheme(home, "data/themes/"_s + name, Qt::red);
        QVERIFY(QFile::remove(theme("eight/closeA.xpm"_s)));
        home.write("data/themes/bad/frameAL.xpm"_s, "/* XPM */ 10000 10000");
        QVERIFY(QFile::remove(theme("nameless/default.theme"_s)));
        // Not even as many rows as it states are read.
        home.write("data/themes/tall/titleAT.xpm"_s,
                   "/* XPM */\nstatic char *t[] = {\"1 9000 2 1\", \"a c blue\", \"b c red\""
                       + QByteArray(", \"a\"").repeated(2048) + "};\n");
        const QColor glass(255, 0, 0, 51); // replaces what it covers
        // Each button's upper half is the released one.
        const std::pair<QString, QImage> images[] = {
            {"titleAT"_s, picture({5, 20}, {{{0, 0, 5, 20}, glass}, {{1, 0, 1, 1}, Qt::white}})},
            {"frameAT"_s, filled(3, 4, Qt::yellow)},
            {"frameATL"_s, filled(6, 10, Qt::cyan)},
            {"frameATR"_s, filled(7, 10, Qt::magenta)},
            {"frameAL"_s, filled(2, 9, Qt::white)},
            {"frameAR"_s, filled(3, 9, Qt::white)},
            {"minimizeA"_s, picture({8, 13}, {{{0, 0, 8, 6}, Qt::red}})},
            {"maximizeA"_s, picture({9, 14}, {{{0, 0, 9, 7}, Qt::green}})},
            {"closeA"_s, picture({10, 12}, {{{0, 0, 10, 6}, Qt::blue}})}};
        for (const auto &[name, image] : images) {
            QVERIFY(image.save(theme("Wood/%1.xpm"_s.arg(name)), "PNG"));
            QVERIFY(filled(1, 1, Qt::red).save(theme("none/%1.xpm"_s.arg(name)), "PNG"));
        }
        const QVector<ThemeEntry> entries = decorThemeEntries(canvasSize);
        QCOMPARE(names(entries), "Wood|none|tall"_s);
        Parts parts = {{{0, 0, 6, 10}, Qt::cyan},   {{103, 0, 7, 10}, Qt::magenta},
                       {{2, 4, 106, 20}, glass}, // 110 - 3 - 1 pixels wide
                       {{6, 0, 97, 4}, Qt::yellow}, {{95, 4, 10, 6}, Qt::blue},
                       {{84, 4, 9, 7}, Qt::green},  {{76, 4, 8, 6}, Qt::red}};
        for (int x = 6; x < 108; x += 5) // tiles are laid out from the canvas's origin
            parts += {{x, 20, 1, 1}, Qt::white};
        QCOMPARE(shown(entries[0]), picture(canvasSize, parts));
        // Buttons of one pixel have no half.
        QCOMPARE(shown(entries[1]),
                 picture(canvasSize, {{{0, 0, 110, 1}, Qt::red}, {{1, 1, 108, 1}, Qt::red}}));
        QCOMPARE(shown(entries[2]), picture(canvasSize, {{{0, 0, 110, 8}, Qt::red},
                                                         {{4, 8, 105, 24}, Qt::blue},
                                                         {{91, 8, 8, 4}, Qt::red},
                                                         {{101, 8, 4, 4}, Qt::red}}));
    }
};

QTEST_MAIN(TestPreviews)
#include "tst_previews.moc"
