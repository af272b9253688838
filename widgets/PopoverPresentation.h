#pragma once

#include "widgets/PopoverPlacement.h"

#include <QObject>
#include <QPointer>
#include <QVariantAnimation>

class PopoverAppearance;
class PopoverBody;
class PopoverFrame;
class QWidget;

/// A popover while it is seen: the stack of widgets that it consists of, where they are, and the
/// focus that it took. Made for one showing and owned by the window.
class PopoverPresentation : public QObject
{
    Q_OBJECT

public:
    /// The content, which has no parent, is lent until the end. Nothing is seen yet.
    PopoverPresentation(QWidget& window, QWidget& content, const QString& accessibleName);
    ~PopoverPresentation() override;

    QWidget& window() const { return m_window; }

    /// How large the panel has to be for its content, in points.
    QSize panelSize() const;

    /// Shows the popover and moves the focus into it; it is complete with didAppear(), or at once
    /// without a duration.
    void appear(const PopoverPlacement& placement, int durationInMilliseconds);

    /// Takes on the shape of another placement at once, and glides to its place; at once without a
    /// duration. Does nothing when the popover is there or on its way there.
    void moveTo(const PopoverPlacement& placement, int durationInMilliseconds);

    /// Whether the popover is what lies at this point of the window.
    bool isAtPoint(const QPoint& point) const;

    /// Moves the focus back to where it was, if it is still inside, gives the content back and
    /// deletes the popover's widgets and this object, but not before control returns to the event
    /// loop. Nothing is announced any more.
    void end();

Q_SIGNALS:
    void didAppear();
    /// The content may need another size now.
    void panelSizeDidChange();

private:
    void arrange(const PopoverPlacement& placement);
    void moveFocusBack();
    bool mayHaveFocus(const QWidget* widget) const;

    QWidget& m_window;
    // Null only when the window took them down with itself.
    QPointer<PopoverFrame> m_frame;
    /// Lies under the body and takes the mouse where the panel or the arrow stick out from it,
    /// which the frame cannot: its shadow must let the mouse through.
    QPointer<QWidget> m_edge;
    QPointer<PopoverBody> m_body;
    QPointer<PopoverAppearance> m_appearance;
    QPointer<QWidget> m_focusBefore;
    PopoverPlacement m_placement;
    /// From where it was, as a distance to its place, to none.
    QVariantAnimation m_glide;
};
