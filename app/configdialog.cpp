#include "app/configdialog.h"

#include "app/wheelguard.h"
#include "fonts/fontpage.h"
#include "pages/effects/effectpage.h"
#include "pages/screensaver/screensaverpage.h"
#include "pages/sounds/soundpage.h"
#include "pages/theme/themepage.h"
#include "pages/wallpaper/wallpaperpage.h"
#include "platform/qazhelp.h"
#include "platform/qazinit.h"
#include "platform/qazsettings.h"
#include "platform/slidingstackedwidget.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QIcon>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>
#include <QX11Info>

#include <algorithm>
#include <iterator>

namespace {

/// Width of the widest label of the page list, with a margin.
int listItemWidth = 0;

constexpr int narrowestLabel = 64;

/// What the dialog needs of a page class.
struct PageType {
    QWidget *(*create)(QWidget *stack);
    void (*connectEdits)(QWidget *page, ConfigDialog *dialog);
    bool (*isLoaded)(const QWidget *page);
    void (*load)(QWidget *page, QazSettings *store);
    void (*save)(QWidget *page, QazSettings *store);
};

template<typename Page>
constexpr PageType typeOf = {
    [](QWidget *stack) -> QWidget * { return new Page(stack); },
    [](QWidget *page, ConfigDialog *dialog) {
        QObject::connect(static_cast<Page *>(page), &Page::changedSignal, dialog, &ConfigDialog::changedSlot);
    },
    [](const QWidget *page) { return static_cast<const Page *>(page)->loaded; },
    [](QWidget *page, QazSettings *store) { static_cast<Page *>(page)->loadValues(store); },
    [](QWidget *page, QazSettings *store) { static_cast<Page *>(page)->saveValues(store); }};

struct PageEntry {
    const char *iconName;
    const char *text;
    const PageType *type;
};

// In the order of the list's rows, and so of the stack.
// clang-format off
constexpr PageEntry pageEntries[] = {
    {"preferences-desktop-wallpaper",   QT_TRANSLATE_NOOP("ConfigDialog", "Wallpaper"),   &typeOf<WallpaperPage>},
    {"preferences-desktop-theme",       QT_TRANSLATE_NOOP("ConfigDialog", "Theme"),       &typeOf<ThemePage>},
    {"preferences-desktop-font",        QT_TRANSLATE_NOOP("ConfigDialog", "Fonts"),       &typeOf<FontPage>},
    {"preferences-desktop-screensaver", QT_TRANSLATE_NOOP("ConfigDialog", "Screensaver"), &typeOf<ScreensaverPage>},
    {"system-run",                      QT_TRANSLATE_NOOP("ConfigDialog", "Effects"),     &typeOf<EffectPage>},
    {"preferences-desktop-sound",       QT_TRANSLATE_NOOP("ConfigDialog", "Sounds"),      &typeOf<SoundPage>}};
// clang-format on

// The window manager is told in this order, in which the pages end, too.
constexpr const PageType *saveOrder[] = {&typeOf<WallpaperPage>, &typeOf<EffectPage>,
                                         &typeOf<ThemePage>,     &typeOf<FontPage>,
                                         &typeOf<SoundPage>,     &typeOf<ScreensaverPage>};
static_assert(std::size(saveOrder) == std::size(pageEntries));

/// The row of the list, and of the stack, that a page of \a type has.
int rowOf(const PageType *type)
{
    const auto *const entry = std::find_if(std::begin(pageEntries), std::end(pageEntries),
                                           [type](const PageEntry &each) { return each.type == type; });
    return int(entry - std::begin(pageEntries));
}

constexpr int iconExtent = 64;
constexpr int defaultWidth = 800;
constexpr int largestExtent = 32767; // an X window can't be larger

int gridRowHeight(const QFontMetrics &metrics)
{
    return metrics.height() + iconExtent + 10;
}

int storedExtent(const QSettings &settings, const QString &key, int defaultExtent)
{
    const int extent = settings.value(key, defaultExtent).toInt();
    return extent > 0 && extent <= largestExtent ? extent : defaultExtent;
}

/// A file name may itself hold the place mark of the modified sign.
QString titleText(const QString &fileName)
{
    return QString(fileName).replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

} // namespace

ConfigDialog::ConfigDialog(const QString &fileName, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , contentsWidget(new QListWidget(this))
    , pagesWidget(new SlidingStackedWidget(this))
    , themeFile(fileName)
{
    fillContents();
    connect(pagesWidget, &SlidingStackedWidget::animationFinished, this, &ConfigDialog::animationDone);
    createPages();
    contentsWidget->setCurrentRow(0);
    createButtons();
    createLayout();
    restoreSize();

    const QString title = tr("Qaz Theme Editor");
    setWindowTitle(title);
    setWindowIcon(QIcon::fromTheme(QStringLiteral("preferences-desktop-theme")));
    setWindowIconText(title);
    const QString name = QFileInfo(themeFile).fileName();
    if (fileOpen() && !name.isEmpty())
        setWindowTitle(title + QLatin1String(" - ") + titleText(name) + QLatin1String("[*]"));
    connectPages();
}

ConfigDialog::~ConfigDialog()
{
    storeSize();
    QWidgetList pages;
    for (const PageType *type : saveOrder)
        pages.append(pagesWidget->widget(rowOf(type)));
    qDeleteAll(pages);
}

void ConfigDialog::fillContents()
{
    contentsWidget->setObjectName(QStringLiteral("contentsWidget"));
    contentsWidget->setAccessibleName(tr("Pages"));
    QFont font = contentsWidget->font();
    font.setWeight(QFont::Bold);
    contentsWidget->setFont(font);
    listItemWidth = narrowestLabel;
    const QFontMetrics metrics(font);
    for (const PageEntry &entry : pageEntries) {
        auto *item = new QListWidgetItem(QIcon::fromTheme(QLatin1String(entry.iconName), QIcon()),
                                         tr(entry.text), contentsWidget);
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        item->setTextAlignment(Qt::AlignHCenter);
        listItemWidth = qMax(listItemWidth, metrics.horizontalAdvance(item->text()));
    }
    listItemWidth += listItemWidth / 4;

    contentsWidget->setGridSize(QSize(listItemWidth, gridRowHeight(metrics)));
    contentsWidget->setViewMode(QListView::IconMode);
    contentsWidget->setIconSize(QSize(iconExtent, iconExtent));
    contentsWidget->setMovement(QListView::Static);
    contentsWidget->setMinimumWidth(listItemWidth + 20);
    contentsWidget->setMaximumWidth(listItemWidth + 20);
    // A vertical scroll bar of a high resolution takes more than these 20 pixels; the labels have a margin.
    contentsWidget->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ConfigDialog::createPages()
{
    pagesWidget->setObjectName(QStringLiteral("pagesWidget"));
    for (const PageEntry &entry : pageEntries)
        pagesWidget->addWidget(entry.type->create(pagesWidget));

    auto *wheelGuard = new WheelGuard(this);
    wheelGuard->guard(pagesWidget);
    // A focused button of a page would take Return away from OK.
    const QList<QPushButton *> pageButtons = pagesWidget->findChildren<QPushButton *>();
    for (QPushButton *button : pageButtons) {
        if (button->window() == this)
            button->setAutoDefault(false);
    }
}

void ConfigDialog::createButtons()
{
    // Created after the pages: the order of creation is that of the Tab key.
    m_buttonBox = new QDialogButtonBox(this);
    m_buttonBox->setObjectName(QStringLiteral("buttonBox"));
    m_buttonBox->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Close | QDialogButtonBox::Help
                                    | QDialogButtonBox::Apply);
    QPushButton *ok = m_buttonBox->button(QDialogButtonBox::Ok);
    ok->setDefault(true);
    ok->setEnabled(false);
    QPushButton *apply = m_buttonBox->button(QDialogButtonBox::Apply);
    apply->setEnabled(false);
    m_buttonBox->button(QDialogButtonBox::Help)->setShortcut(QKeySequence(QKeySequence::HelpContents));
    QPushButton *restore = m_buttonBox->addButton(tr("Restore..."), QDialogButtonBox::ResetRole);
    restore->setObjectName(QStringLiteral("restoreButton"));
    restore->setToolTip(tr("Restore all settings.\n")
                        + tr("All changes will be lost and restart session will be required."));

    connect(m_buttonBox, &QDialogButtonBox::accepted, this, &ConfigDialog::okSlot);
    connect(m_buttonBox, &QDialogButtonBox::rejected, this, &ConfigDialog::rejectSlot);
    connect(m_buttonBox, &QDialogButtonBox::helpRequested, this, &ConfigDialog::helpSlot);
    connect(apply, &QPushButton::clicked, this, &ConfigDialog::applySlot);
    connect(restore, &QPushButton::clicked, this, &ConfigDialog::restoreSlot);
}

void ConfigDialog::createLayout()
{
    auto *rows = new QVBoxLayout(this);
    auto *contents = new QHBoxLayout;
    contents->addWidget(contentsWidget, 0);
    contents->addWidget(pagesWidget, 1);
    rows->addLayout(contents);
    rows->addSpacing(12);
    rows->addWidget(m_buttonBox);
}

void ConfigDialog::restoreSize()
{
    const QSettings settings;
    // Seven rows of the list: its six entries and one to spare.
    const int defaultHeight = gridRowHeight(QFontMetrics(contentsWidget->font())) * 7;
    const int height = storedExtent(settings, QStringLiteral("height"), defaultHeight);
    resize(storedExtent(settings, QStringLiteral("/width"), defaultWidth), height);
}

void ConfigDialog::storeSize() const
{
    QSettings settings;
    settings.setValue(QStringLiteral("/width"), width());
    settings.setValue(QStringLiteral("/height"), height());
}

void ConfigDialog::connectPages()
{
    for (const PageEntry &entry : pageEntries)
        entry.type->connectEdits(pagesWidget->widget(rowOf(entry.type)), this);
    connect(contentsWidget, &QListWidget::currentItemChanged, this, &ConfigDialog::changePage);
}

void ConfigDialog::changePage(QListWidgetItem *current, QListWidgetItem *previous)
{
    const QListWidgetItem *item = current ? current : previous;
    if (!item)
        return;
    const int row = contentsWidget->row(item);
    if (qazInTabletMode()) {
        while (!slideFinished)
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents
                                            | QEventLoop::WaitForMoreEvents);
        slideFinished = false;
        const QRect place = pagesWidget->geometry();
        const bool isWide = place.right() - place.left() > place.bottom() - place.top();
        pagesWidget->slideInIdx(row, isWide ? SlidingStackedWidget::BottomToTop
                                            : SlidingStackedWidget::LeftToRight);
    } else {
        pagesWidget->setCurrentIndex(row);
    }

    if (!pageEntries[row].type->isLoaded(pagesWidget->widget(row)))
        loadPage(row);
}

void ConfigDialog::loadPage(int row)
{
    QazSettings store(themeFile);
    store.sync(true);
    pageEntries[row].type->load(pagesWidget->widget(row), &store);
}

QDialogButtonBox *ConfigDialog::buttonBox()
{
    return m_buttonBox;
}

bool ConfigDialog::fileOpen()
{
    loadPage(0);
    return true;
}

bool ConfigDialog::fileSave()
{
    QazSettings store(themeFile);
    store.sync(true);
    for (const PageType *type : saveOrder) {
        QWidget *page = pagesWidget->widget(rowOf(type));
        if (type->isLoaded(page))
            type->save(page, &store);
    }
    return true;
}

int ConfigDialog::requestToSave(bool canCancel)
{
    if (!m_buttonBox->button(QDialogButtonBox::Ok)->isEnabled())
        return QMessageBox::No;
    const int answer = QMessageBox::information(this, tr("Save ?"), tr("Save changes?"),
                                                int(QMessageBox::Yes), int(QMessageBox::No),
                                                canCancel ? int(QMessageBox::Cancel) : 0);
    if (answer == QMessageBox::Yes)
        fileSave();
    return answer == QMessageBox::Yes || answer == QMessageBox::Cancel ? answer : int(QMessageBox::No);
}

void ConfigDialog::helpSlot()
{
    qazHelpShow(qazHelpLookForWidget());
}

void ConfigDialog::okSlot()
{
    applySlot();
    close();
}

void ConfigDialog::applySlot()
{
    fileSave();
    setEdited(false);
}

void ConfigDialog::rejectSlot()
{
    if (requestToSave(true) != QMessageBox::Cancel)
        QCoreApplication::quit();
}

void ConfigDialog::changedSlot()
{
    setEdited(true);
}

void ConfigDialog::setEdited(bool edited)
{
    m_buttonBox->button(QDialogButtonBox::Ok)->setEnabled(edited);
    m_buttonBox->button(QDialogButtonBox::Apply)->setEnabled(edited);
    setWindowModified(edited);
}

bool ConfigDialog::messageReceived(const QString & /*message*/)
{
    if (isMinimized())
        showNormal();
    else
        show();
    // A window manager refuses the focus to a window that the user left long ago.
    if (QX11Info::isPlatformX11())
        QX11Info::setAppUserTime(QX11Info::getTimestamp());
    raise();
    activateWindow();
    return true;
}

void ConfigDialog::animationDone()
{
    slideFinished = true;
}

void ConfigDialog::reject()
{
    close();
}

void ConfigDialog::closeEvent(QCloseEvent *event)
{
    event->setAccepted(requestToSave(true) != QMessageBox::Cancel);
}
