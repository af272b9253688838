#pragma once

#include <QPixmap>
#include <QRect>
#include <QString>

class QPainter;

/// A picture repeated over an area, as sharp as the device is: the picture for two pixels a point
/// ("NAME@2x.png" beside "NAME.png") is prepared for the device's own ratio when that is above 1.
class TiledBackground
{
public:
    /// Without a file nothing is drawn.
    explicit TiledBackground(QString fileName = {});

    /// Fills `area`, in points, with tiles of which one begins at the origin. Not under a rotated
    /// painter.
    void draw(QPainter& painter, const QRect& area);

private:
    void prepare(double devicePixelRatio);

    QString m_fileName;
    QPixmap m_tile;
    double m_preparedRatio = 0.0;
};
