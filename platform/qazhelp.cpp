#include "platform/qazhelp.h"

#include "platform/slidingstackedwidget.h"

#include <QApplication>
#include <QCoreApplication>
#include <QFile>
#include <QIcon>
#include <QLocale>
#include <QPointer>
#include <QShortcut>
#include <QTextBrowser>

namespace {

const QString indexTopic = QStringLiteral("index");

SlidingStackedWidget *pageStack()
{
    const QWidget *active = QApplication::activeWindow();
    SlidingStackedWidget *stack = active ? active->findChild<SlidingStackedWidget *>() : nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (int i = 0; !stack && i < windows.size(); ++i)
        stack = windows.at(i)->findChild<SlidingStackedWidget *>();
    return stack;
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

QTextBrowser *helpWindow()
{
    static QPointer<QTextBrowser> window;
    if (!window) {
        window = new QTextBrowser;
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->setAttribute(Qt::WA_QuitOnClose, false);
        window->setObjectName(QStringLiteral("helpWindow"));
        window->setWindowTitle(QCoreApplication::translate("Help", "Qaz Theme Editor Help"));
        window->setWindowIcon(QIcon::fromTheme(QStringLiteral("help-contents"),
                                               QIcon(QStringLiteral(":/fallback/help-contents.svg"))));
        window->setOpenExternalLinks(false);
        window->resize(760, 640);
        window->document()->setDocumentMargin(16);
        for (const QKeySequence::StandardKey key : {QKeySequence::Cancel, QKeySequence::Close})
            QObject::connect(new QShortcut(key, window), &QShortcut::activated, window, &QWidget::close);
    }
    return window;
}

} // namespace

QString qazHelpLookForWidget()
{
    const SlidingStackedWidget *stack = pageStack();
    const QWidget *page = stack ? stack->currentWidget() : nullptr;
    if (!page)
        return indexTopic;
    QString topic = QString::fromLatin1(page->metaObject()->className()).toLower();
    topic.remove(QLatin1String("page"));
    return topic;
}

void qazHelpShow(const QString &topic)
{
    QTextBrowser *window = helpWindow();
    window->show();
    window->raise();
    window->activateWindow();
    window->setSource(QUrl(guide().toString() + QLatin1Char('#') + topic));
}
