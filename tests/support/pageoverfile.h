#pragma once

#include "platform/qazsettings.h"
#include "tests/support/modaldriver.h"
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
    /// What comes of a step: of a user's one, and of "load CONTENT" or of "load" that reads the file "t" again, what
    /// \a view shows then. The next dialogs are those that the steps before told how to answer.
    QString outcome(const QString &step, const QString &view)
    {
        const QString what = step.section(u' ', 0, 0), text = step.section(u' ', 1);
        if (what == "save"_s)
            return save();
        if (what == "edits"_s)
            return QString::number(changed.count());
        if (what == "see"_s)
            return shownBy(&page, text);
        if (what == "read"_s)
            return QString::fromUtf8(home.read(text));
        if (what == "names"_s)
            return home.names(text);
        if (what == "backups"_s)
            return QString::fromUtf8(home.backups().join('|'));
        if (what == "dialogs"_s)
            return driver.takeSeen().join(u'|').replace(home.path(), "HOME"_s);
        if (what == "write"_s)
            home.write(text.section(u' ', 0, 0), text.section(u' ', 1).toUtf8());
        else if (what == "remove"_s)
            QDir(home.path(text)).removeRecursively() || QFile::remove(home.path(text));
        else if (what == "reject"_s)
            driver.thenReject();
        else if (what == "answer"_s)
            driver.thenAnswer(QMessageBox::StandardButton(
                QMetaEnum::fromType<QMessageBox::StandardButtons>().keyToValue(text.toLatin1().constData())));
        else if (what == "enter"_s)
            driver.thenEnter(QString(text).replace("HOME"_s, home.path()));
        else
            return outcomeInView(step, view);
        return {};
    }

    const TemporaryHome home;
    ModalDriver driver;
    Page page;
    QSignalSpy changed{&page, &Page::changedSignal};

private:
    QString outcomeInView(const QString &step, const QString &view)
    {
        WmListener windowManager;
        if (step == "load"_s || step.startsWith("load "_s))
            load(step.size() < 5 ? content() : step.mid(5).toUtf8());
        else
            operate(&page, step);
        return shownBy(&page, view) + windowManager.takeUpdates();
    }
};

/// Plays each row of a file below tests/ on a page of its own.
template<typename Page>
void playOnPages(const QString &path, const QString &view)
{
    for (const QStringList &row : rowsOf(path)) {
        Page over;
        playSteps(row, 1, [&](const QString &step) { return over.outcome(step, view); });
        QVERIFY2(over.driver.isDone(), qPrintable(row[0]));
    }
}
