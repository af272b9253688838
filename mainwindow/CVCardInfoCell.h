#pragma once

#include <QString>

class CVCard;
class QPainter;
class QRectF;

/// Draws a card in the list: its name, pressed into the row, and below it what is owed, at what
/// rate, and for how long.
class CVCardInfoCell
{
public:
    CVCard* objectValue() const { return m_card; }
    /// The card is borrowed.
    void setObjectValue(CVCard* card) { m_card = card; }

    bool isHighlighted() const { return m_isHighlighted; }
    void setHighlighted(bool isHighlighted) { m_isHighlighted = isHighlighted; }

    /// What the texts leave free at their end of the frame, in points.
    double trailingSpace() const { return m_trailingSpace; }
    void setTrailingSpace(double space) { m_trailingSpace = space; }

    /// Draws into `frame`, with the row's background; the texts begin at its right where the
    /// painter's layout goes from right to left. Nothing without a card. Throws NSError when the
    /// card cannot be read.
    void drawWithFrame(QPainter& painter, const QRectF& frame) const;

    /// The texts that are too long for the frame, a line each; empty when all are drawn whole.
    /// Throws as drawing does.
    QString expansionToolTip(const QRectF& frame) const;

private:
    CVCard* m_card = nullptr;
    bool m_isHighlighted = false;
    double m_trailingSpace = 0.0;
};
