#include "mainwindow/CVCardInfoCell.h"

#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "timeline/CVAdditions.h"
#include "widgets/DesktopFont.h"
#include "widgets/VRGradientBackgroundStencil.h"
#include "widgets/VRLetterpress.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QStringList>

#include <cmath>
#include <vector>

namespace {

// Distances in points, from the cell's upper left corner.
constexpr double inset = 6.0;
constexpr double accountGap = 8.0;
constexpr double amountsTop = 29.0;
constexpr double rateTop = 50.0;
constexpr double forecastTop = 68.0;

constexpr int titleSize = 14;
constexpr int amountsSize = 13;
constexpr int smallestAmountsSize = 10;
constexpr int largestAmountsSize = 15;
constexpr int detailSize = 11;
/// What fits between the lines.
constexpr int largestDetailSize = 14;

QFont systemFont(int pixelSize)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixelSize);
    return font;
}

/// The largest font up to `pixelSize` in which the text is no wider than `width`, but none smaller
/// than the smallest.
QFont fittingFont(const QString& text, double width, int pixelSize, int smallestPixelSize)
{
    QFont font = systemFont(pixelSize);
    while (pixelSize > smallestPixelSize && QFontMetricsF(font).horizontalAdvance(text) > width) {
        font.setPixelSize(--pixelSize);
    }
    return font;
}

/// A text of the cell, and where it goes.
struct Line
{
    QString text;
    QRectF box;
    QFont font;
    bool isSubtitle = true;
    bool isOwnText = false;

    QString elidedText() const
    {
        return QFontMetricsF(font).elidedText(text, Qt::ElideRight, box.width());
    }
};

/// What the card is called first.
std::vector<Line> linesOf(const CVCard& card, const QRectF& frame, double trailingSpace)
{
    std::vector<Line> lines;
    const double left = frame.x() + inset;
    const double right = frame.right() - trailingSpace;
    const auto add = [&](const QString& text, double x, double top, const QFont& font,
                         bool isSubtitle = true, bool isOwnText = false) {
        if (x < right) {
            const QRectF box(x, frame.y() + top, right - x, QFontMetricsF(font).height());
            lines.push_back({text, box, font, isSubtitle, isOwnText});
        }
    };
    const auto titleFont = systemFont(titleSize);
    const auto detailFont = systemFont(DesktopFont::pixelSize(detailSize, largestDetailSize));
    const auto name = card.displayName();
    add(name, left, inset, titleFont, false, true);
    const double nameWidth = QFontMetricsF(titleFont).horizontalAdvance(name);
    // On the line of the name.
    const double accountTop =
        inset + std::round(QFontMetricsF(titleFont).ascent() - QFontMetricsF(detailFont).ascent());
    add(card.account().value_or(QString()), left + nameWidth + accountGap, accountTop, detailFont,
        true, true);
    if (const auto* const statement = card.lastStatement()) {
        const auto amounts = statement->formattedBalanceAndLimit();
        const int size = DesktopFont::pixelSize(amountsSize, largestAmountsSize);
        const auto font = fittingFont(amounts, right - left, size, smallestAmountsSize);
        add(amounts, left,
            amountsTop + QFontMetricsF(systemFont(amountsSize)).ascent() -
                QFontMetricsF(font).ascent(),
            font, false);
        add(statement->formattedAPR(), left, rateTop, detailFont);
        add(card.formattedForecast(), left, forecastTop, detailFont);
    }
    return lines;
}

} // namespace

void CVCardInfoCell::drawWithFrame(QPainter& painter, const QRectF& frame) const
{
    if (!m_card) {
        return;
    }
    VRGradientBackgroundStencil stencil;
    stencil.setGradientHeight(10.0);
    stencil.setHighlighted(m_isHighlighted);
    stencil.setBaseColor(CVAdditions::cvCardBackgroundColorForHighlightedState(m_isHighlighted));
    stencil.drawInRect(painter, frame);

    const auto lines = linesOf(*m_card, frame, m_trailingSpace);
    const auto titleColor = CVAdditions::cvCardTitleColorForHighlightedState(m_isHighlighted);
    const auto subtitleColor = CVAdditions::cvCardSubtitleColorForHighlightedState(m_isHighlighted);
    const auto direction = painter.layoutDirection();
    const bool isMirrored = direction == Qt::RightToLeft;
    const auto textAlignment =
        (isMirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute | Qt::AlignTop;
    bool isTitle = true;
    for (const auto& line : lines) {
        QRectF box = line.box;
        if (isMirrored) {
            box.moveRight(frame.left() + frame.right() - box.left());
        }
        // What the person wrote has a direction of its own: of "•••• 4410", the dots come first.
        const bool isLeftward = line.isOwnText ? line.text.isRightToLeft() : isMirrored;
        painter.setLayoutDirection(isLeftward ? Qt::RightToLeft : Qt::LeftToRight);
        if (isTitle) {
            VRLetterpress::vr_drawLetterpressInRect(painter, line.elidedText(), box,
                                                    {line.font, titleColor, textAlignment},
                                                    m_isHighlighted ? 0.5 : 0.75);
            isTitle = false;
            continue;
        }
        painter.setFont(line.font);
        painter.setPen(line.isSubtitle ? subtitleColor : titleColor);
        painter.drawText(box, static_cast<int>(textAlignment) | Qt::TextSingleLine,
                         line.elidedText());
    }
    painter.setLayoutDirection(direction);
}

QString CVCardInfoCell::expansionToolTip(const QRectF& frame) const
{
    QStringList cut;
    if (m_card) {
        for (const auto& line : linesOf(*m_card, frame, m_trailingSpace)) {
            if (line.elidedText() != line.text) {
                cut.append(line.text);
            }
        }
    }
    return cut.join(u'\n');
}
