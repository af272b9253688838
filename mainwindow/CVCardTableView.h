#pragma once

#include "widgets/RowTableView.h"

#include <map>
#include <vector>

class CVCard;
class CVCardTableRowView;
class CVCardTableViewDelegate;
class NSArrayController;
class QAction;

/// The list of cards.
///
/// Its rows are widgets, made for the rows in view only and used again for others when they are
/// scrolled away. As long as a card is in view it keeps its widget, wherever its row moves.
class CVCardTableView : public RowTableView
{
    Q_OBJECT

public:
    explicit CVCardTableView(QWidget* parent = nullptr);

    /// The cards of the rows and their selection; the controller must outlive the table.
    void setCardsController(NSArrayController& cards);
    /// Who is told which row the person chose; null for nobody. Must outlive the table.
    void setCardDelegate(CVCardTableViewDelegate* delegate) { m_delegate = delegate; }

    /// The command of the rows' "+", which is enabled when that is. Must outlive the table.
    void setAddStatementAction(QAction* action);

    /// The card of a row; null when the row is not there.
    CVCard* cardAtRow(int row) const;
    /// Absent for a card that is not listed.
    std::optional<int> rowForCard(const CVCard* card) const;
    /// The view of a row that is in view; else null.
    CVCardTableRowView* rowView(int row) const;
    /// The row of the row view that `view` is in; absent when it is in none.
    std::optional<int> rowForView(const QWidget* view) const;

    /// Where popovers point to, in the table's coordinates; an empty rectangle for a row that is
    /// not in view.
    QRect cardInfoPopoverAnchorRectForRow(int row) const;
    QRect newStatementPopoverAnchorRectForRow(int row) const;

    /// Scrolls to a row and announces it as one that was clicked twice. A row that is not there, or
    /// that there is no room to show, changes nothing.
    void doubleClickRow(int row);

    /// Lets all rows in view be drawn again: what they show may have changed.
    void redrawRows();

    std::unique_ptr<AccessibleRow> makeAccessibleRow(AccessibleRowList& list,
                                                     const QModelIndex& index) override;

Q_SIGNALS:
    /// A row view was made, or given another row.
    void didAddRowView(CVCardTableRowView* rowView, int row);
    /// A row was clicked twice: this is its view.
    void doubleClicked(QObject* sender);
    /// The "+" of a row was pressed: this button.
    void addStatement(QObject* sender);

protected:
    void willSelectRow(int row) override;
    void layoutRows() override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QRect rectForSubview(const QWidget* view, int row) const;
    CVCardTableRowView& spareRowView();
    void showSelection();
    bool canAddStatements() const;
    void showWhetherStatementsCanBeAdded();

    NSArrayController* m_cards = nullptr;
    QAction* m_addStatementAction = nullptr;
    CVCardTableViewDelegate* m_delegate = nullptr;
    std::map<int, CVCardTableRowView*> m_rowViews;
    /// Those that wait for a row, hidden.
    std::vector<CVCardTableRowView*> m_spareRowViews;
};
