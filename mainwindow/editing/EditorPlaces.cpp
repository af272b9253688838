#include "mainwindow/editing/EditorPlaces.h"

#include "foundation/Log.h"
#include "mainwindow/CVCardTableView.h"
#include "mainwindow/editing/EditorTarget.h"
#include "model/CVCard.h"
#include "model/CVStatement.h"
#include "store/NSError.h"
#include "timeline/CVTimelineTableView.h"

namespace {

using RectForRow = QRect (CVCardTableView::*)(int row) const;

std::optional<PopoverAnchor> placeInRow(CVCardTableView& cards, const CVCard* card,
                                        RectForRow rectForRow)
{
    const auto row = cards.rowForCard(card);
    if (!row) {
        return std::nullopt;
    }
    const auto rect = (cards.*rectForRow)(*row);
    return PopoverAnchor{&cards, rect.isEmpty() ? cards.rectOfRow(*row) : rect, NSRectEdge::MaxX};
}

std::optional<PopoverAnchor> placeOfDot(CVTimelineTableView& timeline, const CVStatement& statement)
{
    try {
        const auto rect = timeline.anchorRectForStatement(statement);
        return rect ? std::optional(
                          PopoverAnchor{&timeline, rect->toAlignedRect(), NSRectEdge::MaxY})
                    : std::nullopt;
    } catch (const NSError& error) {
        Log::line(QString(u"Unable to find a statement's place: " + error.description()));
        return std::nullopt;
    }
}

} // namespace

EditorPlaces::EditorPlaces(QWidget& cardsTitle, CVCardTableView& cards,
                           CVTimelineTableView& timeline)
    : m_cardsTitle(cardsTitle)
    , m_cards(cards)
    , m_timeline(timeline)
{}

std::optional<PopoverAnchor> EditorPlaces::placeOf(const EditorTarget& target) const
{
    if (target.isGone()) {
        return std::nullopt;
    }
    switch (target.kind) {
    case EditorTarget::Kind::NewCard:
        return PopoverAnchor{&m_cardsTitle, m_cardsTitle.rect(), NSRectEdge::MaxY};
    case EditorTarget::Kind::Card:
        return placeInRow(m_cards, static_cast<const CVCard*>(target.record),
                          &CVCardTableView::cardInfoPopoverAnchorRectForRow);
    case EditorTarget::Kind::NewStatement:
        return placeInRow(m_cards, static_cast<const CVCard*>(target.record),
                          &CVCardTableView::newStatementPopoverAnchorRectForRow);
    case EditorTarget::Kind::Statement: {
        const auto& statement = static_cast<const CVStatement&>(*target.record);
        const auto row = placeInRow(m_cards, statement.card(),
                                    &CVCardTableView::cardInfoPopoverAnchorRectForRow);
        const auto dot = row ? placeOfDot(m_timeline, statement) : std::nullopt;
        return dot ? dot : row;
    }
    }
    return std::nullopt;
}
