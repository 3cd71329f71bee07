#include "pages/common/dropfilter.h"

#include <QClipboard>
#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QUrl>
#include <QWidget>

QString localPath(const QString &text)
{
    const QString line = text.section(QLatin1Char('\n'), 0, 0).trimmed();
    return line.startsWith(QLatin1String("file://")) ? QUrl(line).toLocalFile() : QString();
}

QString droppedFile(const QMimeData *data, const QStringList &endings)
{
    QStringList paths;
    if (data->hasUrls()) {
        for (const QUrl &url : data->urls())
            paths += url.toLocalFile();
    } else {
        for (const QString &line : data->text().split(QLatin1Char('\n')))
            paths += localPath(line);
    }
    for (const QString &path : paths) {
        const QFileInfo file(path);
        if (endings.contains(file.suffix(), Qt::CaseInsensitive) && file.isFile())
            return path;
    }
    return {};
}

QColor droppedColor(const QMimeData *data)
{
    if (data->hasColor())
        return data->colorData().value<QColor>();
    static const QRegularExpression color(QStringLiteral("^#[0-9a-fA-F]{6}$"));
    const QString text = data->text().trimmed();
    return color.match(text).hasMatch() ? QColor(text) : QColor();
}

DropFilter::DropFilter(QWidget *target, const Taking &taking)
    : QObject(target)
    , m_taking(taking)
{
    target->setAcceptDrops(true);
    target->installEventFilter(this);
    const QList<QWidget *> children = target->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->acceptDrops())
            child->installEventFilter(this);
    }
}

bool DropFilter::eventFilter(QObject *object, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste)) {
        const auto take = m_taking(QGuiApplication::clipboard()->mimeData(), QPoint(-1, -1));
        if (take)
            take();
        return bool(take);
    }
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return false;
    auto *drop = static_cast<QDropEvent *>(event);
    auto *target = static_cast<QWidget *>(parent());
    const QPoint position = target->mapFromGlobal(static_cast<QWidget *>(object)->mapToGlobal(drop->pos()));
    const auto take = m_taking(drop->mimeData(), position);
    drop->setDropAction(Qt::CopyAction); // a file manager would take "move" at its word
    drop->setAccepted(bool(take));
    if (take && type == QEvent::Drop)
        take();
    return true;
}
