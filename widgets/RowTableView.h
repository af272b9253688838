#pragma once

#include "widgets/AccessibleRowEvents.h"
#include "widgets/TiledBackground.h"

#include <QAbstractItemModel>
#include <QItemSelectionModel>
#include <QPersistentModelIndex>
#include <QPointF>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>

class AccessibleRow;
class AccessibleRowList;
class QFocusFrame;
class QScrollArea;

/// A table of one column whose rows are all equally high.
///
/// It is as high as its rows together, so that its own coordinates are those of the document that a
/// scroll area shows, and at least as high as it takes to fill the scroll area. Only rows and parts
/// of rows that come into view are painted. Subclasses paint the rows.
///
/// A press on a row, or a key that moves from row to row, selects that row alone.
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

    /// Selects one row alone; a row that is not there changes nothing.
    void selectRow(int row);
    /// Selects it as the person does who presses on it.
    void chooseRow(int row);
    /// The last of the selected rows; absent when none is selected.
    std::optional<int> selectedRow() const;

    /// The part of the table that its scroll area shows; all of it outside of one.
    QRect visibleRect() const;
    /// Scrolls as little as shows the row; a row that is not there changes nothing.
    void scrollRowToVisible(int row);
    /// Scrolls until `point` is the upper left corner of what is shown, as near as that is
    /// possible.
    void scrollPoint(const QPointF& point);

    /// Painted behind and below the rows.
    void setTiledBackground(TiledBackground background);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// A new item for the row at an index, as assistive technology meets it: named by what the
    /// model displays, unless a subclass has more to tell.
    virtual std::unique_ptr<AccessibleRow> makeAccessibleRow(AccessibleRowList& list,
                                                             const QModelIndex& index);

protected:
    /// Before the rows of a paint event are painted, and after: a place for what they share. When
    /// the first throws, that is logged and no row is painted.
    virtual void beginRows() {}
    virtual void endRows() {}
    /// Paints what `exposed` shows of a row. Both rectangles are in the table's coordinates.
    virtual void paintRow(QPainter& painter, int row, const QRect& rect, const QRect& exposed);

    /// The person chose a row; it is selected right after.
    virtual void willSelectRow(int /*row*/) {}
    /// The point that a press or a double click is about, in the table's coordinates. A double
    /// click is about what its first press met, wherever that row is by now: the press may have
    /// moved the rows under the pointer.
    QPointF pointOfPress(const QMouseEvent& event) const;

    /// The rows themselves, their places, or the part of the table in view are others now.
    virtual void layoutRows() {}

    AccessibleRowEvents& accessibleRowEvents() { return m_accessibleRowEvents; }

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QScrollArea* enclosingScrollView() const;
    void rowsDidChange();
    void updateHeight();
    void showFocusFrame(bool isShown);
    /// The row that a key leads to from the selected one; absent for other keys.
    std::optional<int> rowForKey(int key) const;

    QPointer<QAbstractItemModel> m_model;
    QPointer<QItemSelectionModel> m_selectionModel;
    TiledBackground m_background;
    /// Around what is in view of the table, while it has the focus and the person uses the
    /// keyboard.
    QFocusFrame* m_focusFrame;
    int m_rowHeight = 20;
    /// The row that was pressed last; invalid when the press was beside the rows or the row is
    /// gone.
    QPersistentModelIndex m_pressedRow;
    /// Where in the row, and where on the screen that was.
    QPointF m_pressedPlace;
    QPointF m_pressedScreenPoint;
    AccessibleRowEvents m_accessibleRowEvents{*this};
};
