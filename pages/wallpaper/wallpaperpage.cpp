#include "pages/wallpaper/wallpaperpage.h"

#include "freedesktop/images.h"
#include "pages/common/dropfilter.h"
#include "pages/common/messagebox.h"
#include "pages/common/waitcursor.h"
#include "pages/wallpaper/keptpreview.h"
#include "pages/wallpaper/wallpaperpreview.h"
#include "pages/wallpaper/wallpaperselection.h"
#include "platform/qazfiledialog.h"
#include "platform/qazsettings.h"
#include "settings/colortexts.h"
#include "settings/desktopwallpapers.h"
#include "settings/themekeys.h"
#include "settings/updatevalues.h"
#include "ui_wallpaperform.h"

#include <QColorDialog>
#include <QCompleter>
#include <QDirModel>
#include <QFileInfo>
#include <QScreen>
#include <QUrl>

namespace {

constexpr const ThemeKey &wallpaperKey = themeKey("WallPaper");
constexpr const ThemeKey &positionKey = themeKey("WallPaperPos");
constexpr const ThemeKey &periodKey = themeKey("WallPaperPeriod");
const QLatin1String defaultColor("blue"); // another one than the element's, on purpose

} // namespace

WallpaperPage::WallpaperPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::WallpaperForm>())
{
    m_ui->setupUi(this);
    auto *completer = new QCompleter(this);
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // its successor lists directories later than the completer asks for them
        completer->setModel(new QDirModel(completer));
    QT_WARNING_POP
    m_ui->wallpaperLineEdit->setCompleter(completer);
    m_ui->wallpaperLineEdit->setClearButtonEnabled(true);
    takeDrops(this, [this](const QMimeData *data, auto /*position*/) { return taking(data); });
}

WallpaperPage::~WallpaperPage() = default;

bool WallpaperPage::loadValues(QazSettings *settings)
{
    const WaitCursor waitCursor;
    m_color = desktopColor(
        settings->value(QLatin1String(themeKey("DesktopColor").name), defaultColor).toString());
    const QString desktopWallpaper = currentDesktopWallpaper();
    if (desktopWallpaper.isEmpty())
        loadGlobalValues(settings);
    else
        loadDesktopValues(desktopWallpaper);
    connectWidgets();
    slotWallpaperType();
    loaded = true;
    return true;
}

void WallpaperPage::loadDesktopValues(QString wallpaper)
{
    wallpaper.remove(QLatin1Char('"'));
    if (isColorText(wallpaper)) // a global one becomes the page's when the preview adopts it
        m_color = QColor(wallpaper);
    m_ui->wallpaperLineEdit->setText(wallpaper);
    m_ui->wallpaperForCurrDesktopCheckBox->setChecked(true);
    m_ui->wallpaperPositionCombo->setCurrentIndex(int(Fit::Stretch));
    m_ui->wallpaperPositionCombo->setEnabled(false);
    m_ui->SlideShowSpinBox->setValue(0);
    m_ui->SlideShowSpinBox->setEnabled(false);
}

void WallpaperPage::loadGlobalValues(const QazSettings *settings)
{
    m_ui->wallpaperLineEdit->setText(storedText(settings, wallpaperKey));
    m_ui->wallpaperPositionCombo->setCurrentIndex(int(fitFromWord(storedText(settings, positionKey))));
    m_ui->SlideShowSpinBox->setValue(storedText(settings, periodKey).toInt());
}

void WallpaperPage::connectWidgets()
{
    // Loading may run again, so each connection is unique.
    const auto unique = Qt::UniqueConnection;
    QLineEdit *lineEdit = m_ui->wallpaperLineEdit;
    QComboBox *combo = m_ui->wallpaperPositionCombo;
    QCheckBox *checkBox = m_ui->wallpaperForCurrDesktopCheckBox;
    const auto activated = qOverload<int>(&QComboBox::activated);
    connect(m_ui->SlideShowSpinBox, qOverload<int>(&QSpinBox::valueChanged), this,
            &WallpaperPage::changedSignal, unique);
    connect(lineEdit, &QLineEdit::textChanged, this, &WallpaperPage::changedSignal, unique);
    connect(combo, activated, this, &WallpaperPage::changedSignal, unique);
    connect(checkBox, &QCheckBox::clicked, this, &WallpaperPage::changedSignal, unique);
    connect(m_ui->wallpaperSelectionBtn, &QPushButton::clicked, this, &WallpaperPage::selectWallpaperFile,
            unique);
    connect(m_ui->colorSelectionButton, &QPushButton::clicked, this, &WallpaperPage::selectWallpaperColor,
            unique);
    connect(lineEdit, &QLineEdit::textChanged, this, &WallpaperPage::selectWallpaper, unique);
    connect(combo, activated, this, &WallpaperPage::slotWallpaperType, unique);
    m_ui->wallpaperPixmapLabel->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_ui->wallpaperPixmapLabel, &QWidget::customContextMenuRequested, m_ui->wallpaperSelectionBtn,
            &QPushButton::click, unique);
    connect(checkBox, &QCheckBox::stateChanged, this, &WallpaperPage::slotCurrDesktop, unique);
}

bool WallpaperPage::saveValues(QazSettings *settings)
{
    const QString text = m_ui->wallpaperLineEdit->text();
    const QString wallpaper = text.isEmpty() ? m_color.name() : text;
    if (m_ui->wallpaperForCurrDesktopCheckBox->isChecked()) {
        setCurrentDesktopWallpaper(wallpaper);
        return true;
    }
    // No desktop keeps a wallpaper of its own over the new one of all.
    removeDesktopWallpapers();
    const auto fit = Fit(m_ui->wallpaperPositionCombo->currentIndex());
    updateStringValue(settings, QLatin1String(wallpaperKey.name), QLatin1String(wallpaperKey.defaultText),
                      wallpaper);
    updateStringValue(settings, QLatin1String(positionKey.name), QLatin1String(positionKey.defaultText),
                      wordFromFit(fit));
    updateIntValue(settings, QLatin1String(periodKey.name), QLatin1String(periodKey.defaultText),
                   m_ui->SlideShowSpinBox->value());
    return true;
}

void WallpaperPage::selectWallpaperFile()
{
    QazFileDialog dialog(
        this, tr("Select wallpaper image file"),
        selectionStart(m_ui->wallpaperLineEdit->text(), screenSize()),
        tr("Images (*.png *.xpm *.jpg *.jpeg *.svg *.svgz *.PNG *.XPM *.JPG *.JPEG *.SVG *.SVGZ)"));
    dialog.setSidebarUrls(sidebarPlaces(dialog.sidebarUrls()));
    if (dialog.exec() == QDialog::Accepted)
        takeFile(dialog.selectedFiles().value(0));
}

/// Takes a file that the user has chosen or dropped.
void WallpaperPage::takeFile(const QString &chosen)
{
    const QString file = isSvg(chosen) ? convertedFile(chosen) : chosen;
    if (!QFileInfo::exists(file))
        return;
    if (file == m_ui->wallpaperLineEdit->text())
        slotWallpaperType(); // its content may be a new one
    else
        m_ui->wallpaperLineEdit->setText(file);
}

std::function<void()> WallpaperPage::taking(const QMimeData *data)
{
    if (const QColor color = colorOf(data); color.isValid())
        return [this, color] { takeColor(color); };
    const QString file = droppedFile(data,
                                     QStringLiteral("png xpm jpg jpeg svg svgz").split(QLatin1Char(' ')));
    if (file.isEmpty())
        return {};
    // When the drag has ended: a question would keep the program that it came from waiting.
    return [this, file] {
        QMetaObject::invokeMethod(
            this, [this, file] { takeFile(file); }, Qt::QueuedConnection);
    };
}

/// The PNG made of the SVG \a file; empty when the user declines.
QString WallpaperPage::convertedFile(const QString &file)
{
    if (!asks(tr("File conversion"),
              tr("Selected file '%1' is in svg format\nWould you like to convert it to png now?")
                  .arg(QFileInfo(file).completeBaseName())))
        return {};
    QString target = conversionTarget(file, screenSize());
    if (QFileInfo::exists(target)
        && !asks(tr("File exists"),
                 tr("File '%1' already exists\nWould you like to rewrite it now?").arg(target)))
        return {};
    const WaitCursor waitCursor;
    convertSvg(file, target, screenSize());
    return target;
}

bool WallpaperPage::asks(const QString &title, const QString &question)
{
    return showMessage(this, QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No)
           == QMessageBox::Yes;
}

void WallpaperPage::selectWallpaperColor()
{
    const QColor color = QColorDialog::getColor(m_color, this, QString());
    if (color.isValid())
        takeColor(color);
}

void WallpaperPage::takeColor(const QColor &color)
{
    m_color = color;
    m_ui->wallpaperLineEdit->setText(color.name());
}

void WallpaperPage::selectWallpaper(const QString &text)
{
    if (const QString path = localPath(text); !path.isEmpty()) {
        m_ui->wallpaperLineEdit->setText(path); // which draws the preview
        return;
    }
    if (isColorText(text)) {
        if (const QColor color(text); color.isValid())
            m_color = color;
        else
            m_ui->wallpaperLineEdit->setText(m_color.name());
    }
    m_ui->wallpaperPixmapLabel->setPixmap(QPixmap::fromImage(preview(text)));
}

QImage WallpaperPage::preview(const QString &text) const
{
    const QComboBox *position = m_ui->wallpaperPositionCombo;
    const PreviewLook look = {Fit(position->currentIndex()), m_color.isValid() ? m_color : QColor(Qt::black),
                              m_ui->wallpaperPixmapLabel->contentsRect().size(), screenSize()};
    if (text.isEmpty() || isColorText(text))
        return drawPreview({}, look);
    const QString kept = previewPath(position->currentText(), look.fill, text);
    QImage preview = previewOfFile(text, look, kept);
    if (preview.isNull())
        preview = previewOfFile(wallpaperNamed(text, look.screen), look, kept);
    return preview.isNull() ? drawPreview({}, look) : preview;
}

QSize WallpaperPage::screenSize() const
{
    return screen()->geometry().size();
}

void WallpaperPage::slotWallpaperType()
{
    selectWallpaper(m_ui->wallpaperLineEdit->text());
}

void WallpaperPage::slotCurrDesktop(int state)
{
    m_ui->wallpaperPositionCombo->setEnabled(state == Qt::Unchecked);
    m_ui->SlideShowSpinBox->setEnabled(state == Qt::Unchecked);
}

void WallpaperPage::clearWallpaper()
{
    m_ui->wallpaperLineEdit->clear();
}
