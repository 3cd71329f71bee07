#include "platform/qazfiledialog.h"

#include "freedesktop/images.h"
#include "freedesktop/soundinfo.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QScreen>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int restMs = 250;
constexpr QSize pictureSize(192, 160);
constexpr qint64 largestPreview = 16 * 1024 * 1024; // pixels; decoding more keeps the user waiting

/// Shows what is in an image or a sound file: the picture and its size in pixels, or the sound's format and length.
class FilePreview : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(FilePreview)
public:
    explicit FilePreview(QWidget *parent)
        : QWidget(parent)
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
    }

    /// Shows the file at \a path once nothing else was asked for during a moment: who goes through a list by the
    /// keyboard doesn't wait for pictures.
    void showFile(const QString &path)
    {
        m_path = path;
        m_picture->clear();
        m_text->clear();
        QTimer::singleShot(restMs, this, [this, path] {
            if (path == m_path)
                draw();
        });
    }

private:
    void draw()
    {
        const QString name = QFileInfo(m_path).fileName() + QLatin1Char('\n');
        const QSize size = imageSize(m_path);
        if (size.isEmpty()) {
            if (const std::optional<SoundInfo> sound = soundInfo(m_path))
                m_text->setText(name
                                + tr("%1, %2 Hz, %3 × %4 bit\nLength: %5 s")
                                      .arg(sound->format, QString::number(sound->rate),
                                           QString::number(sound->channels), QString::number(sound->bits),
                                           QLocale().toString(sound->seconds, 'f', 1)));
            return;
        }
        m_text->setText(name + tr("%1 × %2 pixels").arg(size.width()).arg(size.height()));
        const QImage image = loadImage(m_path, largestPreview);
        if (image.isNull())
            return;
        const QSize room = pictureSize * devicePixelRatioF();
        QPixmap picture = QPixmap::fromImage(
            image.scaled(room.boundedTo(image.size()), Qt::KeepAspectRatio, Qt::SmoothTransformation));
        picture.setDevicePixelRatio(devicePixelRatioF());
        m_picture->setPixmap(picture);
    }

    QLabel *m_picture = new QLabel(this);
    QLabel *m_text = new QLabel(this);
    QString m_path;
};

} // namespace

QazFileDialog::QazFileDialog(QWidget *parent, const QString &caption, const QString &location,
                             const QString &filter)
    : QFileDialog(parent, caption, QString(), filter)
{
    // A native dialog of another desktop would know nothing of the sidebar's places.
    setOption(DontUseNativeDialog);
    setFileMode(ExistingFile);
    letTypedPathsCount();
    auto *preview = new FilePreview(findChild<QSplitter *>()); // beside the list
    connect(this, &QFileDialog::currentChanged, preview, &FilePreview::showFile);
    const int wider = width() + preview->sizeHint().width();
    resize(qMin(wider, screen()->availableGeometry().width()), height());
    const QFileInfo info(location);
    if (info.isDir()) {
        setDirectory(location);
    } else if (!location.isEmpty()) {
        setDirectory(info.path());
        selectFile(info.fileName());
        preview->showFile(location);
        // Only the name field holds it: a selected row would join the next name put there, as a second file.
        findChild<QListView *>(QStringLiteral("listView"))->selectionModel()->clearSelection();
    }
}

/// While a path is typed, Qt selects the rows that it passes, and would then take the directory in view for it.
void QazFileDialog::letTypedPathsCount()
{
    auto *name = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    auto *files = findChild<QListView *>(QStringLiteral("listView"));
    connect(name, &QLineEdit::textChanged, files, [name, files](const QString &text) {
        if (!text.contains(QLatin1Char('/')) && files->selectionModel()->selectedRows().size() <= 1)
            return;
        if (name->text() != text) { // a row selected while the field has no focus puts its bare name there
            const QSignalBlocker blocker(name);
            name->setText(text);
        }
        files->selectionModel()->clearSelection();
    });
}

/// Qt reads quotes as marks between several names. A name that holds quotes itself is given by its row.
void QazFileDialog::accept()
{
    const QString name = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->text();
    const QFileInfo info(directory(), name);
    if (name.contains(QLatin1Char('"')) && info.isFile()) {
        setDirectory(info.path());
        auto *files = findChild<QListView *>(QStringLiteral("listView"));
        if (const auto *model = qobject_cast<QFileSystemModel *>(files->model()))
            files->selectionModel()->select(model->index(info.filePath()),
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    QFileDialog::accept();
}

QString QazFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &location,
                                       const QString &filter)
{
    QazFileDialog dialog(parent, caption, location, filter);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
