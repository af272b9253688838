#pragma once

class CVCard;
class CVCardTableView;

/// Learns what the person does in the list of cards.
class CVCardTableViewDelegate
{
public:
    virtual ~CVCardTableViewDelegate() = default;

    /// The row of a card was chosen; it is selected right after.
    virtual void cardTableViewDidSelectCard(CVCardTableView& table, CVCard& card, int index) = 0;
};
