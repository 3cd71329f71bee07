#include <QApplication>
#include <QElapsedTimer>
#include <QX11Info>

#include "bench/editor.h"
#include "bench/figures.h"

#include <X11/Xlib.h>

namespace {

constexpr int rounds = 15;
constexpr double limitMs = 10;

/// The time from the click to the server having drawn the page.
double switchTime(Editor &editor, int row)
{
    QElapsedTimer timer;
    timer.start();
    editor.showPage(row);
    XSync(QX11Info::display(), False);
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace

/// What switching to a page that was seen before costs.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Editor editor;
    std::vector<std::vector<double>> times(std::size_t(editor.pageCount()));
    for (int round = 0; round < rounds; ++round) {
        for (int row = 0; row < editor.pageCount(); ++row)
            times[std::size_t(row)].push_back(switchTime(editor, row));
    }
    bool kept = true;
    std::printf("medians of %d alternating rounds\n", rounds);
    for (std::size_t row = 0; row < times.size(); ++row) {
        const QByteArray what = "switch to page " + QByteArray::number(int(row) + 1);
        kept = report(what.constData(), median(times[row]), limitMs, "ms") && kept;
    }
    return kept ? 0 : 1;
}
