#include "widgets/AnchoredBarButton.h"

#include "widgets/PixelSnapping.h"
#include "widgets/VRLetterpress.h"

#include <QAction>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace {

constexpr int buttonWidth = 40;
constexpr int buttonHeight = 38;
/// The size of a glyph's font, in points of length.
constexpr int glyphSize = 18;
constexpr float glyphAlpha = 0.75F;
constexpr double letterpressAlpha = 0.75;

/// The text of a menu item without what only a menu needs.
QString titleOfAction(const QAction& action)
{
    static const QRegularExpression mnemonic(QStringLiteral("\\s*\\(&.\\)|&(.)"));
    static const QRegularExpression ellipsis(QStringLiteral("\\s*(\\.\\.\\.|\u2026)$"));
    auto title = action.text();
    return title.replace(mnemonic, QStringLiteral("\\1")).remove(ellipsis);
}

QString toolTipOfAction(const QAction& action)
{
    const auto shortcut = action.shortcut().toString(QKeySequence::NativeText);
    return shortcut.isEmpty() ? action.toolTip()
                              : AnchoredBarButton::tr("%1 (%2)", "what it does, and its key")
                                    .arg(action.toolTip(), shortcut);
}

QFont glyphFont(const QFont& base, const QString& glyph)
{
    QFont font = base;
    font.setPixelSize(glyphSize);
    // A letter is a sign here, not a word, and looks like one: an "i" as on every notice board.
    if (!glyph.isEmpty() && glyph.front().isLetter()) {
        font.setFamilies({QStringLiteral("serif")});
        font.setStyleHint(QFont::Serif);
        font.setBold(true);
        font.setItalic(true);
    }
    return font;
}

} // namespace

AnchoredBarButton::AnchoredBarButton(QAction& action, QWidget* parent)
    : QAbstractButton(parent)
    , m_action(action)
{
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    connect(this, &QAbstractButton::clicked, &action, &QAction::trigger);
    updateFromAction();
}

void AnchoredBarButton::updateFromAction()
{
    setText(m_action.iconText());
    setAccessibleName(titleOfAction(m_action));
    setToolTip(toolTipOfAction(m_action));
    setEnabled(m_action.isEnabled());
    setVisible(m_action.isVisible());
    update();
}

void AnchoredBarButton::setDividerColor(const QColor& color)
{
    m_dividerColor = color;
    update();
}

QSize AnchoredBarButton::sizeHint() const
{
    return {buttonWidth, buttonHeight};
}

void AnchoredBarButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const PixelSnapping snapping(painter);
    const QRect dividerRect =
        QStyle::visualRect(layoutDirection(), rect(), {width() - 1, 0, 1, height()});
    const QRect face = QStyle::visualRect(layoutDirection(), rect(), {0, 0, width() - 1, height()});
    if (isDown()) {
        painter.fillRect(snapping.snappedRect(face), QColor(0, 0, 0, 40));
    } else if (underMouse() && isEnabled()) {
        painter.fillRect(snapping.snappedRect(face), QColor(0, 0, 0, 14));
    }
    painter.fillRect(snapping.snappedLine(dividerRect), m_dividerColor);
    drawGlyph(painter, face);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = face.adjusted(1, 1, -1, -1);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void AnchoredBarButton::drawGlyph(QPainter& painter, const QRectF& face) const
{
    // Centred is what is seen of the glyph, not the line of text that it would stand in. (The
    // font's own tight rectangle reaches down to the baseline on some platforms.)
    const auto font = glyphFont(this->font(), text());
    QPainterPath ink;
    ink.addText(QPointF(), font, text());
    const QPointF lineTop(0.0, QFontMetricsF(font).ascent());
    const auto place = PixelSnapping(painter).snappedRect(
        {face.center() - ink.boundingRect().center() - lineTop, QSizeF(1.0, 1.0)});
    auto color = palette().color(foregroundRole());
    color.setAlphaF(color.alphaF() * glyphAlpha);
    VRLetterpress::vr_drawLetterpressAtPoint(painter, text(), place.topLeft(), {font, color},
                                             isEnabled() ? letterpressAlpha : 0.0);
}
