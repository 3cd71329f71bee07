#include "platform/helpwindow.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QToolButton>

namespace {

constexpr int margin = 16;
constexpr int smallestZoom = -6;
constexpr int largestZoom = 20;

QString translated(const char *text)
{
    return QCoreApplication::translate("Help", text);
}

template<typename Action>
void onKey(QWidget *window, const QKeySequence &key, Action action)
{
    QObject::connect(new QShortcut(key, window), &QShortcut::activated, window, action);
}

} // namespace

HelpWindow::HelpWindow()
    : m_bar(new QWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(translated(QT_TRANSLATE_NOOP("Help", "Qaz Theme Editor Help")));
    setWindowIcon(QIcon::fromTheme(QStringLiteral("help-contents"),
                                   QIcon(QStringLiteral(":/fallback/help-contents.svg"))));
    setOpenExternalLinks(false);
    document()->setDocumentMargin(margin);
    createBar();
    connect(this, &QTextBrowser::sourceChanged, this, &HelpWindow::fitPictures);

    for (const QKeySequence::StandardKey key : {QKeySequence::Cancel, QKeySequence::Close})
        onKey(this, key, [this] { close(); });
    for (const QKeySequence &key :
         {QKeySequence(Qt::CTRL + Qt::Key_Plus), QKeySequence(Qt::CTRL + Qt::Key_Equal)})
        onKey(this, key, [this] { zoom(1); });
    onKey(this, QKeySequence(Qt::CTRL + Qt::Key_Minus), [this] { zoom(-1); });
    onKey(this, QKeySequence(Qt::CTRL + Qt::Key_0), [this] { zoom(-m_steps); });
    onKey(this, QKeySequence::Find, [this] {
        m_text->setFocus();
        m_text->selectAll();
    });
    onKey(this, QKeySequence::FindNext, [this] { search(); });
    onKey(this, QKeySequence::FindPrevious, [this] { search(QTextDocument::FindBackward); });
    resize(760, 640);
}

void HelpWindow::createBar()
{
    const auto addButton = [this](const char *name, const char *text, Qt::ArrowType arrow) {
        auto *button = new QToolButton(m_bar);
        button->setObjectName(QLatin1String(name));
        button->setText(translated(text));
        button->setToolTip(translated(text));
        button->setArrowType(arrow);
        m_bar->layout()->addWidget(button);
        return button;
    };
    auto *row = new QHBoxLayout(m_bar);
    m_bar->setAutoFillBackground(true);
    auto *back = addButton("backButton", QT_TRANSLATE_NOOP("Help", "Back"), Qt::LeftArrow);
    auto *forward = addButton("forwardButton", QT_TRANSLATE_NOOP("Help", "Forward"), Qt::RightArrow);
    auto *label = new QLabel(translated(QT_TRANSLATE_NOOP("Help", "Search:")), m_bar);
    row->addWidget(label);
    m_text = new QLineEdit(m_bar);
    m_text->setObjectName(QStringLiteral("searchLineEdit"));
    label->setBuddy(m_text);
    row->addWidget(m_text);
    auto *previous = addButton("previousButton", QT_TRANSLATE_NOOP("Help", "Previous"), Qt::UpArrow);
    auto *next = addButton("nextButton", QT_TRANSLATE_NOOP("Help", "Next"), Qt::DownArrow);
    m_result = new QLabel(m_bar);
    m_result->setObjectName(QStringLiteral("resultLabel"));
    row->addWidget(m_result);

    back->setEnabled(false);
    forward->setEnabled(false);
    connect(this, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(this, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(back, &QToolButton::clicked, this, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, this, &QTextBrowser::forward);
    connect(previous, &QToolButton::clicked, this, [this] { search(QTextDocument::FindBackward); });
    connect(next, &QToolButton::clicked, this, [this] { search(); });
    // A key that the field leaves over goes to the text, which follows the link that was found.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(key, m_text, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
                [this] { search(); });
    connect(m_text, &QLineEdit::textChanged, m_result, &QLabel::clear);
}

void HelpWindow::search(QTextDocument::FindFlags flags)
{
    const QString text = m_text->text();
    bool found = text.isEmpty() || find(text, flags);
    if (!found) {
        const QTextCursor before = textCursor();
        moveCursor(flags & QTextDocument::FindBackward ? QTextCursor::End : QTextCursor::Start);
        found = find(text, flags);
        if (!found)
            setTextCursor(before);
    }
    m_result->setText(found ? QString() : translated(QT_TRANSLATE_NOOP("Help", "Not found")));
}

void HelpWindow::zoom(int steps)
{
    const int before = m_steps;
    m_steps = qBound(smallestZoom, m_steps + steps, largestZoom);
    zoomIn(m_steps - before);
}

void HelpWindow::resizeEvent(QResizeEvent *event)
{
    const int height = m_bar->sizeHint().height();
    setViewportMargins(0, 0, 0, height);
    QTextBrowser::resizeEvent(event);
    m_bar->setGeometry(frameWidth(), this->height() - frameWidth() - height, width() - 2 * frameWidth(),
                       height);
    fitPictures();
}

void HelpWindow::fitPictures()
{
    // Room for the scroll bar even while there is none: its coming must not change what made it come.
    const int room = width() - 2 * (frameWidth() + margin) - verticalScrollBar()->sizeHint().width();
    QList<QPair<QTextCursor, QTextImageFormat>> changes;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            QTextImageFormat format = part.fragment().charFormat().toImageFormat();
            if (!format.isValid())
                continue;
            const QVariant picture = document()->resource(QTextDocument::ImageResource, QUrl(format.name()));
            const int wanted = qMin(room, picture.value<QImage>().width());
            if (wanted <= 0 || wanted == int(format.width()))
                continue;
            QTextCursor cursor(document());
            cursor.setPosition(part.fragment().position());
            cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, part.fragment().length());
            format.setWidth(wanted);
            changes.append({cursor, format});
        }
    }
    for (auto &[cursor, format] : changes)
        cursor.setCharFormat(format);
}
