#include "widgets/TiledBackground.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

/// Left half red, right half blue.
QImage halves(int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter(&image).fillRect(side / 2, 0, side / 2, side, Qt::blue);
    return image;
}

} // namespace

TEST(TiledBackground, repeatsInPointsAndIsSharpAtEveryRatio)
{
    const QTemporaryDir folder;
    const auto name = folder.filePath(QStringLiteral("tile.png"));
    ASSERT_TRUE(halves(64).save(name));
    ASSERT_TRUE(halves(128).save(folder.filePath(QStringLiteral("tile@2x.png"))));
    TiledBackground background(name);
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0, 1.0}) {
        QImage image(QSize(200, 150) * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::white);
        QPainter painter(&image);
        background.draw(painter, QRect(10, 20, 180, 120));
        painter.end();
        const auto at = [&](double x, double y) {
            return image.pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio));
        };
        EXPECT_EQ(at(5, 70), QColor(Qt::white)) << ratio;
        EXPECT_EQ(at(100, 145), QColor(Qt::white)) << ratio;
        for (const double y : {22.0, 70.0, 138.0}) {
            EXPECT_EQ(at(16, y), QColor(Qt::red)) << ratio;
            EXPECT_EQ(at(48, y), QColor(Qt::blue)) << ratio;
            EXPECT_EQ(at(80, y), QColor(Qt::red)) << ratio;
            EXPECT_EQ(at(176, y), QColor(Qt::blue)) << ratio;
        }
    }
}
