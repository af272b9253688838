#include "widgets/PixelSnapping.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

#include <cmath>

TEST(PixelSnappingTest, PutsLinesOnWholePixelsAtEveryRatio)
{
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        QImage image(1, 1, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        QPainter painter(&image);
        painter.translate(0.3, 17.6);
        const PixelSnapping snapping(painter);
        const auto isOnPixels = [&](const QRectF& rect) {
            const QRectF device = painter.deviceTransform().mapRect(rect);
            const auto isWhole = [](double value) {
                return std::abs(value - std::round(value)) < 1e-9;
            };
            return isWhole(device.left()) && isWhole(device.top()) && isWhole(device.right()) &&
                   isWhole(device.bottom());
        };
        for (int i = 0; i < 12; ++i) {
            const QRectF line(8 + i, 2.4, 1, 20);
            const QRectF snapped = snapping.snappedLine(line);
            EXPECT_TRUE(isOnPixels(snapped)) << ratio << " " << i;
            EXPECT_EQ(snapped.width(), snapping.lineWidth());
            EXPECT_LE(std::abs(snapped.left() - line.left()), 0.5001 / ratio);

            const QRectF rect = snapping.snappedRect(line);
            EXPECT_TRUE(isOnPixels(rect)) << ratio << " " << i;
            const QRectF neighbour = snapping.snappedRect(line.translated(1, 0));
            EXPECT_DOUBLE_EQ(rect.right(), neighbour.left());
            const QRectF hair = snapping.snappedRect(QRectF(i, 0, 0.1, 1));
            EXPECT_TRUE(isOnPixels(hair) && hair.width() > 0.4);
        }
        EXPECT_EQ(snapping.lineWidth() * ratio, ratio < 2 ? 1 : 2);
    }
}

TEST(PixelSnappingTest, LeavesAloneWhatHasNoPixelEdges)
{
    QImage image(1, 1, QImage::Format_RGB32);
    QPainter painter(&image);
    EXPECT_EQ(PixelSnapping(painter).snappedRect(QRectF()), QRectF());
    painter.rotate(30);
    const QRectF line(0.3, 0.4, 5, 1);
    EXPECT_EQ(PixelSnapping(painter).snappedLine(line), line);
}
