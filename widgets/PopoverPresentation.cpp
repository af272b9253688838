#include "widgets/PopoverPresentation.h"

#include "widgets/PopoverAppearance.h"
#include "widgets/PopoverBody.h"
#include "widgets/PopoverFrame.h"
#include "widgets/WidgetLifetime.h"

#include <QWidget>

#include <initializer_list>
#include <utility>

PopoverPresentation::PopoverPresentation(QWidget& window, QWidget& content,
                                         const QString& accessibleName)
    : QObject(&window)
    , m_window(window)
    , m_frame(new PopoverFrame(window))
    , m_edge(new QWidget(&window))
    , m_body(new PopoverBody(window, content))
    , m_focusBefore(window.focusWidget())
{
    m_edge->setAttribute(Qt::WA_NoMousePropagation);
    m_body->setAccessibleName(accessibleName);
    connect(m_body, &PopoverBody::sizeHintDidChange, this,
            &PopoverPresentation::panelSizeDidChange);
    m_glide.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_glide, &QVariantAnimation::valueChanged, this, [this](const QVariant& distance) {
        // Setting a key value asks for the current one, before anything moves.
        if (m_glide.state() == QAbstractAnimation::Running) {
            arrange(m_placement.translated(distance.toPoint()));
        }
    });
}

PopoverPresentation::~PopoverPresentation()
{
    // The window may be taking everything down, and with the body what is in it.
    if (m_body) {
        m_body->giveContentBack();
    }
}

QSize PopoverPresentation::panelSize() const
{
    constexpr int inset = PopoverFrame::bodyInset;
    return m_body->sizeHint().grownBy({inset, inset, inset, inset});
}

void PopoverPresentation::appear(const PopoverPlacement& placement, int durationInMilliseconds)
{
    m_placement = placement;
    arrange(placement);
    const auto place = m_frame->geometry() & m_window.rect();
    const bool isAnimated = durationInMilliseconds > 0 && m_window.isVisible() && !place.isEmpty();
    PopoverAppearance::Pictures pictures;
    if (isAnimated) {
        pictures.before = m_window.grab(place);
    }
    for (auto* const widget : std::initializer_list<QWidget*>{m_frame, m_edge, m_body}) {
        widget->show();
        widget->raise();
    }
    m_body->focusFirstField();
    if (isAnimated) {
        pictures.after = m_window.grab(place);
        m_appearance = new PopoverAppearance(m_window, std::move(pictures), durationInMilliseconds);
        m_appearance->setGeometry(place);
        m_appearance->show();
        connect(m_appearance, &PopoverAppearance::finished, this, [this] {
            m_appearance->hide();
            m_appearance->deleteLater();
            Q_EMIT didAppear();
        });
    } else {
        Q_EMIT didAppear();
    }
}

void PopoverPresentation::moveTo(const PopoverPlacement& placement, int durationInMilliseconds)
{
    if (placement == m_placement) {
        return;
    }
    constexpr QPoint inset(PopoverFrame::bodyInset, PopoverFrame::bodyInset);
    const QPoint distance = m_body->pos() - inset - placement.panel.topLeft();
    m_glide.stop();
    m_placement = placement;
    if (m_appearance) {
        m_appearance->hide();
    }
    if (durationInMilliseconds > 0) {
        m_glide.setDuration(durationInMilliseconds);
        m_glide.setStartValue(distance);
        m_glide.setEndValue(QPoint());
        m_glide.start();
    } else {
        arrange(placement);
    }
}

bool PopoverPresentation::isAtPoint(const QPoint& point) const
{
    const auto* const widget = m_window.childAt(point);
    return widget && (widget == m_edge || widget == m_body || m_body->isAncestorOf(widget));
}

void PopoverPresentation::end()
{
    disconnect();
    m_glide.stop();
    moveFocusBack();
    if (m_body) {
        m_body->hide();
        m_body->giveContentBack();
    }
    // A field may have insisted on the focus for as long as it could.
    moveFocusBack();
    for (auto* const widget :
         std::initializer_list<QWidget*>{m_frame, m_edge, m_body, m_appearance}) {
        if (widget) {
            widget->hide();
            // An event may still be on its way through the body.
            widget->deleteLater();
        }
    }
    deleteLater();
}

void PopoverPresentation::arrange(const PopoverPlacement& placement)
{
    constexpr int inset = PopoverFrame::bodyInset;
    m_frame->arrange(placement);
    m_edge->setGeometry(m_frame->geometry());
    m_edge->setMask(m_frame->outline());
    m_body->setGeometry(placement.panel.adjusted(inset, inset, -inset, -inset));
}

void PopoverPresentation::moveFocusBack()
{
    const auto* const focus = m_window.focusWidget();
    const bool isElsewhere = focus && focus != m_body && !(m_body && m_body->isAncestorOf(focus));
    if (isElsewhere || WidgetLifetime::isEnding(m_window)) {
        return;
    }
    (mayHaveFocus(m_focusBefore) ? *m_focusBefore : m_window).setFocus(Qt::OtherFocusReason);
}

bool PopoverPresentation::mayHaveFocus(const QWidget* widget) const
{
    if (!widget || !widget->isVisible() || !widget->isEnabled() || !m_window.isAncestorOf(widget)) {
        return false;
    }
    while (widget != &m_window && !WidgetLifetime::isEnding(*widget)) {
        widget = widget->parentWidget();
    }
    return widget == &m_window;
}
