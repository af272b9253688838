#pragma once

#include "store/ReadTransaction.h"
#include "timeline/AccessibleStatementEvents.h"
#include "timeline/CVCardTimelineCell.h"
#include "timeline/CVTimelineData.h"
#include "timeline/CardTimelineGeometry.h"
#include "widgets/RowTableView.h"

#include <optional>

class CVTimelineTableViewDelegate;
class NSArrayController;
class NSManagedObjectContext;
class QHelpEvent;

/// The body of the timeline: one row per card, drawn by a CVCardTimelineCell on an axis that all
/// rows share. The selected row is that of the card which is selected in the list.
class CVTimelineTableView : public RowTableView
{
    Q_OBJECT

public:
    explicit CVTimelineTableView(QWidget* parent = nullptr);

    /// Nothing is drawn without one. The context must outlive the table or be taken away again.
    void setManagedObjectContext(NSManagedObjectContext* context);
    NSManagedObjectContext* managedObjectContext() const { return m_context; }

    /// The cards of the rows and their selection; the controller must outlive the table.
    void setCardsController(NSArrayController& cards);
    /// Who is told what the person does; null for nobody. Must outlive the table.
    void setTimelineDelegate(CVTimelineTableViewDelegate* delegate) { m_delegate = delegate; }
    /// Who says which statement is the selected one.
    void setTimelineCellDelegate(CVCardTimelineCellDelegate* delegate);
    CVCardTimelineCellDelegate* timelineCellDelegate() const
    {
        return m_cell.timelineCellDelegate();
    }

    /// The width of the timeline's column, in points.
    double timelineWidth() const { return width(); }
    void setTimelineWidth(double width);

    /// The card of a row; null when the row is not there.
    CVCard* cardAtRow(int row) const;
    /// Absent for a card that is not listed.
    std::optional<int> rowForCard(const CVCard* card) const;
    /// Where the parts of a row are; absent when the row is not there. Throws NSError when the
    /// statements cannot be read.
    std::optional<CardTimelineGeometry> geometryOfRow(int row) const;

    /// The square of the statement's dot in the table's coordinates; absent when it is nowhere: the
    /// statement, or its card, is not on the timeline (which is logged), or it has no date. Throws
    /// NSError when the statements cannot be read.
    std::optional<QRectF> rectForStatement(const CVStatement& statement) const;
    /// The square in which the statement is seen and reached: that of its dot, or of the mark that
    /// stands for a dot beyond its row. Absent, logged and thrown as above.
    std::optional<QRectF> anchorRectForStatement(const CVStatement& statement) const;

    /// As the cell delegate says.
    bool isStatementSelected(const CVStatement& statement) const;
    /// The cell delegate says another one from now on. Either may be null.
    void selectedStatementDidChange(CVStatement* previous, CVStatement* current);

    /// Scrolls to a statement and tells the delegate what it hears of clicks on its dot. Does
    /// nothing for one that is nowhere. Throws NSError when the statements cannot be read.
    void clickStatement(CVStatement& statement, int clickCount);
    /// Tells the delegate that what was clicked is no statement.
    void unselectStatement();
    /// Tells the delegate that the person gives up what is going on.
    void cancelOperation();

    std::unique_ptr<AccessibleRow> makeAccessibleRow(AccessibleRowList& list,
                                                     const QModelIndex& index) override;

protected:
    void beginRows() override;
    void endRows() override;
    void paintRow(QPainter& painter, int row, const QRect& rect, const QRect& exposed) override;

    void willSelectRow(int row) override;

    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// A statement's point, and the geometry of its row.
    struct Place
    {
        CardTimelineGeometry geometry;
        QPointF point;
    };
    std::optional<Place> placeOfStatement(const CVStatement& statement) const;
    void mouseDown(QMouseEvent* event, int clickCount);
    void showToolTip(const QHelpEvent& event);

    NSManagedObjectContext* m_context = nullptr;
    NSArrayController* m_cards = nullptr;
    CVTimelineTableViewDelegate* m_delegate = nullptr;
    CVCardTimelineCell m_cell;
    /// While a paint event lasts: the axis of all rows.
    std::optional<CVTimelineData> m_axis;
    /// And their one look at the file.
    std::optional<ReadTransaction> m_reading;
    AccessibleStatementEvents m_accessibleStatementEvents{*this};
};
