#include "pages/common/dropfilter.h"

#include <QClipboard>
#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

class DropFilter : public QObject
{
public:
    DropFilter(QWidget *target, const TakeData &take)
        : QObject(target)
        , m_take(take)
    {}

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste)) {
            const QMimeData *data = QGuiApplication::clipboard()->mimeData();
            const auto take = data ? m_take(data, {}) : std::function<void()>();
            if (take)
                take();
            return bool(take);
        }
        if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
            return false;
        auto *drop = static_cast<QDropEvent *>(event);
        auto *target = static_cast<QWidget *>(parent());
        std::optional<QPoint> position;
        if (type != QEvent::DragEnter) // only who lets data in is told where it moves
            position = target->mapFromGlobal(static_cast<QWidget *>(object)->mapToGlobal(drop->pos()));
        const auto take = m_take(drop->mimeData(), position);
        drop->setDropAction(Qt::CopyAction); // a file manager would take "move" at its word
        drop->setAccepted(bool(take));
        if (take && type == QEvent::Drop)
            take();
        return true;
    }

private:
    TakeData m_take;
};

} // namespace

QColor colorOf(const QMimeData *data)
{
    if (data->hasColor())
        return qvariant_cast<QColor>(data->colorData());
    const QString text = data->text().trimmed();
    return text.startsWith(QLatin1Char('#')) && text.size() == 7 ? QColor(text) : QColor();
}

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

void takeDrops(QWidget *target, const TakeData &take)
{
    auto *filter = new DropFilter(target, take);
    target->setAcceptDrops(true);
    target->installEventFilter(filter);
    const QList<QWidget *> children = target->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->acceptDrops())
            child->installEventFilter(filter);
    }
}

void takeColors(QWidget *target, const std::function<void(const QColor &)> &take)
{
    takeDrops(target, [take](const QMimeData *data, const std::optional<QPoint> & /*position*/) {
        const QColor color = colorOf(data);
        return color.isValid() ? std::function<void()>([take, color] { take(color); }) : nullptr;
    });
}
