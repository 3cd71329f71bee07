#pragma once

#include "platform/qazsettings.h"
#include "tests/support/steps.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

/// A page over a theme file of its own in a temporary home, loaded and saved as the dialog does it.
template<typename Page>
class PageOverFile
{
public:
    PageOverFile() = default; // not loaded yet
    explicit PageOverFile(const QByteArray &content) { load(content); }

    void load(const QByteArray &content)
    {
        home.write("t"_s, content);
        QazSettings store(home.path("t"_s));
        store.sync(true);
        if (!page.loadValues(&store))
            qFatal("A load fails never");
    }
    /// Saves; returns the commands, separated by "|", without their common start.
    QString save()
    {
        WmListener windowManager;
        QazSettings store(home.path("t"_s));
        store.sync(true);
        if constexpr (std::is_void_v<decltype(page.saveValues(&store))>)
            page.saveValues(&store);
        else if (!page.saveValues(&store))
            qFatal("A save fails never");
        return windowManager.takeUpdates();
    }
    QByteArray content() const { return home.read("t"_s); }
    template<typename Widget>
    Widget *find(const char *name) const
    {
        return page.template findChild<Widget *>(QLatin1String(name));
    }
    /// What comes of a step: of "load CONTENT", of "load" that reads the file again, of a user's one what \a view shows
    /// then; of "see NAMES" what those show; of "save" the commands; of "edits" how many there were.
    QString outcome(const QString &step, const QString &view)
    {
        const QString what = step.section(u' ', 0, 0), text = step.section(u' ', 1);
        if (what == "save"_s)
            return save();
        if (what == "file"_s)
            return QString::fromUtf8(content());
        if (what == "edits"_s)
            return QString::number(changed.count());
        if (what == "see"_s)
            return shownBy(&page, text);
        WmListener windowManager;
        if (what == "load"_s)
            load(text.isEmpty() ? content() : text.toUtf8());
        else
            operate(&page, step);
        return shownBy(&page, view) + windowManager.takeUpdates();
    }

    const TemporaryHome home;
    Page page;
    QSignalSpy changed{&page, &Page::changedSignal};
};

/// Plays each row of a file below tests/ on a page of its own.
template<typename Page>
void playOnPages(const QString &path, const QString &view)
{
    for (const QStringList &row : rowsOf(path)) {
        Page over;
        playSteps(row, 1, [&](const QString &step) { return over.outcome(step, view); });
    }
}
