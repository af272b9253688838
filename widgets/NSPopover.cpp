#include "widgets/NSPopover.h"

#include "widgets/NSPopoverDelegate.h"
#include "widgets/PopoverPlacement.h"
#include "widgets/PopoverPresentation.h"

#include <QApplication>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScopeGuard>
#include <QStyle>
#include <QWidget>
#include <QWindow>

#include <stdexcept>
#include <utility>

NSPopover::NSPopover(QWidget& content, QObject* parent)
    : QObject(parent)
    , m_content(&content)
{
    connect(&content, &QObject::destroyed, this, &NSPopover::close);
}

NSPopover::~NSPopover()
{
    m_phase = Phase::Closing;
    takeDown();
}

void NSPopover::showRelativeToRect(const QRect& rect, QWidget& view, NSRectEdge preferredEdge)
{
    if (m_phase != Phase::Closed) {
        return;
    }
    if (!m_content) {
        throw std::logic_error("a popover outlived its content");
    }
    m_phase = Phase::Opening;
    setView(&view);
    m_positioningRect = rect.isNull() ? view.rect() : rect;
    m_preferredEdge = preferredEdge;

    const QPointer<NSPopover> self(this);
    const auto notStuck = qScopeGuard([&self] {
        if (self && self->m_phase == Phase::Opening) {
            self->takeDown();
            self->m_phase = Phase::Closed;
        }
    });
    if (m_delegate) {
        m_delegate->popoverWillShow(*this);
    }
    if (self && m_phase == Phase::Opening) {
        present();
    }
}

void NSPopover::setPositioningRect(const QRect& rect)
{
    if (m_phase == Phase::Shown && !rect.isNull()) {
        m_positioningRect = rect;
        place(Motion::Animated);
    }
}

void NSPopover::reposition()
{
    reposition(Motion::Animated);
}

void NSPopover::close()
{
    if (m_phase != Phase::Opening && m_phase != Phase::Shown) {
        return;
    }
    m_phase = Phase::Closing;
    const QPointer<NSPopover> self(this);
    const auto closed = qScopeGuard([&self] {
        if (self) {
            self->m_phase = Phase::Closed;
        }
    });
    takeDown();
    // A field that loses the focus may have done anything.
    if (self && m_delegate) {
        m_delegate->popoverDidClose(*this);
    }
}

void NSPopover::performClose()
{
    if (m_phase != Phase::Shown || m_isAsking) {
        return;
    }
    const QPointer<NSPopover> self(this);
    m_isAsking = true;
    const auto answered = qScopeGuard([&self] {
        if (self) {
            self->m_isAsking = false;
        }
    });
    const bool mayClose = !m_delegate || m_delegate->popoverShouldClose(*this);
    if (mayClose && self) {
        close();
    }
}

bool NSPopover::eventFilter(QObject* watched, QEvent* event)
{
    if (event == m_passedOn) {
        return false;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        // The window system's event, of which there is one for each press. What widgets get of it
        // may pass through several of them.
        if (m_behavior == Behavior::Semitransient &&
            isPressElsewhere(*watched, static_cast<const QMouseEvent&>(*event))) {
            // What the person pressed may not be there any more when the popover has closed.
            const QPointer<NSPopover> self(this);
            const auto presentation = m_presentation;
            passOn(*watched, *event);
            if (self && presentation && presentation == m_presentation) {
                performClose();
            }
            return true;
        }
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (carriesAnchor(*watched)) {
            // What is in the view goes to its place by this event.
            const QPointer<NSPopover> self(this);
            passOn(*watched, *event);
            if (self) {
                reposition(Motion::AtOnce);
            }
            return true;
        }
        break;
    default:
        break;
    }
    return false;
}

void NSPopover::present()
{
    m_phase = Phase::Shown;
    m_presentation = new PopoverPresentation(*m_view->window(), *m_content, m_accessibleName);
    connect(m_presentation, &QObject::destroyed, this, &NSPopover::close);
    connect(m_presentation, &PopoverPresentation::panelSizeDidChange, this,
            [this] { reposition(Motion::AtOnce); });
    connect(m_presentation, &PopoverPresentation::didAppear, this, [this] {
        if (m_delegate) {
            m_delegate->popoverDidShow(*this);
        }
    });
    QCoreApplication::instance()->installEventFilter(this);
    m_presentation->appear(placement(), animationDuration());
}

void NSPopover::takeDown()
{
    if (auto* const application = QCoreApplication::instance()) {
        application->removeEventFilter(this);
    }
    setView(nullptr);
    if (const auto presentation = std::exchange(m_presentation, nullptr)) {
        presentation->end();
    }
}

void NSPopover::reposition(Motion motion)
{
    const QPointer<NSPopover> self(this);
    askForAnchor();
    if (self && m_phase == Phase::Shown) {
        place(motion);
    }
}

void NSPopover::askForAnchor()
{
    // The answer may need scrolling, which asks again.
    if (m_phase != Phase::Shown || !m_delegate || m_isAskingForAnchor) {
        return;
    }
    const QPointer<NSPopover> self(this);
    m_isAskingForAnchor = true;
    const auto answered = qScopeGuard([&self] {
        if (self) {
            self->m_isAskingForAnchor = false;
        }
    });
    const auto anchor = m_delegate->popoverWillReposition(*this);
    if (self && m_phase == Phase::Shown && anchor && anchor->view && !anchor->rect.isNull()) {
        setView(anchor->view);
        m_positioningRect = anchor->rect;
        m_preferredEdge = anchor->preferredEdge;
    }
}

void NSPopover::setView(QWidget* view)
{
    if (m_view == view) {
        return;
    }
    if (m_view) {
        m_view->disconnect(this);
    }
    m_view = view;
    if (m_view) {
        connect(m_view, &QObject::destroyed, this, &NSPopover::close);
    }
}

void NSPopover::place(Motion motion)
{
    if (!m_presentation || !m_view) {
        return;
    }
    if (m_view->window() != &m_presentation->window()) {
        close();
        return;
    }
    m_presentation->moveTo(placement(), motion == Motion::Animated ? animationDuration() : 0);
}

PopoverPlacement NSPopover::placement() const
{
    const auto& window = m_presentation->window();
    auto anchor = m_positioningRect;
    const auto* widget = m_view.data();
    while (widget != &window) {
        anchor = PopoverPlacement::visiblePartOfAnchor(anchor, widget->rect());
        anchor.translate(widget->pos());
        widget = widget->parentWidget();
    }
    return PopoverPlacement::nextToAnchor(
        PopoverPlacement::visiblePartOfAnchor(anchor, window.rect()), m_presentation->panelSize(),
        m_preferredEdge, window.size());
}

int NSPopover::animationDuration() const
{
    return m_animates
               ? m_view->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, m_view)
               : 0;
}

void NSPopover::passOn(QObject& watched, QEvent& event)
{
    const QPointer<NSPopover> self(this);
    const auto* const outer = std::exchange(m_passedOn, &event);
    const auto passedOn = qScopeGuard([&self, outer] {
        if (self) {
            self->m_passedOn = outer;
        }
    });
    // Not sent, which would make an event of the window system one of the program.
    QCoreApplication::instance()->notify(&watched, &event);
}

bool NSPopover::isPressElsewhere(const QObject& watched, const QMouseEvent& press) const
{
    // While something is popped up, it gets the press first, wherever that is; when it lets it
    // through, the press comes again.
    const auto point = press.position().toPoint();
    if (!m_presentation || &watched != m_presentation->window().windowHandle() ||
        QApplication::activePopupWidget() || m_presentation->isAtPoint(point)) {
        return false;
    }
    const auto* widget = m_presentation->window().childAt(point);
    while (widget && widget != m_opener && !qobject_cast<const QMenuBar*>(widget)) {
        widget = widget->parentWidget();
    }
    return !widget;
}

bool NSPopover::carriesAnchor(const QObject& object) const
{
    const auto* const widget = qobject_cast<const QWidget*>(&object);
    return m_view && widget && (widget == m_view || widget->isAncestorOf(m_view));
}
