#pragma once

#include <QColor>
#include <QWidget>

/// A panel that fills itself with a vertical gradient between borders along its top and its bottom
/// edge. All are off at first; the box is transparent where it paints nothing.
class GradientBox : public QWidget
{
    Q_OBJECT

public:
    explicit GradientBox(QWidget* parent = nullptr);

    bool hasGradient() const { return m_hasGradient; }
    void setHasGradient(bool hasGradient);
    /// The colour at the top.
    QColor gradientStartColor() const { return m_gradientStartColor; }
    void setGradientStartColor(const QColor& color);
    /// The colour at the bottom.
    QColor gradientEndColor() const { return m_gradientEndColor; }
    void setGradientEndColor(const QColor& color);

    /// A line one point thick, as is the one at the bottom.
    bool hasTopBorder() const { return m_hasTopBorder; }
    void setHasTopBorder(bool hasTopBorder);
    QColor topBorderColor() const { return m_topBorderColor; }
    void setTopBorderColor(const QColor& color);

    bool hasBottomBorder() const { return m_hasBottomBorder; }
    void setHasBottomBorder(bool hasBottomBorder);
    QColor bottomBorderColor() const { return m_bottomBorderColor; }
    void setBottomBorderColor(const QColor& color);

    /// The opacity, from 0 to 1, of the white line right above the bottom border.
    double bottomInsetAlpha() const { return m_bottomInsetAlpha; }
    void setBottomInsetAlpha(double alpha);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_hasGradient = false;
    QColor m_gradientStartColor = Qt::white;
    QColor m_gradientEndColor = Qt::white;
    bool m_hasTopBorder = false;
    QColor m_topBorderColor = Qt::black;
    bool m_hasBottomBorder = false;
    QColor m_bottomBorderColor = Qt::black;
    double m_bottomInsetAlpha = 0.0;
};
