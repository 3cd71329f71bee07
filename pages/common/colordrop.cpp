#include "pages/common/colordrop.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
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
    target->setAcceptDrops(true);
    target->installEventFilter(this);
}

bool ColorDrop::eventFilter(QObject * /*watched*/, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop: {
        auto *drop = static_cast<QDropEvent *>(event);
        const QColor color = colorOf(drop->mimeData());
        drop->setDropAction(Qt::CopyAction); // a text that was dragged here stays where it was
        drop->setAccepted(color.isValid());
        if (color.isValid() && event->type() == QEvent::Drop)
            emit dropped(color);
        return true;
    }
    case QEvent::KeyPress: {
        const QColor color = static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste)
                                 ? colorOf(QGuiApplication::clipboard()->mimeData())
                                 : QColor();
        if (color.isValid())
            emit dropped(color);
        return color.isValid();
    }
    default:
        return false;
    }
}
