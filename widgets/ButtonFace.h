#pragma once

#include <QColor>
#include <QLinearGradient>
#include <QRectF>

/// The colours of a button in one of its states.
struct ButtonFace
{
    QColor top;
    QColor bottom;
    QColor border;
    /// Of the title or the sign.
    QColor ink;

    /// From the top of a button to its bottom.
    QLinearGradient gradient(const QRectF& button) const
    {
        QLinearGradient gradient(button.topLeft(), button.bottomLeft());
        gradient.setColorAt(0, top);
        gradient.setColorAt(1, bottom);
        return gradient;
    }
};
