#include "timeline/TimelinePictures.h"

#include <QColor>
#include <QPainter>

#include <cmath>

const QImage& TimelinePictures::dot(const QColor& color, double ratio)
{
    useRatio(ratio);
    auto& dot = m_dots[color.rgba()];
    if (dot.isNull()) {
        const double diameter = 6.0 * ratio;
        const int side = static_cast<int>(std::ceil(diameter));
        dot = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
        dot.fill(Qt::transparent);
        QPainter painter(&dot);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(QRectF(0.0, 0.0, diameter, diameter));
    }
    return dot;
}

const CapsuleFrame& TimelinePictures::capsuleFrame(const CapsuleFrame::Style& style,
                                                   const QSize& size)
{
    useRatio(style.ratio);
    const QSize used = CapsuleFrame::sizeOfPicture(style, size);
    const auto key = std::tuple(style.border, style.highlight, style.shadow, style.lineWidth,
                                used.width(), used.height());
    return m_frames.try_emplace(key, style, used).first->second;
}

void TimelinePictures::useRatio(double ratio)
{
    if (m_ratio != ratio) {
        m_ratio = ratio;
        m_dots.clear();
        m_frames.clear();
    }
}
