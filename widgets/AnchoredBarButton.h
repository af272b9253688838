#pragma once

#include <QAbstractButton>
#include <QColor>

class QAction;

/// A flat button of an anchored button bar: the glyph of its action, and a divider at its trailing
/// edge. It keeps out of the way of a hand at the mouse, which leaves the focus where it is.
class AnchoredBarButton : public QAbstractButton
{
    Q_OBJECT

public:
    /// The action must outlive the button.
    AnchoredBarButton(QAction& action, QWidget* parent);

    /// Takes over what the action is now: its icon text as the glyph, its text as the name, whether
    /// it is enabled and visible.
    void updateFromAction();

    void setDividerColor(const QColor& color);

    /// 40 points wide, divider included.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawGlyph(QPainter& painter, const QRectF& face) const;

    const QAction& m_action;
    QColor m_dividerColor;
};
