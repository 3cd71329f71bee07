// What the window looks like around its pages.

#include "app/configdialog.h"

#include "app/pagetable.h"
#include "platform/slidingstackedwidget.h"
#include "settings/inifile.h"
#include "settings/renderingstore.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QIcon>
#include <QKeyEvent>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

constexpr int iconExtent = 64;
constexpr int largestExtent = 32767; // an X window can't be larger
// What Qt, too, takes for the frame of a window that is not shown yet.
constexpr QSize frame(10, 40);

int gridRowHeight(const QFontMetrics &metrics)
{
    return metrics.height() + iconExtent + 10;
}

/// The icon of the theme in use, else the compiled-in one: a theme may lack it, and be no theme of ours. Making that one
/// loads the engine that draws it.
QIcon iconNamed(const QString &name)
{
    const QIcon icon = QIcon::fromTheme(name);
    return icon.isNull() ? QIcon(QStringLiteral(":/fallback/%1.svg").arg(name)) : icon;
}

/// 0 when none is stored that can be shown.
int storedExtent(const char *key)
{
    const int extent = iniValue(ownSettingsFile(), QLatin1String(key)).toInt();
    return extent <= largestExtent ? qMax(0, extent) : 0;
}

} // namespace

void ConfigDialog::fillContents()
{
    contentsWidget->setObjectName(QStringLiteral("contentsWidget"));
    contentsWidget->setAccessibleName(tr("Pages"));
    QFont font = contentsWidget->font();
    font.setWeight(QFont::Bold);
    contentsWidget->setFont(font);
    int listItemWidth = 64;
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
    contentsWidget->setFixedWidth(listItemWidth + 20);
    // A vertical scroll bar of a high resolution takes more than these 20 pixels; the labels have a margin.
    contentsWidget->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ConfigDialog::createButtons()
{
    // Created after the pages: the order of creation is that of the Tab key.
    m_buttonBox = new QDialogButtonBox(this);
    m_buttonBox->setObjectName(QStringLiteral("buttonBox"));
    m_buttonBox->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Close | QDialogButtonBox::Help
                                    | QDialogButtonBox::Apply);
    QPushButton *apply = m_buttonBox->button(QDialogButtonBox::Apply);
    apply->setText(tr("Apply")); // which Qt's catalogues don't call as desktops do
    setEdited(false);
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
        add(QKeySequence(Qt::ALT + (Qt::Key_1 + i)), [i] { return i; });
    add(QKeySequence(Qt::CTRL + Qt::Key_PageUp), [=] { return qMax(0, contentsWidget->currentRow() - 1); });
    add(QKeySequence(Qt::CTRL + Qt::Key_PageDown),
        [=] { return qMin(rows - 1, contentsWidget->currentRow() + 1); });
}

void ConfigDialog::restoreSize()
{
    m_wantedSize = {storedExtent("width"), storedExtent("height")};
    if (m_wantedSize.isEmpty()) {
        const QSize usual = usualSize();
        m_wantedSize = {m_wantedSize.width() ? m_wantedSize.width() : usual.width(),
                        m_wantedSize.height() ? m_wantedSize.height() : usual.height()};
    }
    resize(m_wantedSize.boundedTo(screen()->availableSize() - frame));
    m_firstSize = size();
}

QSize ConfigDialog::usualSize()
{
    // Seven rows of the list: its six entries and one to spare. All pages are seen whole.
    const QSize usual(800, gridRowHeight(QFontMetrics(contentsWidget->font())) * 7);
    QSize largestPage;
    for (int i = 0; i < pagesWidget->count(); ++i)
        largestPage = largestPage.expandedTo(pagesWidget->widget(i)->minimumSizeHint());
    m_pageArea->setMinimumSize(largestPage);
    const QSize needed = layout()->minimumSize();
    m_pageArea->setMinimumSize(0, 0);
    return usual.expandedTo(needed);
}

void ConfigDialog::storeSize() const
{
    // A small screen's limits are not the user's wish.
    const int wide = width() == m_firstSize.width() ? m_wantedSize.width() : width();
    const int high = height() == m_firstSize.height() ? m_wantedSize.height() : height();
    writeIniValues(ownSettingsFile(), {},
                   {{QStringLiteral("width"), wide}, {QStringLiteral("height"), high}});
}

void ConfigDialog::guardControls()
{
    const QList<QWidget *> children = pagesWidget->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (!qobject_cast<QAbstractSpinBox *>(child) && !qobject_cast<QComboBox *>(child))
            continue;
        child->installEventFilter(this);
        if (child->focusPolicy() == Qt::WheelFocus)
            child->setFocusPolicy(Qt::StrongFocus);
    }
}

bool ConfigDialog::eventFilter(QObject *watched, QEvent *event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key()
                                                      : Qt::Key_unknown;
    // On Return the box would announce its value as changed, even if it is as before.
    auto *spinBox = qobject_cast<QAbstractSpinBox *>(watched);
    if (spinBox && (key == Qt::Key_Return || key == Qt::Key_Enter))
        spinBox->interpretText();
    else if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return QDialog::eventFilter(watched, event);
    // Not accepted, so that whatever is around the widget still scrolls, or presses its default button.
    event->ignore();
    return true;
}
