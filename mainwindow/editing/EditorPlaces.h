#pragma once

#include "widgets/PopoverAnchor.h"

#include <optional>

struct EditorTarget;
class CVCardTableView;
class CVTimelineTableView;
class QWidget;

/// Knows where in the window an editor stands.
class EditorPlaces
{
public:
    /// All of them must outlive the places.
    EditorPlaces(QWidget& cardsTitle, CVCardTableView& cards, CVTimelineTableView& timeline);

    /// The place as it is now; absent while the record is not in the window. A row that is scrolled
    /// out of view counts as where it would be, a statement without a date as its card's row.
    std::optional<PopoverAnchor> placeOf(const EditorTarget& target) const;

private:
    QWidget& m_cardsTitle;
    CVCardTableView& m_cards;
    CVTimelineTableView& m_timeline;
};
