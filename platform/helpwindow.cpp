#include "platform/helpwindow.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QToolButton>

#include <functional>

constexpr int smallestZoom = -6;
constexpr int largestZoom = 20;

HelpWindow::HelpWindow()
    : m_bar(new QWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(tr("Qaz Theme Editor Help"));
    setWindowIcon(QIcon::fromTheme(QStringLiteral("help-contents"),
                                   QIcon(QStringLiteral(":/fallback/help-contents.svg"))));
    document()->setDocumentMargin(16);
    createBar();
    connect(this, &QTextBrowser::sourceChanged, this, &HelpWindow::fitPictures);

    const std::pair<QKeySequence, std::function<void()>> keys[] = {
        {QKeySequence::Cancel, [this] { close(); }},
        {QKeySequence::Close, [this] { close(); }},
        {Qt::CTRL + Qt::Key_Plus, [this] { zoom(1); }},
        {Qt::CTRL + Qt::Key_Equal, [this] { zoom(1); }},
        {Qt::CTRL + Qt::Key_Minus, [this] { zoom(-1); }},
        {Qt::CTRL + Qt::Key_0, [this] { zoom(-m_steps); }},
        {QKeySequence::Find, [this] { m_text->setFocus(Qt::ShortcutFocusReason); }},
        {QKeySequence::FindNext, [this] { search(); }},
        {QKeySequence::FindPrevious, [this] { search(QTextDocument::FindBackward); }}};
    for (const auto &[key, action] : keys)
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    resize(760, 640);
}

void HelpWindow::createBar()
{
    const auto addButton = [this](const char *name, const QString &text, Qt::ArrowType arrow) {
        auto *button = new QToolButton(m_bar);
        button->setObjectName(QLatin1String(name));
        button->setText(text);
        button->setToolTip(text);
        button->setArrowType(arrow);
        m_bar->layout()->addWidget(button);
        return button;
    };
    auto *row = new QHBoxLayout(m_bar);
    auto *back = addButton("backButton", tr("Back"), Qt::LeftArrow);
    auto *forward = addButton("forwardButton", tr("Forward"), Qt::RightArrow);
    auto *label = new QLabel(tr("Search:"), m_bar);
    row->addWidget(label);
    m_text = new QLineEdit(m_bar);
    m_text->setObjectName(QStringLiteral("searchLineEdit"));
    label->setBuddy(m_text);
    row->addWidget(m_text);
    auto *previous = addButton("previousButton", tr("Previous"), Qt::UpArrow);
    auto *next = addButton("nextButton", tr("Next"), Qt::DownArrow);
    m_result = new QLabel(m_bar);
    m_result->setObjectName(QStringLiteral("resultLabel"));
    row->addWidget(m_result);

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
    m_result->setText(found ? QString() : tr("Not found"));
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
    QRect place = contentsRect();
    place.setTop(place.bottom() - height + 1);
    m_bar->setGeometry(place);
    fitPictures();
}

void HelpWindow::fitPictures()
{
    // Room for the scroll bar even while there is none: its coming must not change what made it come.
    const int room = contentsRect().width() - int(2 * document()->documentMargin())
                     - verticalScrollBar()->sizeHint().width();
    QList<QPair<QTextCursor, QTextImageFormat>> changes;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            QTextImageFormat format = part.fragment().charFormat().toImageFormat();
            if (!format.isValid())
                continue;
            const QVariant picture = document()->resource(QTextDocument::ImageResource, QUrl(format.name()));
            const int wanted = qMin(room, picture.value<QImage>().width());
            if (wanted == int(format.width()))
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
