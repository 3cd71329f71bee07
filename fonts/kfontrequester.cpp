#include "fonts/kfontrequester.h"

#include "fonts/nearestfont.h"
#include "settings/rolefonttext.h"

#include <QFontDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

namespace {

/// Shows one line of text in a font of any size, elided where there is no room: a long family name or a huge font
/// never forces the window to grow. Its text() stays whole.
class PreviewLabel : public QLabel
{
    // No Q_OBJECT: to style sheets and assistive tools it is a plain QLabel.
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override
    {
        const QFontMetrics ordinary(QGuiApplication::font());
        const QSize least(ordinary.averageCharWidth() * 10, ordinary.height() * 2);
        return QLabel::minimumSizeHint().boundedTo(least);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        drawFrame(&painter);
        const int indent = QFontMetrics(QGuiApplication::font()).horizontalAdvance(QLatin1Char('x')) / 2;
        const QRect area = contentsRect().adjusted(indent, 0, -indent, 0);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, area.width());
        const Qt::Alignment place = QStyle::visualAlignment(layoutDirection(),
                                                            Qt::AlignLeft | Qt::AlignVCenter);
        style()->drawItemText(&painter, area, int(place), palette(), isEnabled(), shown, foregroundRole());
    }
};

} // namespace

class KFontRequesterPrivate : public QObject
{
public:
    KFontRequesterPrivate(KFontRequester *requester, bool onlyFixed);
    void select(const QFont &font);

    KFontRequester *const q;
    bool fixedOnly;
    QLabel *const sampleLabel;
    QPushButton *const button;
    QFont selectedFont;
};

KFontRequesterPrivate::KFontRequesterPrivate(KFontRequester *requester, bool onlyFixed)
    : q(requester)
    , fixedOnly(onlyFixed)
    , sampleLabel(new PreviewLabel(q))
    , button(new QPushButton(KFontRequester::tr("..."), q))
{
    auto *layout = new QHBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    sampleLabel->setObjectName(QStringLiteral("previewLabel"));
    sampleLabel->setTextFormat(Qt::PlainText); // family names are anybody's text
    sampleLabel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    button->setObjectName(QStringLiteral("chooseButton"));
    button->setToolTip(KFontRequester::tr("Click to select a font"));
    layout->addWidget(sampleLabel, 1);
    // Aligned, its fixed height does not bind the preview's.
    layout->addWidget(button, 0, Qt::AlignVCenter);
    q->setFocusProxy(button);
}

void KFontRequesterPrivate::select(const QFont &font)
{
    selectedFont = font;
    sampleLabel->setFont(font);
    sampleLabel->setText(
        KFontRequester::tr("%1 %2").arg(familyDisplayName(font.family()), QString::number(font.pointSize())));
    emit q->fontSelected(font);
}

KFontRequester::KFontRequester(QWidget *parent, bool onlyFixed)
    : QWidget(parent)
    , d(std::make_unique<KFontRequesterPrivate>(this, onlyFixed))
{
    connect(d->button, &QPushButton::clicked, this, &KFontRequester::_k_buttonClicked);
}

KFontRequester::~KFontRequester() = default;

QFont KFontRequester::font() const
{
    return d->selectedFont;
}

bool KFontRequester::isFixedOnly() const
{
    return d->fixedOnly;
}

void KFontRequester::setFont(const QFont &font, bool onlyFixed)
{
    d->fixedOnly = onlyFixed;
    d->select(nearestInstalledFont(font));
}

void KFontRequester::setTitle(const QString &title)
{
    d->sampleLabel->setToolTip(tr("Preview of the \"%1\" font").arg(title));
    d->sampleLabel->setWhatsThis(
        tr("This is a preview of the \"%1\" font. You can change it by clicking the \"...\" button.")
            .arg(title));
    d->button->setAccessibleName(tr("Select the \"%1\" font").arg(title));
}

void KFontRequester::_k_buttonClicked()
{
    bool accepted = false;
    const QFont chosen = QFontDialog::getFont(&accepted, d->selectedFont, window());
    if (accepted)
        d->select(chosen);
}
