#pragma once

#include "platform/qazsettings.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"
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

    const TemporaryHome home;
    Page page;
};
