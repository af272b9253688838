#pragma once

#include <QColor>
#include <QFont>

class QPainter;
class QPointF;
class QRectF;
class QString;

/// Text that looks pressed into what it stands on: a white copy, one point lower, lights its lower
/// edges.
namespace VRLetterpress {

struct Attributes
{
    QFont font;
    QColor color;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop;
};

/// Draws `text` as one line, aligned in `rect` and clipped to it (the copy to a rectangle one point
/// lower). `shadowAlpha` is the opacity of the white copy, from 0 to 1.
void vr_drawLetterpressInRect(QPainter& painter, const QString& text, const QRectF& rect,
                              const Attributes& attributes, double shadowAlpha);

/// Draws all of `text` as one line whose box has its upper left corner at `point`, whatever the
/// alignment.
void vr_drawLetterpressAtPoint(QPainter& painter, const QString& text, const QPointF& point,
                               const Attributes& attributes, double shadowAlpha);

} // namespace VRLetterpress
