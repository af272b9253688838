#include "widgets/PopoverBody.h"

#include "widgets/PopoverFrame.h"
#include "widgets/WidgetLifetime.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QKeyEvent>

namespace {

QAccessibleInterface* makeAccessibleBody(const QString& /*className*/, QObject* object)
{
    auto* const body = qobject_cast<PopoverBody*>(object);
    return body ? new QAccessibleWidget(body, QAccessible::Dialog) : nullptr;
}

} // namespace

PopoverBody::PopoverBody(QWidget& window, QWidget& content)
    : QWidget(&window, Qt::SubWindow)
    , m_content(&content)
{
    QAccessible::installFactory(makeAccessibleBody);
    setAttribute(Qt::WA_NoMousePropagation);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, PopoverFrame::panelColor());
    setPalette(colors);
    setAutoFillBackground(true);

    content.setParent(this);
    content.show();
}

PopoverBody::~PopoverBody()
{
    giveContentBack();
}

void PopoverBody::giveContentBack()
{
    if (m_content && !WidgetLifetime::isEnding(*m_content)) {
        m_content->setParent(nullptr);
    }
    m_content = nullptr;
}

QSize PopoverBody::sizeHint() const
{
    if (!m_content) {
        return {0, 0};
    }
    const auto hint = m_content->sizeHint();
    return (hint.isValid() ? hint : m_content->size())
        .expandedTo(m_content->minimumSizeHint())
        .expandedTo(m_content->minimumSize())
        .boundedTo(m_content->maximumSize());
}

void PopoverBody::focusFirstField()
{
    if (!m_content) {
        return;
    }
    QWidget* field = m_content->nextInFocusChain();
    const auto isField = [&] {
        return m_content->isAncestorOf(field) && (field->focusPolicy() & Qt::TabFocus) != 0 &&
               field->isEnabled() && field->isVisibleTo(m_content);
    };
    while (field != m_content && !isField()) {
        field = field->nextInFocusChain();
    }
    field->setFocus(Qt::TabFocusReason);
}

bool PopoverBody::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::LayoutRequest:
        Q_EMIT sizeHintDidChange();
        return true;
    case QEvent::NativeGesture:
        // Unlike the mouse's events these would go on to the parent all the same.
        event->accept();
        return true;
    default:
        return QWidget::event(event);
    }
}

void PopoverBody::keyPressEvent(QKeyEvent* event)
{
    event->accept();
}

void PopoverBody::keyReleaseEvent(QKeyEvent* event)
{
    event->accept();
}

void PopoverBody::resizeEvent(QResizeEvent* /*event*/)
{
    if (m_content) {
        m_content->setGeometry(rect());
    }
}
