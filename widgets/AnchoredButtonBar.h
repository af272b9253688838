#pragma once

#include "widgets/GradientBox.h"

#include <QColor>

#include <vector>

class AnchoredBarButton;
class QAbstractButton;
class QHBoxLayout;

/// A bar that ends a pane, with a button for each action that is added to it (in code or in the
/// interface description), in their order from the leading edge. A button shows its action's icon
/// text, which should be a single glyph, and bears its action's text as name; it comes, changes and
/// goes with the action. Separators have no button.
///
/// The bar has a top border and a layout of its own.
class AnchoredButtonBar : public GradientBox
{
    Q_OBJECT

public:
    explicit AnchoredButtonBar(QWidget* parent = nullptr);

    /// The colour of the one-point line after each button.
    QColor dividerColor() const { return m_dividerColor; }
    void setDividerColor(const QColor& color);

    /// The button of an action; null when the action is not in the bar.
    QAbstractButton* buttonForAction(const QAction* action) const;

protected:
    void actionEvent(QActionEvent* event) override;

private:
    struct Entry
    {
        const QAction* action;
        AnchoredBarButton* button;
    };

    std::vector<Entry>::const_iterator find(const QAction* action) const;
    void insertButton(QAction& action, const QAction* before);
    void removeButton(const QAction* action);

    std::vector<Entry> m_entries;
    QHBoxLayout* m_layout;
    QColor m_dividerColor = Qt::gray;
};
