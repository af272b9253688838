#pragma once

#include <QColor>
#include <QSplitterHandle>

#include <optional>

/// The line between two panes of a split view. It is as thick as the view's handle width says, but
/// can be grasped a few points beside it, too: enough even where one side lies at the view's edge.
class SplitViewDivider : public QSplitterHandle
{
    Q_OBJECT

public:
    SplitViewDivider(Qt::Orientation orientation, QSplitter* parent);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

Q_SIGNALS:
    /// The mouse took hold of the divider; it has not moved yet.
    void grasped();
    void doubleClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    int positionAlongView(const QPointF& globalPosition) const;

    QColor m_color;
    /// While the mouse holds the divider: how far from the line's near edge, along the view.
    std::optional<int> m_graspOffset;
};
