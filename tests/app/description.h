#pragma once

#include "tests/support/textfile.h"

/// All that a window shows, as lines of text: what its widgets and layouts hold that Qt's own would not. What depends on
/// fonts, and what all widgets of a window share, is left out.
class Description
{
public:
    /// Tells the widgets of \a window in the order of the Tab key.
    void add(QWidget *window)
    {
        QWidget *widget = window;
        do {
            const QString name = widget->objectName();
            const bool isPartOfAnother = (name.isEmpty() && !qobject_cast<QPushButton *>(widget))
                                         || name.startsWith("qt_"_s)
                                         || qobject_cast<QTabBar *>(widget->parent());
            if (widget == window || !isPartOfAnother)
                addWidget(widget);
            widget = widget->nextInFocusChain();
        } while (widget != window);
    }
    QByteArray text() const
    {
        return m_lines.join(u'\n').replace(QRegularExpression(" +\n"_s), "\n"_s).toUtf8() + '\n';
    }

private:
    void addWidget(const QWidget *widget)
    {
        m_lines.append(described(widget));
        if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy())
            for (QWidget *buddy = label->buddy(); buddy; buddy = buddy->focusProxy())
                m_lines.append("  buddy "_s + buddy->objectName());
        if (const auto *tabs = qobject_cast<const QTabWidget *>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                m_lines.append("  tab %1 \"%2\""_s.arg(tabs->widget(i)->objectName(), tabs->tabText(i)));
        if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
            addItems(view->model());
        if (const auto *combo = qobject_cast<const QComboBox *>(widget))
            addItems(combo->model());
        if (widget->layout())
            addLayout("  "_s, {}, widget->layout());
    }
    void addItems(const QAbstractItemModel *model)
    {
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList data;
            for (int column = 0; column < model->columnCount(); ++column)
                for (const QVariant &value : model->itemData(model->index(row, column)))
                    data.append(described(value));
            m_lines.append("  item "_s + data.join(u' '));
        }
    }
    void addLayout(const QString &indent, const QString &place, QLayout *layout)
    {
        m_lines.append(indent + place + described(layout));
        auto *grid = qobject_cast<QGridLayout *>(layout);
        for (int column = 0; grid && column < grid->columnCount(); ++column)
            m_lines.last() += " |"_s.repeated(column == 0) + " %1"_s.arg(grid->columnStretch(column));
        for (int row = 0; grid && row < grid->rowCount(); ++row)
            m_lines.last() += " |"_s.repeated(row == 0) + " %1"_s.arg(grid->rowStretch(row));
        if (grid)
            m_lines.last() += " | %1 %2"_s.arg(grid->horizontalSpacing()).arg(grid->verticalSpacing());
        for (int i = 0; i < layout->count(); ++i) {
            QLayoutItem *item = layout->itemAt(i);
            const QString where = placeOf(i, layout);
            if (item->layout()) {
                addLayout(indent + "  "_s, where, item->layout());
                continue;
            }
            m_lines.append(indent + "  "_s + where);
            QDebug out(&m_lines.last());
            out.noquote().nospace();
            if (const QWidget *widget = item->widget())
                out << widget->metaObject()->className() << ' ' << widget->objectName();
            else
                out << item->sizeHint() << item->expandingDirections();
        }
    }
    static QString placeOf(int i, QLayout *layout)
    {
        QString place;
        QDebug out(&place);
        int row = 0, column = 0, rows = 0, columns = 0;
        if (auto *grid = qobject_cast<QGridLayout *>(layout)) {
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            out << row << column << rows << columns;
        } else if (auto *box = qobject_cast<QBoxLayout *>(layout)) {
            out << box->stretch(i);
        }
        if (layout->itemAt(i)->alignment())
            out << layout->itemAt(i)->alignment();
        return place;
    }
    /// Class, name and properties.
    QString described(const QObject *object) const
    {
        const auto plain = std::find_if(std::begin(m_plain), std::end(m_plain), [object](const auto &each) {
            return object->inherits(each->metaObject()->className());
        });
        QString text = QLatin1String(object->metaObject()->className()) + u' ' + object->objectName();
        for (int i = 0; i < object->metaObject()->propertyCount(); ++i) {
            const QMetaProperty property = object->metaObject()->property(i);
            const QVariant value = property.read(object);
            const QString name = QLatin1String(property.name());
            if (!property.isWritable() || !property.isStored(object) || !property.isDesignable(object)
                || value == property.read(plain->get()) || m_leftOut.contains(name))
                continue;
            const QByteArray keys = property.enumerator().valueToKeys(value.toInt());
            text += " | %1=%2"_s.arg(name, property.isEnumType() ? QLatin1String(keys) : described(value));
        }
        return text;
    }
    static QString described(const QVariant &value)
    {
        if (value.type() == QVariant::Icon)
            return value.value<QIcon>().name();
        QString text;
        QDebug(&text).nospace() << value; // "QVariant(QSize, QSize(1, 2))"
        return text.section(", "_s, 1).chopped(1);
    }

    QStringList m_lines;
    const QStringList m_leftOut = "geometry minimumSize maximumSize gridSize windowIcon palette pixmap "
                                  "cursor font objectName html markdown "
                                  "plainText"_s.split(u' ');
    // Without anything set, the general classes last.
    const std::unique_ptr<QObject> m_plain[20] = {
        std::make_unique<QGridLayout>(), std::make_unique<QFormLayout>(),    std::make_unique<QHBoxLayout>(),
        std::make_unique<QVBoxLayout>(), std::make_unique<QStackedLayout>(), std::make_unique<QLabel>(),
        std::make_unique<QSpinBox>(),    std::make_unique<QDoubleSpinBox>(), std::make_unique<QCheckBox>(),
        std::make_unique<QComboBox>(),   std::make_unique<QPushButton>(),    std::make_unique<QToolButton>(),
        std::make_unique<QGroupBox>(),   std::make_unique<QTabWidget>(),     std::make_unique<QLineEdit>(),
        std::make_unique<QListWidget>(), std::make_unique<QTreeWidget>(),    std::make_unique<QScrollArea>(),
        std::make_unique<QFrame>(),      std::make_unique<QWidget>()};
};
