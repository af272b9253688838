#pragma once

#include "mainwindow/CVCardInfoCell.h"
#include "store/ReadTransaction.h"
#include "widgets/RowTableView.h"

#include <optional>

class NSArrayController;

/// The list of cards.
class CVCardTableView : public RowTableView
{
    Q_OBJECT

public:
    explicit CVCardTableView(QWidget* parent = nullptr);

    /// The cards of the rows and their selection; the controller must outlive the table.
    void setCardsController(NSArrayController& cards);

protected:
    void beginRows() override;
    void endRows() override;
    void paintRow(QPainter& painter, int row, const QRect& rect, const QRect& exposed) override;

private:
    NSArrayController* m_cards = nullptr;
    CVCardInfoCell m_cell;
    /// While a paint event lasts: the rows' one look at the file.
    std::optional<ReadTransaction> m_reading;
};
