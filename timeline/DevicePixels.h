#pragma once

#include <QRectF>

class QBrush;
class QPainter;

/// While one lives, the unit of a painter is a pixel of its device instead of a point, and nothing
/// is antialiased. Pictures that hold the device's pixels one to one, and rectangles, are drawn
/// several times faster so. The painter is as it was when it goes.
class DevicePixels
{
public:
    /// Qt fills areas of 96 rows of pixels and more with the help of other threads. Waiting for
    /// those costs more than most fills here, and far more while the machine is busy: what is
    /// higher is better filled so many rows at a time.
    static constexpr int rowsAtOnce = 64;

    explicit DevicePixels(QPainter& painter);
    ~DevicePixels();
    DevicePixels(const DevicePixels&) = delete;
    DevicePixels& operator=(const DevicePixels&) = delete;

    /// How many pixels a point is long under the painter; 1 when it shows nothing at all.
    static double ratio(const QPainter& painter);

    /// The rectangle of these points in pixels.
    QRectF pixels(const QRectF& points) const;

    /// Fills a rectangle of whole pixels.
    void fillRect(const QRectF& pixels, const QBrush& brush);

private:
    QPainter& m_painter;
    double m_ratio;
};
