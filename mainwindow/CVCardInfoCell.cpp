#include "mainwindow/CVCardInfoCell.h"

#include "mainwindow/CVCardTableRowView.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "timeline/CVAdditions.h"
#include "widgets/VRLetterpress.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

namespace {

// Distances in points, from the cell's upper left corner.
constexpr double inset = 6.0;
constexpr double accountGap = 8.0;

/// A line of text below the name.
struct Line
{
    double top = 0.0;
    int pixelSize = 0;
    QColor color;
};

QFont systemFont(int pixelSize)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixelSize);
    return font;
}

/// Draws as much of the text as fits between `left` and the end of the cell.
void drawLine(QPainter& painter, const QString& text, const Line& line, const QRectF& frame,
              double left)
{
    const double width = frame.right() - inset - left;
    if (text.isEmpty() || width <= 0.0) {
        return;
    }
    const auto font = systemFont(line.pixelSize);
    painter.setFont(font);
    painter.setPen(line.color);
    const QRectF box(left, frame.y() + line.top, width, QFontMetricsF(font).height());
    painter.drawText(box, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                     QFontMetricsF(font).elidedText(text, Qt::ElideRight, width));
}

} // namespace

void CVCardInfoCell::drawWithFrame(QPainter& painter, const QRectF& frame) const
{
    if (!m_card) {
        return;
    }
    CVCardTableRowView::drawBackground(painter, frame, m_isHighlighted);

    const auto titleColor = CVAdditions::cvCardTitleColorForHighlightedState(m_isHighlighted);
    const auto subtitleColor = CVAdditions::cvCardSubtitleColorForHighlightedState(m_isHighlighted);
    const VRLetterpress::Attributes title{systemFont(14), titleColor};
    const QFontMetricsF metrics(title.font);
    const double left = frame.x() + inset;
    const auto name = metrics.elidedText(m_card->name().value_or(QString()), Qt::ElideRight,
                                         frame.width() - 2.0 * inset);
    VRLetterpress::vr_drawLetterpressAtPoint(painter, name, {left, frame.y() + inset}, title,
                                             m_isHighlighted ? 0.5 : 0.75);

    const Line account{inset + 3.0, 11, subtitleColor};
    drawLine(painter, m_card->account().value_or(QString()), account, frame,
             left + metrics.horizontalAdvance(name) + accountGap);
    const auto* const statement = m_card->lastStatement();
    if (!statement) {
        return;
    }
    drawLine(painter, statement->formattedBalanceAndLimit(), {29.0, 13, titleColor}, frame, left);
    drawLine(painter, statement->formattedAPR(), {50.0, 11, subtitleColor}, frame, left);
    drawLine(painter, m_card->formattedForecast(), {68.0, 11, subtitleColor}, frame, left);
}
