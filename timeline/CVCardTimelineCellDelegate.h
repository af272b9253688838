#pragma once

class CVCardTimelineCell;
class CVStatement;

/// What a cell of the timeline asks while it draws.
class CVCardTimelineCellDelegate
{
public:
    virtual ~CVCardTimelineCellDelegate() = default;

    /// Whether the statement is to be drawn as the selected one.
    virtual bool timelineCellSelectStatement(const CVCardTimelineCell& cell,
                                             const CVStatement& statement) const = 0;
};
