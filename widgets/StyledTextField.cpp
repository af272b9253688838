#include "widgets/StyledTextField.h"

#include "widgets/HighContrast.h"
#include "widgets/PixelSnapping.h"
#include "widgets/RoundedRing.h"

#include <QContextMenuEvent>
#include <QFocusFrame>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>

#include <algorithm>
#include <array>

namespace {

// All lengths are in points.
constexpr int fieldHeight = 26;
constexpr int verticalPadding = 4;
constexpr int horizontalPadding = 6;
constexpr double cornerRadius = 4.0;
constexpr QColor borderColor(0xBB, 0xBB, 0xBB);
constexpr QColor invalidColor(0xC8, 0x32, 0x2B);

/// The glow's opacity, line by line from the field outwards.
constexpr std::array glowAlphas{0.34F, 0.24F, 0.10F};
constexpr int glowReach = static_cast<int>(glowAlphas.size());

/// Lies behind a field and shines out around it: a field paints nothing outside itself. (As a focus
/// frame it is no part of what accessibility tells of the window.)
class FieldGlow : public QFocusFrame
{
public:
    using QFocusFrame::QFocusFrame;

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        auto color = palette().color(QPalette::Highlight);
        const double line = PixelSnapping(painter).lineWidth();
        auto ring = QRectF(rect()).marginsRemoved({glowReach, glowReach, glowReach, glowReach});
        double radius = cornerRadius;
        for (const float alpha : glowAlphas) {
            ring.adjust(-line, -line, line, line);
            radius += line;
            color.setAlphaF(alpha);
            RoundedRing::draw(painter, ring, radius, 1.0, color);
        }
    }
};

} // namespace

StyledTextField::StyledTextField(QWidget* parent)
    : QLineEdit(parent)
{
    // The field is drawn here, under the text; the base class is to add nothing but the text.
    setFrame(false);
    QPalette transparent = palette();
    transparent.setColor(QPalette::Base, Qt::transparent);
    setPalette(transparent);
    setTextMargins(horizontalPadding, 0, horizontalPadding, 0);
}

StyledTextField::~StyledTextField()
{
    delete m_glow;
}

void StyledTextField::setInvalidReason(const QString& reason)
{
    const auto line = reason.simplified();
    if (line == m_invalidReason) {
        return;
    }
    m_invalidReason = line;
    setToolTip(line);
    // Which also tells assistive programs.
    setAccessibleDescription(line);
    updateGlow();
    update();
}

QSize StyledTextField::sizeHint() const
{
    const int textHeight = fontMetrics().height() + 2 * verticalPadding;
    return {QLineEdit::sizeHint().width(), std::max(fieldHeight, textHeight)};
}

QSize StyledTextField::minimumSizeHint() const
{
    return {QLineEdit::minimumSizeHint().width(), sizeHint().height()};
}

bool StyledTextField::event(QEvent* event)
{
    const bool isHandled = QLineEdit::event(event);
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::ParentChange:
        updateGlow();
        break;
    default:
        break;
    }
    return isHandled;
}

void StyledTextField::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        const auto box = PixelSnapping(painter).snappedRect(rect());
        const bool isMarked = hasFocus() || !m_invalidReason.isEmpty();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        // The application's colour, as this field's own is transparent.
        painter.setBrush(
            QGuiApplication::palette().color(isEnabled() ? QPalette::Base : QPalette::Window));
        painter.drawRoundedRect(box, cornerRadius, cornerRadius);
        RoundedRing::draw(painter, box, cornerRadius, 1.0,
                          isMarked ? accentColor() : HighContrast::ink(borderColor));
    }
    QLineEdit::paintEvent(event);
}

void StyledTextField::contextMenuEvent(QContextMenuEvent* event)
{
    auto* const menu = createStandardContextMenu();
    // A field that can be changed begins its menu with undo, redo and a separator.
    if (!isReadOnly()) {
        const auto actions = menu->actions();
        for (auto* const action : actions) {
            menu->removeAction(action);
            if (action->isSeparator()) {
                break;
            }
        }
    }
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

QColor StyledTextField::accentColor() const
{
    return m_invalidReason.isEmpty() ? palette().color(QPalette::Highlight) : invalidColor;
}

void StyledTextField::updateGlow()
{
    if (!hasFocus() || !isVisible() || !parentWidget()) {
        if (m_glow) {
            m_glow->hide();
        }
        return;
    }
    if (!m_glow) {
        m_glow = new FieldGlow(parentWidget());
    } else if (m_glow->parentWidget() != parentWidget()) {
        m_glow->setParent(parentWidget());
    }
    QPalette colors = palette();
    colors.setColor(QPalette::Highlight, accentColor());
    m_glow->setPalette(colors);
    m_glow->setGeometry(geometry().marginsAdded({glowReach, glowReach, glowReach, glowReach}));
    m_glow->stackUnder(this);
    m_glow->show();
}
