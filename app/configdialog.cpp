#include "app/configdialog.h"

#include "app/controlguard.h"
#include "app/pagetable.h"
#include "app/themefilewatcher.h"
#include "app/windowsize.h"
#include "base/atomicfile.h"
#include "platform/qazhelp.h"
#include "platform/qazinit.h"
#include "platform/qazsettings.h"
#include "platform/slidingstackedwidget.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QIcon>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTemporaryFile>
#include <QVBoxLayout>
#include <QX11Info>

namespace {

/// Width of the widest label of the page list, with a margin.
int listItemWidth = 0;

constexpr int narrowestLabel = 64;

constexpr int iconExtent = 64;
constexpr int defaultWidth = 800;
constexpr int pageMargin = 9;

int gridRowHeight(const QFontMetrics &metrics)
{
    return metrics.height() + iconExtent + 10;
}

/// The icon of the theme in use, else the compiled-in one: a theme may lack it, and be no theme of ours.
QIcon iconNamed(const QString &name)
{
    return QIcon::fromTheme(name, QIcon(QStringLiteral(":/fallback/%1.svg").arg(name)));
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
    , m_pageArea(new QScrollArea(this))
    , pagesWidget(new SlidingStackedWidget(m_pageArea))
    , themeFile(fileName)
    , m_watcher(new ThemeFileWatcher(fileName, this))
{
    fillContents();
    connect(pagesWidget, &SlidingStackedWidget::animationFinished, this, &ConfigDialog::animationDone);
    createPages();
    contentsWidget->setCurrentRow(0);
    createButtons();
    createLayout();
    createShortcuts();
    restoreSize();

    const QString title = tr("Qaz Theme Editor");
    setWindowTitle(title);
    setWindowIcon(iconNamed(QStringLiteral("preferences-desktop-theme")));
    setWindowIconText(title);
    const QString name = QFileInfo(themeFile).fileName();
    if (fileOpen() && !name.isEmpty())
        setWindowTitle(title + QLatin1String(" - ") + titleText(name) + QLatin1String("[*]"));
    connectPages();
    connect(m_watcher, &ThemeFileWatcher::changedByOthers, this, &ConfigDialog::followThemeFile);
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
        auto *item = new QListWidgetItem(iconNamed(QLatin1String(entry.iconName)), tr(entry.text),
                                         contentsWidget);
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
    const QMargins margins(pageMargin, pageMargin, pageMargin, pageMargin);
    for (const PageEntry &entry : pageEntries) {
        QWidget *page = entry.type->create(pagesWidget);
        page->layout()->setContentsMargins(margins);
        pagesWidget->addWidget(page);
    }
    connect(pagesWidget, &QStackedWidget::currentChanged, this, &ConfigDialog::scrollOnlyForPageInView);
    m_pageArea->setObjectName(QStringLiteral("pageArea"));
    m_pageArea->setFrameShape(QFrame::NoFrame);
    m_pageArea->setFocusPolicy(Qt::NoFocus);
    m_pageArea->setWidgetResizable(true);
    m_pageArea->setWidget(pagesWidget);

    auto *controlGuard = new ControlGuard(this);
    controlGuard->guard(pagesWidget);
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
    apply->setText(tr("Apply")); // which Qt's catalogues don't call as desktops do
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
    contents->addWidget(m_pageArea, 1);
    rows->addLayout(contents);
    rows->addSpacing(12);
    rows->addWidget(m_buttonBox);
}

void ConfigDialog::createShortcuts()
{
    const auto add = [this](const QKeySequence &key, auto row) {
        connect(new QShortcut(key, this), &QShortcut::activated, contentsWidget,
                [this, row] { contentsWidget->setCurrentRow(row()); });
    };
    const int rows = contentsWidget->count();
    for (int i = 0; i < rows; ++i)
        add(QKeySequence(Qt::ALT | Qt::Key(Qt::Key_1 + i)), [i] { return i; });
    add(QKeySequence(Qt::CTRL | Qt::Key_PageUp), [=] { return qMax(0, contentsWidget->currentRow() - 1); });
    add(QKeySequence(Qt::CTRL | Qt::Key_PageDown),
        [=] { return qMin(rows - 1, contentsWidget->currentRow() + 1); });
}

void ConfigDialog::restoreSize()
{
    // Seven rows of the list: its six entries and one to spare. All pages are seen whole.
    const QSize usual(defaultWidth, gridRowHeight(QFontMetrics(contentsWidget->font())) * 7);
    m_pageArea->setMinimumSize(pagesWidget->minimumSizeHint());
    m_wantedSize = storedWindowSize(usual.expandedTo(layout()->minimumSize()));
    m_pageArea->setMinimumSize(0, 0);
    scrollOnlyForPageInView();
    resize(sizeOnScreen(m_wantedSize, this));
    m_firstSize = size();
}

void ConfigDialog::scrollOnlyForPageInView()
{
    for (int i = 0; i < pagesWidget->count(); ++i) {
        const auto policy = i == pagesWidget->currentIndex() ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        pagesWidget->widget(i)->setSizePolicy(policy, policy);
    }
}

void ConfigDialog::storeSize() const
{
    // A small screen's limits are not the user's wish.
    storeWindowSize({width() == m_firstSize.width() ? m_wantedSize.width() : width(),
                     height() == m_firstSize.height() ? m_wantedSize.height() : height()});
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
    m_watcher->runOwnChange([this, row] {
        QazSettings store(themeFile);
        store.sync(true);
        pageEntries[row].type->load(pagesWidget->widget(row), &store);
    });
}

void ConfigDialog::followThemeFile()
{
    if (isWindowModified())
        return;
    if (QApplication::activeModalWidget()) // what it was asked for is about the values in view
        return m_watcher->lookAgain();
    m_watcher->accept();
    // A page may set values while it loads. Those must not replace what the other program has just written.
    QTemporaryFile copy;
    const FileContent file = readRegularFile(themeFile);
    if (file.state == FileState::Unreadable || !copy.open() || copy.write(file.content) != file.content.size()
        || !copy.flush())
        return;
    QazSettings store(copy.fileName());
    store.sync(true);
    for (const PageEntry &entry : pageEntries) {
        QWidget *page = pagesWidget->widget(rowOf(entry.type));
        if (entry.type->isLoaded(page))
            entry.type->load(page, &store);
    }
    setEdited(false); // the pages take what they are filled with for edits
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
    m_watcher->runOwnChange([this] {
        QazSettings store(themeFile);
        store.sync(true);
        for (const PageType *type : saveOrder) {
            QWidget *page = pagesWidget->widget(rowOf(type));
            if (type->isLoaded(page))
                type->save(page, &store);
        }
    });
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
    // A page that could not be saved tells that it is edited again, and closing asks.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
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
    QWidget *modal = QApplication::activeModalWidget();
    for (QWidget *window : {static_cast<QWidget *>(this), modal ? modal : this}) {
        window->raise();
        window->activateWindow();
    }
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
