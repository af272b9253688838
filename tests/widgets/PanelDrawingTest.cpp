#include "widgets/GradientBox.h"
#include "widgets/VRGradientBackgroundStencil.h"
#include "widgets/VRLetterpress.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

namespace {

QImage canvas(double width, double height, double ratio, const QColor& color)
{
    QImage image((QSizeF(width, height) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(color);
    return image;
}

/// The rows of pixels that hold `color`, first and last; (-1, -1) when none does.
std::pair<int, int> rowsWith(const QImage& image, const QColor& color)
{
    std::pair<int, int> rows(-1, -1);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color) {
                rows = {rows.first < 0 ? y : rows.first, y};
            }
        }
    }
    return rows;
}

} // namespace

TEST(PanelDrawingTest, AGradientBoxHasBordersOfWholePixels)
{
    GradientBox box;
    box.resize(20, 30);
    box.setGradientStartColor(QColor(250, 0, 0));
    box.setGradientEndColor(QColor(50, 0, 0));
    box.setBottomBorderColor(Qt::blue);
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        QImage image = canvas(20, 30, ratio, Qt::green);
        const int last = image.height() - 1;
        const int thickness = ratio < 2 ? 1 : 2;
        box.setHasGradient(false);
        box.setHasBottomBorder(false);
        box.render(&image, {}, {}, QWidget::DrawChildren);
        EXPECT_EQ(rowsWith(image, Qt::green), std::pair(0, last)) << ratio;

        box.setHasGradient(true);
        box.setHasBottomBorder(true);
        box.setBottomInsetAlpha(0);
        box.render(&image, {}, {}, QWidget::DrawChildren);
        EXPECT_EQ(rowsWith(image, Qt::green).second, -1) << ratio;
        EXPECT_EQ(rowsWith(image, Qt::blue), std::pair(last - thickness + 1, last)) << ratio;
        EXPECT_NEAR(image.pixelColor(3, 0).red(), 247, 3);
        EXPECT_NEAR(image.pixelColor(3, last - thickness).red(), 60, 9);

        box.setBottomInsetAlpha(1);
        box.setHasTopBorder(true);
        box.setTopBorderColor(Qt::yellow);
        box.render(&image, {}, {}, QWidget::DrawChildren);
        EXPECT_EQ(rowsWith(image, Qt::white).second, last - thickness) << ratio;
        EXPECT_EQ(rowsWith(image, Qt::yellow), std::pair(0, thickness - 1)) << ratio;
        box.setHasTopBorder(false);
    }
}

TEST(PanelDrawingTest, ARowStandsOutAndAHighlightedOneIsPressedIn)
{
    VRGradientBackgroundStencil stencil;
    for (const bool isHighlighted : {false, true}) {
        const QColor base(200, 180, 160);
        stencil.setBaseColor(base);
        stencil.setHighlighted(isHighlighted);
        QImage image = canvas(10, 100, 1, Qt::green);
        QPainter painter(&image);
        stencil.drawInRect(painter, QRectF(0, 2, 10, 96));
        stencil.drawInRect(painter, QRectF(0, 98, 10, 0));
        painter.end();
        const auto red = [&](int y) {
            return image.pixelColor(5, y).red();
        };
        EXPECT_EQ(rowsWith(image, base).first, 12);
        EXPECT_EQ(rowsWith(image, Qt::green), std::pair(0, 99));
        EXPECT_EQ(red(2) > red(4), !isHighlighted) << "the upper edge";
        EXPECT_EQ(red(4) > base.red(), !isHighlighted) << "the light from above";
        EXPECT_EQ(red(95) < base.red(), !isHighlighted) << "the shade below";
        EXPECT_LT(red(97), red(95)) << "the lower edge";
    }
}

TEST(PanelDrawingTest, LetterpressPutsAWhiteCopyOnePointBelowTheText)
{
    const VRLetterpress::Attributes attributes{QFont(), Qt::black, Qt::AlignHCenter | Qt::AlignTop};
    for (const double ratio : {1.0, 2.0}) {
        for (const bool atPoint : {false, true}) {
            QImage image = canvas(40, 40, ratio, Qt::gray);
            QPainter painter(&image);
            const auto draw = [&](double alpha) {
                const QString block(u'\u2588');
                atPoint
                    ? vr_drawLetterpressAtPoint(painter, block, {15, 8}, attributes, alpha)
                    : vr_drawLetterpressInRect(painter, block, {0, 8, 40, 30}, attributes, alpha);
            };
            draw(0);
            const auto text = rowsWith(image, Qt::black);
            EXPECT_GE(text.first, qRound(8 * ratio));
            EXPECT_EQ(rowsWith(image, Qt::white).second, -1);
            draw(1);
            EXPECT_EQ(rowsWith(image, Qt::black), text);
            EXPECT_EQ(rowsWith(image, Qt::white).second, text.second + qRound(ratio));
        }
    }
}
