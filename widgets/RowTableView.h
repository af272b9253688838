#pragma once

#include "widgets/TiledBackground.h"

#include <QAbstractItemModel>
#include <QItemSelectionModel>
#include <QPointer>
#include <QWidget>

#include <optional>

/// A table of one column whose rows are all equally high.
///
/// It is as high as its rows together, so that its own coordinates are those of the document that a
/// scroll area shows, and at least as high as it takes to fill the scroll area. Only rows and parts
/// of rows that come into view are painted. Subclasses paint the rows.
class RowTableView : public QWidget
{
    Q_OBJECT

public:
    explicit RowTableView(QWidget* parent = nullptr);

    /// The table owns neither model; both must outlive it. The selection model may be null.
    void setModel(QAbstractItemModel* model);
    QAbstractItemModel* model() const { return m_model; }
    void setSelectionModel(QItemSelectionModel* selectionModel);
    QItemSelectionModel* selectionModel() const { return m_selectionModel; }

    /// In points.
    int rowHeight() const { return m_rowHeight; }
    void setRowHeight(int height);

    int numberOfRows() const;
    bool isRowSelected(int row) const;
    /// The rectangle of a row in the table's coordinates; empty for a row that is not there.
    QRect rectOfRow(int row) const;
    /// The row at a point in the table's coordinates; absent beside and below the rows.
    std::optional<int> rowAtPoint(const QPointF& point) const;

    /// Painted behind and below the rows.
    void setTiledBackground(TiledBackground background);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// Before the rows of a paint event are painted, and after: a place for what they share. When
    /// the first throws, that is logged and no row is painted.
    virtual void beginRows() {}
    virtual void endRows() {}
    /// Paints what `exposed` shows of a row. Both rectangles are in the table's coordinates.
    virtual void paintRow(QPainter& painter, int row, const QRect& rect, const QRect& exposed) = 0;

    void paintEvent(QPaintEvent* event) override;

private:
    void updateHeight();

    QPointer<QAbstractItemModel> m_model;
    QPointer<QItemSelectionModel> m_selectionModel;
    TiledBackground m_background;
    int m_rowHeight = 20;
};
