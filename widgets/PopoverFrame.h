#pragma once

#include "widgets/PopoverPlacement.h"

#include <QColor>
#include <QPixmap>
#include <QRegion>
#include <QWidget>

/// What is seen of a popover beside its body: the panel with its border, the arrow, the shadow.
/// The mouse goes through it.
class PopoverFrame : public QWidget
{
    Q_OBJECT

public:
    /// How far inside the panel's edge, in points, a rectangular body lies clear of the border and
    /// the rounded corners.
    static constexpr int bodyInset = 4;

    explicit PopoverFrame(QWidget& window);

    static QColor panelColor();

    /// Takes the place, in the window's coordinates, and the shape of the placement.
    void arrange(const PopoverPlacement& placement);

    /// The panel and the arrow, without the shadow, in the frame's coordinates.
    QRegion outline() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void prepareShadow(double devicePixelRatio);

    /// In the frame's coordinates.
    PopoverPlacement m_placement;
    QPixmap m_shadow;
};
