#include "bench/figures.h"
#include "bench/photograph.h"
#include "pages/wallpaper/wallpaperpage.h"
#include "platform/qazsettings.h"
#include "resources/registerresources.h"

#include "ui_wallpaperform.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

namespace {

constexpr int rounds = 40;
constexpr double frameLimit = 16;
constexpr double firstShowLimit = 1.2;

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

/// Takes the time at which the label has its new picture on the screen.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *label) { label->installEventFilter(this); }
    /// The milliseconds from the start of \a action to the end of the last paint in it.
    template<typename Action>
    double measure(Action action)
    {
        m_painted = 0;
        m_timer.start();
        action();
        QCoreApplication::processEvents();
        return m_painted;
    }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::Paint || m_isPainting)
            return false;
        m_isPainting = true;
        QCoreApplication::sendEvent(object, event);
        m_isPainting = false;
        m_painted = milliseconds(m_timer);
        return true;
    }

private:
    QElapsedTimer m_timer;
    double m_painted = 0;
    bool m_isPainting = false;
};

void load(WallpaperPage *page, const QString &themeFile)
{
    QazSettings store(themeFile);
    store.sync(true);
    page->loadValues(&store);
}

void press(QWidget *widget, int key, const QString &text = {})
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &event);
}

bool measureEdits(const QString &themeFile)
{
    WallpaperPage page;
    load(&page, themeFile);
    page.show();
    QCoreApplication::processEvents();
    auto *lineEdit = page.findChild<QLineEdit *>(QStringLiteral("wallpaperLineEdit"));
    auto *position = page.findChild<QComboBox *>(QStringLiteral("wallpaperPositionCombo"));
    PaintWatch watch(page.findChild<QLabel *>(QStringLiteral("wallpaperPixmapLabel")));
    std::vector<double> keystrokes, calls, positions;
    for (int round = 0; round < rounds; ++round) {
        press(lineEdit, Qt::Key_X, QStringLiteral("x"));
        QCoreApplication::processEvents();
        QElapsedTimer call;
        call.start();
        keystrokes.push_back(watch.measure([lineEdit] { press(lineEdit, Qt::Key_Backspace); }));
        calls.push_back(milliseconds(call));
        QCoreApplication::processEvents();
        positions.push_back(watch.measure([position, round] {
            position->setCurrentIndex(round % 3);
            emit position->activated(round % 3);
        }));
    }
    std::printf("keystroke with the preview file written: %.2f ms\n", median(calls));
    const bool keystrokeKept = report("keystroke to picture", median(keystrokes), frameLimit, "ms");
    return report("position to picture", median(positions), frameLimit, "ms") && keystrokeKept;
}

template<typename Load>
double firstShow(QWidget *page, Load load)
{
    QElapsedTimer timer;
    timer.start();
    load();
    page->show();
    QCoreApplication::processEvents();
    const double time = milliseconds(timer);
    page->hide();
    return time;
}

bool measureFirstShow(const QString &themeFile, const QString &picture)
{
    std::vector<double> pages, floors;
    for (int round = -2; round < rounds / 4; ++round) {
        QElapsedTimer timer;
        timer.start();
        const bool isDecoded = !QImage(picture).isNull();
        const double decoding = milliseconds(timer);
        QWidget empty;
        Ui::WallpaperForm form;
        form.setupUi(&empty);
        const double floor = decoding + firstShow(&empty, [] {});
        WallpaperPage page;
        const double shown = firstShow(&page, [&page, &themeFile] { load(&page, themeFile); });
        if (!isDecoded)
            return false;
        if (round < 0) // warms fonts, style and the file
            continue;
        floors.push_back(floor);
        pages.push_back(shown);
    }
    std::printf("first show: page %.2f ms, decoding and empty page %.2f ms\n", median(pages), median(floors));
    return report("first show over decoding and empty page", median(pages) / median(floors), firstShowLimit,
                  "");
}

} // namespace

/// Edits with a large photograph shown, and the first show of the page with it.
int main(int argc, char **argv)
{
    const QTemporaryDir home;
    for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        qputenv(variable, QFile::encodeName(home.path()));
    const QApplication application(argc, argv);
    registerResources();
    const QString picture = home.filePath(QStringLiteral("photograph.jpg"));
    QFile theme(home.filePath(QStringLiteral("a.themerc")));
    if (!photograph().save(picture, "JPG", 90) || !theme.open(QIODevice::WriteOnly))
        return 1;
    theme.write("WallPaper=" + QFile::encodeName(picture) + '\n');
    theme.close();
    const bool editsKept = measureEdits(theme.fileName());
    return measureFirstShow(theme.fileName(), picture) && editsKept ? 0 : 1;
}
