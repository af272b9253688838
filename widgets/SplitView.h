#pragma once

#include <QByteArray>
#include <QColor>
#include <QSplitter>

#include <map>
#include <set>

/// A splitter whose panes keep a minimum size or are collapsed, and come back as they were.
///
/// Panes are told apart by their index, sizes are in points along the view's orientation. Which
/// panes can be collapsed, QSplitter::setCollapsible() and setChildrenCollapsible() say. Such a
/// pane collapses when its divider is dragged below half of its minimum size, and opens when that
/// is dragged back (as wide as the mouse says) or clicked twice (as wide as it was before). The
/// last open pane stays open. A collapsed pane is disabled, so that the keyboard does not go where
/// nothing is seen.
///
/// setSizes(), and QSplitter's own saveState() and restoreState(), know nothing of a size to come
/// back to; there are operations below that do.
class SplitView : public QSplitter
{
    Q_OBJECT

public:
    explicit SplitView(QWidget* parent = nullptr);

    /// The smallest sizes of the panes that are there, by index; what is negative or not finite
    /// counts as 0. Panes named here also keep their size when the view is resized, as long as
    /// there is room: the others take what comes and goes.
    std::map<int, double> minimumSizes() const { return m_minimumSizes; }
    void setMinimumSizes(const std::map<int, double>& sizes);

    /// As QSplitter's, to be called on the view itself.
    void setSizes(const QList<int>& sizes);

    /// The colour of the one-point lines between the panes.
    QColor dividerColor() const { return m_dividerColor; }
    void setDividerColor(const QColor& color);

    /// False for an index without a pane, and for a pane that was hidden.
    bool isPaneCollapsed(int index) const;
    /// Collapses a pane, or gives it the size that it had before (that which it would like, if it
    /// was never open). Does nothing where that cannot be.
    void setPaneCollapsed(int index, bool isCollapsed);

    /// The sizes of the panes, those to come back to, and which are collapsed.
    QByteArray saveArrangement() const;
    /// Arranges the panes as they were saved, as far as the view's present size and the minimum
    /// sizes allow. False, with nothing changed, for bytes that were not saved by a view with as
    /// many panes, or are damaged.
    bool restoreArrangement(const QByteArray& arrangement);

Q_SIGNALS:
    void paneCollapsedChanged(int index, bool isCollapsed);

protected:
    QSplitterHandle* createHandle() override;
    bool event(QEvent* event) override;

private:
    int sizeToComeBackTo(int index) const;
    void rememberSizes();
    void openPanesBeside(QSplitterHandle* divider);
    void announceCollapses();
    void alignMirroredPanes();

    std::map<int, double> m_minimumSizes;
    QColor m_dividerColor = Qt::black;
    /// The sizes that panes had when they were last grasped or arranged while open.
    std::map<int, int> m_rememberedSizes;
    /// As last announced.
    std::set<int> m_collapsedPanes;
};
