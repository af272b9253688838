#pragma once

#include "mainwindow/CVCardTableCellView.h"

#include <QWidget>

class CVCard;

/// A row in the list of cards: its background, a panel that is pressed in while the row is
/// selected, and the cell view of its card.
class CVCardTableRowView : public QWidget
{
    Q_OBJECT

public:
    explicit CVCardTableRowView(QWidget* parent = nullptr);

    CVCardTableCellView& cellView() { return *m_cellView; }
    const CVCardTableCellView& cellView() const { return *m_cellView; }

    bool isSelected() const { return m_isSelected; }
    void setSelected(bool isSelected);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void drawBackgroundInRect(QPainter& painter, const QRectF& rect) const;
    void drawSelectionInRect(QPainter& painter, const QRectF& rect) const;
    void internalDrawBackgroundInRect(QPainter& painter, const QRectF& rect) const;

    CVCardTableCellView* m_cellView;
    bool m_isSelected = false;
};
