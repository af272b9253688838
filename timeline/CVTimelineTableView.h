#pragma once

#include "store/ReadTransaction.h"
#include "timeline/CVCardTimelineCell.h"
#include "timeline/CVTimelineData.h"
#include "widgets/RowTableView.h"

#include <optional>

class NSArrayController;
class NSManagedObjectContext;

/// The body of the timeline: one row per card, drawn by a CVCardTimelineCell on an axis that all
/// rows share.
class CVTimelineTableView : public RowTableView
{
    Q_OBJECT

public:
    explicit CVTimelineTableView(QWidget* parent = nullptr);

    /// Nothing is drawn without one. The context must outlive the table or be taken away again.
    void setManagedObjectContext(NSManagedObjectContext* context);
    NSManagedObjectContext* managedObjectContext() const { return m_context; }

    /// The cards of the rows, from the first on; the controller must outlive the table.
    void setCardsController(NSArrayController& cards);
    /// Who says which statement is the selected one.
    void setTimelineCellDelegate(CVCardTimelineCellDelegate* delegate);

    /// The width of the timeline's column, in points.
    double timelineWidth() const { return width(); }
    void setTimelineWidth(double width);

protected:
    void beginRows() override;
    void endRows() override;
    void paintRow(QPainter& painter, int row, const QRect& rect, const QRect& exposed) override;

private:
    NSManagedObjectContext* m_context = nullptr;
    NSArrayController* m_cards = nullptr;
    CVCardTimelineCell m_cell;
    /// While a paint event lasts: the axis of all rows.
    std::optional<CVTimelineData> m_axis;
    /// And their one look at the file.
    std::optional<ReadTransaction> m_reading;
};
