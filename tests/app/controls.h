#pragma once

#include <QCoreApplication>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

#include "app/configdialog.h"
#include "fonts/fontaasettings.h"
#include "platform/slidingstackedwidget.h"
#include "tests/support/literals.h"

/// Everything of the editor that a user meets at once: a page, a tab of it, a dialog, the window's own controls.
struct View {
    QString name;
    QWidget *widget;
};

/// Shows each page and tab of \a dialog, then its anti-aliasing dialog, and calls \a visit with the one in view.
template<typename Visitor>
void visitViews(ConfigDialog *dialog, Visitor visit)
{
    const auto visitSettled = [&visit](const QString &name, QWidget *widget) {
        QCoreApplication::sendPostedEvents(); // a page lays itself out again after it was filled
        visit(View{name, widget});
    };
    auto *list = dialog->findChild<QListWidget *>("contentsWidget"_s);
    const auto *stack = dialog->findChild<SlidingStackedWidget *>();
    for (int row = 0; row < list->count(); ++row) {
        list->setCurrentRow(row);
        QWidget *page = stack->currentWidget();
        const QString name = QString::fromLatin1(page->metaObject()->className());
        auto *tabs = page->findChild<QTabWidget *>();
        for (int i = 0; i < (tabs ? tabs->count() : 1); ++i) {
            if (tabs)
                tabs->setCurrentIndex(i);
            visitSettled(tabs ? name + u'/' + tabs->widget(i)->objectName() : name, page);
        }
    }
    auto *antiAliasing = dialog->findChild<FontAASettings *>();
    antiAliasing->show();
    visitSettled("FontAASettings"_s, antiAliasing);
    antiAliasing->hide();
}

/// Whether \a label shows a text of the program's; a font's preview shows the font, and names nothing.
inline bool isTextLabel(const QLabel *label)
{
    return !label->text().isEmpty() && label->objectName() != "previewLabel"_s;
}

/// A control's class and object name, for failures.
inline QString described(const QWidget *widget)
{
    if (!widget)
        return "part of a control"_s;
    return QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
}
