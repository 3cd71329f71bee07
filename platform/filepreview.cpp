#include "platform/filepreview.h"

#include "freedesktop/images.h"
#include "freedesktop/soundinfo.h"

#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace {

constexpr int restMs = 250;
constexpr QSize pictureSize(192, 160);
constexpr qint64 largestPreview = 16 * 1024 * 1024; // pixels; decoding more keeps the user waiting

QString soundText(const SoundInfo &info)
{
    const QLocale locale;
    return FilePreview::tr("%1, %2 Hz, %3 × %4 bit\nLength: %5 s")
        .arg(info.format, QString::number(info.rate), QString::number(info.channels),
             QString::number(info.bits), locale.toString(info.seconds, 'f', 1));
}

} // namespace

FilePreview::FilePreview(QWidget *parent)
    : QWidget(parent)
    , m_picture(new QLabel(this))
    , m_text(new QLabel(this))
{
    m_picture->setObjectName(QStringLiteral("previewPicture"));
    m_picture->setFixedSize(pictureSize);
    m_picture->setAlignment(Qt::AlignCenter);
    m_text->setObjectName(QStringLiteral("previewText"));
    m_text->setTextFormat(Qt::PlainText); // names of files may look like markup
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_picture, 0, Qt::AlignCenter);
    layout->addWidget(m_text, 1);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restMs);
    connect(&m_rest, &QTimer::timeout, this, &FilePreview::draw);
}

void FilePreview::showFile(const QString &path)
{
    m_path = path;
    m_picture->clear();
    m_text->clear();
    m_rest.start();
}

void FilePreview::draw()
{
    const QString name = QFileInfo(m_path).fileName() + QLatin1Char('\n');
    const QSize size = imageSize(m_path);
    if (size.isEmpty()) {
        if (const std::optional<SoundInfo> sound = soundInfo(m_path))
            m_text->setText(name + soundText(*sound));
        return;
    }
    m_text->setText(name + tr("%1 × %2 pixels").arg(size.width()).arg(size.height()));
    QImage image = loadImage(m_path, largestPreview);
    const QSize room = pictureSize * devicePixelRatioF();
    if (image.width() > room.width() || image.height() > room.height())
        image = image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(devicePixelRatioF());
    m_picture->setPixmap(QPixmap::fromImage(image));
}
