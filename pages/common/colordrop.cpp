#include "pages/common/colordrop.h"

#include "pages/common/dropfilter.h"

#include <QMimeData>
#include <QRegularExpression>
#include <QWidget>

QColor colorOf(const QMimeData *data)
{
    if (!data)
        return {};
    if (data->hasColor())
        return qvariant_cast<QColor>(data->colorData());
    static const QRegularExpression colorText(QStringLiteral("^#[0-9a-fA-F]{6}$"));
    const QString text = data->text().trimmed();
    return colorText.match(text).hasMatch() ? QColor(text) : QColor();
}

ColorDrop::ColorDrop(QWidget *target)
    : QObject(target)
{
    new DropFilter(target, [this](const QMimeData *data, const QPoint & /*position*/) {
        const QColor color = colorOf(data);
        return color.isValid() ? std::function<void()>([this, color] { emit dropped(color); }) : nullptr;
    });
}
