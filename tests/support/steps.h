#pragma once

#include "tests/support/rows.h"

/// Plays what follows the first \a head texts of a row: steps "what is done -> what must come of it, if anything".
template<typename Outcome>
void playSteps(const QStringList &row, int head, const Outcome &outcome)
{
    QStringList played = row.mid(0, head);
    for (const QString &step : row.mid(head)) {
        const QString action = step.section(" -> "_s, 0, 0), result = outcome(action);
        played += result.isEmpty() ? action : action + " -> "_s + result;
    }
    QCOMPARE(played, row);
}

/// The values of the widgets \a names of a window, brackets around what is disabled.
inline QString shownBy(const QWidget *window, const QString &names)
{
    QStringList shown;
    for (const QString &name : names.split(u' ')) {
        const auto *widget = window->findChild<QWidget *>(name);
        const QString value = widget->property(widget->metaObject()->userProperty().name()).toString();
        shown += widget->isEnabled() ? value : u'(' + value + u')';
    }
    return shown.join(u' ');
}

/// As a user: "button" clicks, "field text" types the text in place of the old one, "press widget Key Key" presses keys.
inline void operate(QWidget *window, const QString &step)
{
    const bool isPress = step.startsWith("press "_s);
    const QString name = step.section(u' ', isPress, isPress), text = step.section(u' ', isPress + 1);
    auto *widget = window->findChild<QWidget *>(name);
    if (!widget)
        qFatal("No widget for '%s'", qPrintable(step));
    if (isPress) {
        for (const QString &key : text.split(u' '))
            QTest::keySequence(widget, QKeySequence(key));
    } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        button->click();
    } else {
        if (!qobject_cast<QComboBox *>(widget))
            QTest::keySequence(widget, QKeySequence::SelectAll);
        QTest::keyClicks(widget, text);
    }
}
