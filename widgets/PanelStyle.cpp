#include "widgets/PanelStyle.h"

#include "widgets/HighContrast.h"
#include "widgets/PixelSnapping.h"
#include "widgets/RoundedRing.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLinearGradient>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QStyleHintReturnMask>
#include <QStyleOptionSlider>

#include <algorithm>

namespace {

// All lengths are in points.
constexpr int scrollBarThickness = 12;
constexpr int shortestThumb = 24;
constexpr int thumbInset = 3;
constexpr int thumbEndInset = 2;

constexpr double knobDiameter = 17.0;
constexpr double grooveThickness = 3.0;
constexpr double ringThickness = 2.0;
/// The knob with its focus ring.
constexpr int knobExtent = static_cast<int>(knobDiameter + 2.0 * ringThickness);

constexpr int toolTipPadding = 4;

constexpr double ringRadius = 4.0;
/// What a ring and its light inner edge cover, corners included.
constexpr int ringReach = 5;

/// `color` moved away from itself: towards black if it is light, towards white if it is dark.
/// `amount` is from 0 to 1. The result is opaque.
QColor contrasting(const QColor& color, double amount)
{
    const int target = qGray(color.rgb()) < 128 ? 255 : 0;
    const auto mix = [&](int component) {
        return component + qRound((target - component) * amount);
    };
    return {mix(color.red()), mix(color.green()), mix(color.blue())};
}

QColor groundColor(const QStyleOption& option, const QWidget* widget)
{
    return option.palette.color(widget ? widget->backgroundRole() : QPalette::Window);
}

/// How strongly something that can be grasped stands out from its ground.
double graspShade(const QStyleOptionComplex& option, QStyle::SubControl subControl)
{
    if (HighContrast::isWanted() && option.state.testFlag(QStyle::State_Enabled)) {
        return option.activeSubControls.testFlag(subControl) ? 0.85 : 0.65;
    }
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        return 0.12;
    }
    if (!option.activeSubControls.testFlag(subControl)) {
        return 0.27;
    }
    return option.state.testFlag(QStyle::State_Sunken) ? 0.50 : 0.38;
}

/// The option of a scroll bar; null for any other control.
const QStyleOptionSlider* scrollBarOption(QStyle::ComplexControl control,
                                          const QStyleOption* option)
{
    return control == QStyle::CC_ScrollBar ? qstyleoption_cast<const QStyleOptionSlider*>(option)
                                           : nullptr;
}

/// The option of a slider in this style's own hand; null for those that are left to Fusion.
const QStyleOptionSlider* ownSliderOption(const QStyleOption* option)
{
    const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    return slider && slider->orientation == Qt::Horizontal &&
                   slider->tickPosition == QSlider::NoTicks
               ? slider
               : nullptr;
}

/// A part of a scroll bar's length; `bar.rect` is as wide as the bar.
QRect barSection(const QStyleOptionSlider& bar, int start, int length)
{
    const auto& rect = bar.rect;
    const auto section = bar.orientation == Qt::Horizontal
                             ? QRect(rect.left() + start, rect.top(), length, rect.height())
                             : QRect(rect.left(), rect.top() + start, rect.width(), length);
    return QStyle::visualRect(bar.direction, rect, section);
}

QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part, int minimumLength)
{
    const int track =
        std::max(bar.orientation == Qt::Horizontal ? bar.rect.width() : bar.rect.height(), 0);
    const qint64 range = qint64{bar.maximum} - bar.minimum;
    int start = 0;
    int length = 0;
    if (range > 0) {
        const qint64 page = std::max(bar.pageStep, 0);
        const auto proportional = static_cast<int>(page * track / (range + page));
        length = std::clamp(proportional, std::min(minimumLength, track), track);
        start = QStyle::sliderPositionFromValue(
            bar.minimum, bar.maximum, std::clamp(bar.sliderPosition, bar.minimum, bar.maximum),
            track - length, bar.upsideDown);
    }
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    case QStyle::SC_ScrollBarSlider:
        return barSection(bar, start, length);
    case QStyle::SC_ScrollBarSubPage:
        return barSection(bar, 0, start);
    case QStyle::SC_ScrollBarAddPage:
        return barSection(bar, start + length, track - start - length);
    default:
        return {};
    }
}

QColor trackColor(const QStyleOption& option, const QWidget* widget)
{
    return contrasting(groundColor(option, widget), 0.04);
}

/// A bar is drawn at every scroll step, so its thumb is three plain fills instead of one rounded
/// rectangle, which takes several times as long.
void drawThumb(QPainter& painter, const QRectF& rect, const QColor& color)
{
    const auto thumb = PixelSnapping(painter).snappedRect(rect);
    const double thickness = std::min(thumb.width(), thumb.height());
    if (thickness <= 0.0) {
        return;
    }
    const bool isHorizontal = thumb.width() > thumb.height();
    const QSizeF cap(thickness, thickness);
    const double radius = thickness / 2.0;
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawEllipse(QRectF(thumb.topLeft(), cap));
    painter.drawEllipse(QRectF(thumb.bottomRight() - QPointF(thickness, thickness), cap));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(isHorizontal ? thumb.adjusted(radius, 0.0, -radius, 0.0)
                                  : thumb.adjusted(0.0, radius, 0.0, -radius),
                     color);
    painter.restore();
}

void drawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QRect& thumb,
                   const QWidget* widget)
{
    painter.fillRect(bar.rect, trackColor(bar, widget));
    if (!thumb.isEmpty()) {
        const bool isHorizontal = bar.orientation == Qt::Horizontal;
        const int x = isHorizontal ? thumbEndInset : thumbInset;
        const int y = isHorizontal ? thumbInset : thumbEndInset;
        drawThumb(
            painter, thumb.adjusted(x, y, -x, -y),
            contrasting(groundColor(bar, widget), graspShade(bar, QStyle::SC_ScrollBarSlider)));
    }
}

void drawSlider(QPainter& painter, const QStyleOptionSlider& slider, const QRect& handle,
                const QWidget* widget)
{
    const bool isEnabled = slider.state.testFlag(QStyle::State_Enabled);
    const bool isPressed = slider.state.testFlag(QStyle::State_Sunken) &&
                           slider.activeSubControls.testFlag(QStyle::SC_SliderHandle);
    const auto ground = groundColor(slider, widget);
    const PixelSnapping snapping(painter);
    // Groove and knob share a middle, and as both are an odd number of points, also their pixels'.
    const double middle = QRectF(slider.rect).center().y();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    const auto groove =
        snapping.snappedRect({slider.rect.left() + ringThickness, middle - grooveThickness / 2.0,
                              slider.rect.width() - 2.0 * ringThickness, grooveThickness});
    painter.setBrush(contrasting(ground, isEnabled ? 0.20 : 0.10));
    painter.drawRoundedRect(groove, groove.height() / 2.0, groove.height() / 2.0);

    const QPointF corner(QRectF(handle).center().x() - knobDiameter / 2.0,
                         middle - knobDiameter / 2.0);
    const auto knob = snapping.snappedRect({corner, QSizeF(knobDiameter, knobDiameter)});
    const auto keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    if ((slider.state & keyboardFocus) == keyboardFocus) {
        painter.setBrush(slider.palette.color(QPalette::Highlight));
        painter.drawEllipse(
            knob.adjusted(-ringThickness, -ringThickness, ringThickness, ringThickness));
    }
    const auto face = slider.palette.color(QPalette::Light);
    QLinearGradient light(knob.topLeft(), knob.bottomLeft());
    light.setColorAt(0.0, contrasting(face, isPressed ? 0.10 : 0.0));
    light.setColorAt(1.0, contrasting(face, isPressed ? 0.14 : 0.09));
    painter.setBrush(light);
    painter.drawEllipse(knob);
    RoundedRing::draw(painter, knob, knob.height() / 2.0, 1.0,
                      contrasting(ground, graspShade(slider, QStyle::SC_SliderHandle)));
    painter.restore();
}

/// The accent alone would be lost on a dark ground; the light edge inside shows it there, and is
/// not seen on a light one.
void drawFocusRing(QPainter& painter, const QStyleOption& option)
{
    const auto inside = RoundedRing::draw(painter, option.rect, ringRadius, ringThickness,
                                          option.palette.color(QPalette::Highlight));
    RoundedRing::draw(painter, inside, ringRadius - ringThickness, 1.0,
                      HighContrast::line(QColor(255, 255, 255, 150)));
}

/// Below a menu bar's items, and where it has none. Fusion's own line, which this one replaces, has
/// a gap after each item on a fine screen.
void drawMenuBarLine(QPainter& painter, const QStyleOption& option, const QWidget* widget)
{
    const PixelSnapping snapping(painter);
    const auto ground = groundColor(option, widget);
    const QRectF below(option.rect.left(), option.rect.bottom(), option.rect.width(), 1.0);
    painter.fillRect(snapping.snappedRect(below.adjusted(0.0, -1.0, 0.0, 0.0)), ground);
    painter.fillRect(snapping.snappedRect(below),
                     contrasting(ground, HighContrast::isWanted() ? 0.5 : 0.11));
}

bool showsMnemonics(const QWidget& widget)
{
    return qobject_cast<const QMenuBar*>(&widget) || qobject_cast<const QMenu*>(&widget) ||
           qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLabel*>(&widget);
}

} // namespace

PanelStyle::PanelStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{}

void PanelStyle::setHighContrast(bool hasHighContrast)
{
    if (m_hasHighContrast == hasHighContrast) {
        return;
    }
    m_hasHighContrast = hasHighContrast;
    const auto widgets = QApplication::allWidgets();
    for (auto* const widget : widgets) {
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(widget, &change);
    }
}

void PanelStyle::polish(QApplication* application)
{
    QProxyStyle::polish(application);
    application->installEventFilter(this);
}

void PanelStyle::unpolish(QApplication* application)
{
    application->removeEventFilter(this);
    QProxyStyle::unpolish(application);
}

int PanelStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const
{
    switch (metric) {
    case PM_ScrollBarExtent:
        return scrollBarThickness;
    case PM_ScrollBarSliderMin:
        return shortestThumb;
    case PM_SliderLength:
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        if (ownSliderOption(option)) {
            return knobExtent;
        }
        break;
    case PM_ToolTipLabelFrameWidth:
        return toolTipPadding;
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
        return 0;
    default:
        break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int PanelStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returnData) const
{
    if (hint == highContrastHint) {
        return m_hasHighContrast ? 1 : 0;
    }
    switch (hint) {
    case SH_Widget_Animation_Duration:
        return m_isAnimated ? QProxyStyle::styleHint(hint, option, widget, returnData) : 0;
    case SH_UnderlineShortcut:
        return m_isAltHeld ? 1 : 0;
    case SH_FocusFrame_AboveWidget:
        return 1;
    case SH_FocusFrame_Mask:
        // Without the mask, whatever the widget inside repaints would repaint the ring.
        if (auto* const mask = qstyleoption_cast<QStyleHintReturnMask*>(returnData);
            mask && option) {
            const auto inside = option->rect.adjusted(ringReach, ringReach, -ringReach, -ringReach);
            mask->region = QRegion(option->rect) - QRegion(inside);
        }
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QRect PanelStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                 SubControl subControl, const QWidget* widget) const
{
    if (const auto* const bar = scrollBarOption(control, option)) {
        return scrollBarPart(*bar, subControl,
                             proxy()->pixelMetric(PM_ScrollBarSliderMin, bar, widget));
    }
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

void PanelStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    if (const auto* const bar = scrollBarOption(control, option)) {
        drawScrollBar(*painter, *bar,
                      proxy()->subControlRect(control, bar, SC_ScrollBarSlider, widget), widget);
    } else if (const auto* const slider = ownSliderOption(option); slider && control == CC_Slider) {
        drawSlider(*painter, *slider,
                   proxy()->subControlRect(control, slider, SC_SliderHandle, widget), widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void PanelStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    switch (element) {
    case CE_FocusFrame:
        drawFocusRing(*painter, *option);
        break;
    case CE_MenuBarItem:
    case CE_MenuBarEmptyArea:
        QProxyStyle::drawControl(element, option, painter, widget);
        if (!option->state.testFlag(State_Selected)) {
            drawMenuBarLine(*painter, *option, widget);
        }
        break;
    default:
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void PanelStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_FrameFocusRect:
        // Who works with the mouse need not be told where the keyboard goes.
        if (option->state.testFlag(State_KeyboardFocusChange)) {
            drawFocusRing(*painter, *option);
        }
        break;
    case PE_PanelTipLabel: {
        const auto ground = option->palette.color(QPalette::ToolTipBase);
        painter->fillRect(option->rect, ground);
        RoundedRing::draw(*painter, option->rect, 0.0, 1.0,
                          contrasting(ground, HighContrast::isWanted() ? 0.7 : 0.35));
        break;
    }
    case PE_PanelScrollAreaCorner:
        painter->fillRect(option->rect, trackColor(*option, widget));
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

bool PanelStyle::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        // With Shift held, too, some keyboards call the same key Meta. Where a release went to
        // another program, the next key tells.
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Alt || key.key() == Qt::Key_Meta) {
            setAltHeld(key.key() == Qt::Key_Alt && event->type() == QEvent::KeyPress);
        } else {
            setAltHeld(key.modifiers().testFlag(Qt::AltModifier));
        }
        break;
    }
    case QEvent::ApplicationStateChange:
        setAltHeld(false);
        break;
    default:
        break;
    }
    return QProxyStyle::eventFilter(watched, event);
}

void PanelStyle::setAltHeld(bool isHeld)
{
    if (m_isAltHeld == isHeld) {
        return;
    }
    m_isAltHeld = isHeld;
    for (auto* const widget : QApplication::allWidgets()) {
        if (showsMnemonics(*widget)) {
            widget->update();
        }
    }
}
