#pragma once

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

    /// Draws into `frame`, with the row's background. Nothing without a card.
    void drawWithFrame(QPainter& painter, const QRectF& frame) const;

private:
    CVCard* m_card = nullptr;
    bool m_isHighlighted = false;
};
