#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>

#include "app/configdialog.h"
#include "fonts/fontaasettings.h"
#include "platform/slidingstackedwidget.h"

/// Everything of the editor that a user meets at once: a page, a tab of it, a dialog, the window's own controls.
struct View {
    QString name;
    QWidget *widget;
};

/// A page lays itself out again after it was filled.
inline void settle()
{
    QCoreApplication::sendPostedEvents();
}

/// Shows each page and tab of \a dialog, then its anti-aliasing dialog, and calls \a visit with the one in view.
template<typename Visitor>
void visitViews(ConfigDialog *dialog, Visitor visit)
{
    auto *list = dialog->findChild<QListWidget *>(QStringLiteral("contentsWidget"));
    const auto *stack = dialog->findChild<SlidingStackedWidget *>();
    for (int row = 0; row < list->count(); ++row) {
        list->setCurrentRow(row);
        QWidget *page = stack->currentWidget();
        const QString name = QString::fromLatin1(page->metaObject()->className());
        auto *tabs = page->findChild<QTabWidget *>();
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            tabs->setCurrentIndex(i);
            settle();
            visit(View{name + QLatin1Char('/') + tabs->widget(i)->objectName(), page});
        }
        settle();
        if (!tabs)
            visit(View{name, page});
    }
    auto *antiAliasing = dialog->findChild<FontAASettings *>();
    antiAliasing->show();
    settle();
    visit(View{QStringLiteral("FontAASettings"), antiAliasing});
    antiAliasing->hide();
}

/// A control's class and object name, for failures.
inline QString described(const QWidget *widget)
{
    if (!widget)
        return QStringLiteral("part of a control");
    return QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') + widget->objectName();
}
