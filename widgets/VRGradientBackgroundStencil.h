#pragma once

#include <QColor>

class QPainter;
class QRectF;

/// The background of a panel's row: its base colour, softly lit from above.
///
/// A row stands out a little, with a light upper edge and a gradient below it and a darker lower
/// edge with a gradient above; a highlighted one is pressed in and shaded by its surroundings.
class VRGradientBackgroundStencil
{
public:
    /// How far the gradients reach in from the upper and the lower edge, in points; not beyond the
    /// middle of the row.
    double gradientHeight() const { return m_gradientHeight; }
    void setGradientHeight(double height) { m_gradientHeight = height; }

    bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool isHighlighted) { m_isHighlighted = isHighlighted; }

    QColor baseColor() const { return m_baseColor; }
    void setBaseColor(const QColor& color) { m_baseColor = color; }

    void drawInRect(QPainter& painter, const QRectF& rect) const;

private:
    double m_gradientHeight = 10.0;
    bool m_isHighlighted = false;
    QColor m_baseColor = Qt::white;
};
