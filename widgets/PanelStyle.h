#pragma once

#include <QProxyStyle>

/// How the program's controls look where its panels do not draw them: Fusion, with scroll bars, a
/// slider and a focus ring of its own. Meant for the whole application.
///
/// - Scroll bars are flat, without arrow buttons, and shaded from the colour of the ground that
///   they stand on: the palette's colour for the bar's background role, `Window` unless somebody
///   chose another. A view with a dark ground says so in its palette.
/// - Tool tips are plain boxes with a thin border and some room around the text.
/// - Horizontal sliders without tick marks have a thin groove and a round knob.
/// - What has the keyboard focus shows a rounded ring just inside its edges, a QFocusFrame too.
/// - The letters that go with Alt are underlined only while Alt is held.
/// - Whether anything moves by itself, and whether colours are stronger, is one setting for all.
class PanelStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// The style hint that is 1 while high contrast is wanted; other styles answer 0.
    static constexpr auto highContrastHint = static_cast<StyleHint>(SH_CustomBase + 1);

    PanelStyle();

    /// False: what would be animated is there at once. As at first: true.
    void setAnimated(bool isAnimated) { m_isAnimated = isAnimated; }
    /// Every widget gets a QEvent::StyleChange when this changes. As at first: false.
    void setHighContrast(bool hasHighContrast);

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QApplication* application) override;
    void unpolish(QApplication* application) override;

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                         SubControl subControl, const QWidget* widget) const override;

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

    /// Watches the application's events for the Alt key.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setAltHeld(bool isHeld);

    bool m_isAltHeld = false;
    bool m_isAnimated = true;
    bool m_hasHighContrast = false;
};
