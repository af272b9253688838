#include "widgets/VRLetterpress.h"

#include <QPainter>

namespace {

void draw(QPainter& painter, const QString& text, const QRectF& rect, int flags,
          const VRLetterpress::Attributes& attributes, double shadowAlpha)
{
    painter.save();
    painter.setFont(attributes.font);
    if (shadowAlpha > 0) {
        painter.setPen(QColor::fromRgbF(1, 1, 1, static_cast<float>(qMin(shadowAlpha, 1.0))));
        painter.drawText(rect.translated(0, 1), flags, text);
    }
    painter.setPen(attributes.color);
    painter.drawText(rect, flags, text);
    painter.restore();
}

} // namespace

void VRLetterpress::vr_drawLetterpressInRect(QPainter& painter, const QString& text,
                                             const QRectF& rect, const Attributes& attributes,
                                             double shadowAlpha)
{
    draw(painter, text, rect, static_cast<int>(attributes.alignment) | Qt::TextSingleLine,
         attributes, shadowAlpha);
}

void VRLetterpress::vr_drawLetterpressAtPoint(QPainter& painter, const QString& text,
                                              const QPointF& point, const Attributes& attributes,
                                              double shadowAlpha)
{
    // The box needs no measuring: text that is not clipped runs on to the right of it, and from
    // the left for a script written from right to left too.
    constexpr int flags =
        Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignTop | Qt::TextSingleLine | Qt::TextDontClip;
    draw(painter, text, QRectF(point, QSizeF(1, 1)), flags, attributes, shadowAlpha);
}
