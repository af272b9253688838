#pragma once

#include "widgets/PopoverAnchor.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

class NSPopoverDelegate;
class PopoverPresentation;
struct PopoverPlacement;
class QMouseEvent;

/// A panel that shows its content beside a rectangle of a view, with an arrow that points there.
///
/// It is drawn inside the view's window, over everything else, and stays inside. When the rectangle
/// moves, because its view is scrolled or the window is resized, the popover follows as far as it
/// is visible; it also follows what its content needs. Whenever it is placed anew, the delegate may
/// point it somewhere else. Rectangles are in points and in the coordinates of their view.
///
/// While the popover is closing, from before its content is taken out until the delegate knows,
/// whatever would show, move or close it has no effect. The popover may be destroyed at any time;
/// its delegate then hears nothing.
class NSPopover : public QObject
{
    Q_OBJECT

public:
    enum class Behavior
    {
        /// It closes only when told to.
        ApplicationDefined,
        /// It also closes, if the delegate agrees, when the mouse is pressed somewhere else in its
        /// window; the press has done there by then what it would do without a popover. The menu
        /// bar and the opener are not somewhere else, nor is what pops up, menus, lists and tool
        /// tips, and neither are other windows.
        Semitransient,
    };

    /// The content has no parent. It is borrowed for as long as the popover is shown, and has no
    /// parent and is hidden again afterwards. The panel takes the size that the content hints at.
    explicit NSPopover(QWidget& content, QObject* parent = nullptr);
    ~NSPopover() override;

    /// Null at first. The delegate must outlive the popover or be taken away.
    NSPopoverDelegate* delegate() const { return m_delegate; }
    void setDelegate(NSPopoverDelegate* delegate) { m_delegate = delegate; }

    /// Application-defined at first.
    Behavior behavior() const { return m_behavior; }
    void setBehavior(Behavior behavior) { m_behavior = behavior; }

    /// Whether it appears and moves softly, as long as the person has not turned off animations.
    /// False at first.
    bool animates() const { return m_animates; }
    void setAnimates(bool animates) { m_animates = animates; }

    /// What assistive programs call the dialog that the popover is to them, from the next time
    /// that it is shown.
    QString accessibleName() const { return m_accessibleName; }
    void setAccessibleName(const QString& name) { m_accessibleName = name; }

    /// The control that the person opens the popover with: pressed again, it does what it does and
    /// closes nothing. Null at first, for none, and after the control's end.
    QWidget* opener() const { return m_opener; }
    void setOpener(QWidget* opener) { m_opener = opener; }

    /// Shows the popover at an edge of `rect`, or where there is room, and moves the focus into it.
    /// The null rectangle stands for all of the view. Without effect unless the popover is closed.
    /// Throws std::logic_error when the content does not exist any more.
    void showRelativeToRect(const QRect& rect, QWidget& view, NSRectEdge preferredEdge);

    /// From before it appears until it begins to close.
    bool isShown() const { return m_phase == Phase::Shown; }

    /// What the popover points at. Setting it moves a popover that is shown and has no effect
    /// otherwise, nor when the rectangle is the null one: that is nowhere. The delegate is not
    /// asked.
    QRect positioningRect() const { return m_positioningRect; }
    void setPositioningRect(const QRect& rect);

    /// Moves a popover that is shown to where the delegate says that it points now, which may be in
    /// another view of its window. It closes when that is a view of another window. No effect
    /// unless shown.
    void reposition();

    /// Closes the popover without asking, as the end of its view, its window or its content does.
    /// The focus goes back to where it was, if it has not left the popover by itself.
    void close();

    /// Closes the popover if the delegate agrees.
    void performClose();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Phase
    {
        Closed,
        Opening,
        Shown,
        Closing,
    };
    enum class Motion
    {
        AtOnce,
        Animated,
    };

    void present();
    void takeDown();
    void reposition(Motion motion);
    void askForAnchor();
    void setView(QWidget* view);
    void place(Motion motion);
    PopoverPlacement placement() const;
    int animationDuration() const;
    void passOn(QObject& watched, QEvent& event);
    bool isPressElsewhere(const QObject& watched, const QMouseEvent& press) const;
    bool carriesAnchor(const QObject& object) const;

    QPointer<QWidget> m_content;
    NSPopoverDelegate* m_delegate = nullptr;
    Behavior m_behavior = Behavior::ApplicationDefined;
    bool m_animates = false;
    QString m_accessibleName;
    QPointer<QWidget> m_opener;

    Phase m_phase = Phase::Closed;
    bool m_isAsking = false;
    bool m_isAskingForAnchor = false;
    /// The event that is passed on before the popover acts on it; null for none.
    const QEvent* m_passedOn = nullptr;
    // The rest counts while it is shown.
    QPointer<QWidget> m_view;
    QRect m_positioningRect;
    NSRectEdge m_preferredEdge = NSRectEdge::MaxY;
    QPointer<PopoverPresentation> m_presentation;
};
