#include "platform/qazhelp.h"

#include "platform/helpwindow.h"
#include "platform/slidingstackedwidget.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QPointer>

namespace {

SlidingStackedWidget *pageStack()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (auto *stack = window->findChild<SlidingStackedWidget *>())
            return stack;
    }
    return nullptr;
}

/// The user guide in the user's language, else in English.
QUrl guide()
{
    for (const QString &locale : QLocale().uiLanguages()) {
        const QString language = locale.section(QLatin1Char('-'), 0, 0);
        const QString name = QStringLiteral(":/guide/guide_%1.html").arg(language);
        if (QFile::exists(name))
            return QUrl(QLatin1String("qrc") + name);
        if (language == QLatin1String("en"))
            break;
    }
    return QUrl(QStringLiteral("qrc:/guide/guide.html"));
}

/// The one help window. A modal dialog lets nobody but its own windows take keys and clicks.
HelpWindow *helpWindow()
{
    static QPointer<HelpWindow> window;
    if (!window)
        window = new HelpWindow;
    QWidget *modal = QApplication::activeModalWidget();
    if (window->parentWidget() != modal)
        window->setParent(modal, Qt::Window);
    return window;
}

} // namespace

QString qazHelpLookForWidget()
{
    const SlidingStackedWidget *stack = pageStack();
    const QWidget *page = stack ? stack->currentWidget() : nullptr;
    if (!page)
        return QStringLiteral("index");
    QString topic = QString::fromLatin1(page->metaObject()->className()).toLower();
    topic.remove(QLatin1String("page"));
    return topic;
}

void qazHelpShow(const QString &topic)
{
    HelpWindow *window = helpWindow();
    window->show();
    window->raise();
    window->activateWindow();
    window->setSource(QUrl(guide().toString() + QLatin1Char('#') + topic));
}
