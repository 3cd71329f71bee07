#include "app/configdialog.h"

#include "app/pagetable.h"
#include "app/themefilewatcher.h"
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
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QX11Info>

namespace {

/// As large as its page in view: another one's size is no reason to scroll, and takes long to find.
class PageStack final : public SlidingStackedWidget
{
public:
    using SlidingStackedWidget::SlidingStackedWidget;
    QSize sizeHint() const override { return currentWidget()->sizeHint(); }
    QSize minimumSizeHint() const override { return currentWidget()->minimumSizeHint(); }
};

} // namespace

ConfigDialog::ConfigDialog(const QString &fileName, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , contentsWidget(new QListWidget(this))
    , m_pageArea(new QScrollArea(this))
    , pagesWidget(new PageStack(m_pageArea))
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
    setWindowIcon(contentsWidget->item(ThemeRow)->icon());
    setWindowIconText(title);
    QString name = QFileInfo(themeFile).fileName();
    name.replace(QLatin1String("[*]"),
                 QLatin1String("[*][*]")); // the place mark of the modified sign, as a name
    setWindowTitle(name.isEmpty() ? title : title + QLatin1String(" - ") + name + QLatin1String("[*]"));
    fileOpen();
    connectPages();
    connect(m_watcher, &ThemeFileWatcher::changedByOthers, this, &ConfigDialog::followThemeFile);
}

ConfigDialog::~ConfigDialog()
{
    storeSize();
    QWidgetList pages;
    for (const PageRow row : saveOrder)
        pages.append(pagesWidget->widget(row));
    qDeleteAll(pages);
}

void ConfigDialog::createPages()
{
    pagesWidget->setObjectName(QStringLiteral("pagesWidget"));
    for (const PageEntry &entry : pageEntries) {
        QWidget *page = entry.create(pagesWidget);
        page->layout()->setContentsMargins(9, 9, 9, 9);
        pagesWidget->addWidget(page);
    }
    m_pageArea->setObjectName(QStringLiteral("pageArea"));
    m_pageArea->setFrameShape(QFrame::NoFrame);
    m_pageArea->setFocusPolicy(Qt::NoFocus);
    m_pageArea->setWidgetResizable(true);
    m_pageArea->setWidget(pagesWidget);

    guardControls();
    // A focused button of a page would take Return away from OK.
    const QList<QPushButton *> pageButtons = pagesWidget->findChildren<QPushButton *>();
    for (QPushButton *button : pageButtons) {
        if (button->window() == this)
            button->setAutoDefault(false);
    }
}

void ConfigDialog::connectPages()
{
    for (int row = 0; row < contentsWidget->count(); ++row)
        pageEntries[row].connectEdits(pagesWidget->widget(row), this);
    connect(contentsWidget, &QListWidget::currentItemChanged, this, &ConfigDialog::changePage);
}

void ConfigDialog::changePage(QListWidgetItem *current, QListWidgetItem *previous)
{
    const int row = contentsWidget->row(current ? current : previous);
    if (qazInTabletMode()) {
        while (!slideFinished)
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents
                                            | QEventLoop::WaitForMoreEvents);
        slideFinished = false;
        pagesWidget->slideInIdx(row, pagesWidget->width() > pagesWidget->height()
                                         ? SlidingStackedWidget::BottomToTop
                                         : SlidingStackedWidget::LeftToRight);
    } else {
        pagesWidget->setCurrentIndex(row);
    }

    if (!pageEntries[row].isLoaded(pagesWidget->widget(row)))
        loadPage(row);
}

void ConfigDialog::loadPage(int row)
{
    m_watcher->runOwnChange([this, row] {
        QazSettings store(themeFile);
        store.sync(true);
        pageEntries[row].load(pagesWidget->widget(row), &store);
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
    const QTemporaryDir directory;
    const QString copy = directory.filePath(QFileInfo(themeFile).fileName());
    const FileContent file = readRegularFile(themeFile);
    if (QString reason; file.state == FileState::Unreadable || !replaceFile(copy, file.content, &reason))
        return;
    QazSettings store(copy);
    store.sync(true);
    for (int row = 0; row < contentsWidget->count(); ++row) {
        QWidget *page = pagesWidget->widget(row);
        if (pageEntries[row].isLoaded(page))
            pageEntries[row].load(page, &store);
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
        for (const PageRow row : saveOrder) {
            QWidget *page = pagesWidget->widget(row);
            if (pageEntries[row].isLoaded(page))
                pageEntries[row].save(page, &store);
        }
    });
    return true;
}

int ConfigDialog::requestToSave(bool canCancel)
{
    if (!m_buttonBox->button(QDialogButtonBox::Ok)->isEnabled())
        return QMessageBox::No;
    const int answer = QMessageBox::question(this, tr("Save ?"), tr("Save changes?"),
                                             QMessageBox::Yes | QMessageBox::No
                                                 | (canCancel ? QMessageBox::Cancel : QMessageBox::NoButton));
    if (answer == QMessageBox::Yes)
        fileSave();
    return answer;
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
        QX11Info::setAppTime(QX11Info::getTimestamp());
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
