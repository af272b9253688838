#include "widgets/NoticeBar.h"

#include "widgets/AccessibleAnnouncements.h"
#include "widgets/DismissButton.h"
#include "widgets/FormButton.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>

namespace {

// In points.
constexpr int leastHeight = 36;
constexpr int verticalPadding = 4;
constexpr int horizontalMargin = 16;
constexpr int spacing = 8;

QAccessibleInterface* makeInterface(const QString& className, QObject* object)
{
    return className == QLatin1String(NoticeBar::staticMetaObject.className())
               ? new QAccessibleWidget(static_cast<NoticeBar*>(object), QAccessible::Notification)
               : nullptr;
}

/// The text on one or two lines of this width; what does not fit ends in an ellipsis.
QString wrappedToTwoLines(const QString& text, const QFont& font, int width)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    auto line = layout.createLine();
    line.setLineWidth(width);
    layout.endLayout();
    const auto first = text.left(line.textLength());
    const auto rest = text.mid(line.textLength());
    const QFontMetrics metrics(font);
    const auto shown = metrics.elidedText(first.trimmed(), Qt::ElideRight, width);
    return rest.isEmpty() ? shown : shown + u'\n' + metrics.elidedText(rest, Qt::ElideRight, width);
}

/// Between two lines there is a space in one language, and nothing in another.
bool isShortened(QString text, QString shown)
{
    return shown.remove(u'\n').remove(u' ') != text.remove(u' ');
}

} // namespace

NoticeBar::NoticeBar(QWidget* parent)
    : GradientBox(parent)
    , m_actionButton(new FormButton(this))
    , m_dismissButton(new DismissButton(this))
{
    QAccessible::installFactory(makeInterface);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(horizontalMargin, verticalPadding, horizontalMargin,
                               verticalPadding);
    layout->setSpacing(spacing);
    layout->addStretch();
    layout->addWidget(m_actionButton);
    layout->addWidget(m_dismissButton);
    // In a window, unlike in a dialog, this only lets Return press it.
    m_actionButton->setAutoDefault(true);
    connect(m_actionButton, &QAbstractButton::clicked, this, &NoticeBar::actionTriggered);
    connect(m_dismissButton, &QAbstractButton::clicked, this, [this] {
        clearNotice();
        Q_EMIT dismissed();
    });
    connect(qApp, &QApplication::focusChanged, this, &NoticeBar::rememberFocus);
    hide();
}

NoticeBar::~NoticeBar()
{
    // Its button gives up the focus when the bar is none any more.
    disconnect(qApp, nullptr, this, nullptr);
}

void NoticeBar::showNotice(const QString& text, const QString& actionTitle)
{
    m_text = text;
    setAccessibleName(text);
    if (actionTitle.isEmpty() && m_actionButton->hasFocus()) {
        m_dismissButton->setFocus(Qt::OtherFocusReason);
    }
    m_actionButton->setText(actionTitle);
    m_actionButton->setVisible(!actionTitle.isEmpty());
    layout()->activate();
    layoutText();
    if (isVisible()) {
        // Of a bar that comes into view, Qt tells it.
        QAccessibleEvent shown(this, QAccessible::ObjectShow);
        AccessibleAnnouncements::make(shown);
    }
    show();
}

void NoticeBar::clearNotice()
{
    m_text.clear();
    giveFocusBack();
    hide();
    setAccessibleName(QString());
}

void NoticeBar::setDismissible(bool isDismissible)
{
    if (!isDismissible && m_dismissButton->hasFocus()) {
        m_actionButton->setFocus(Qt::OtherFocusReason);
    }
    m_dismissButton->setVisible(isDismissible);
    layout()->activate();
    layoutText();
}

void NoticeBar::changeEvent(QEvent* event)
{
    GradientBox::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
        layoutText();
    }
}

void NoticeBar::paintEvent(QPaintEvent* event)
{
    GradientBox::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    painter.drawText(textRect(), static_cast<int>(alignment | Qt::AlignVCenter), m_shownText);
}

void NoticeBar::resizeEvent(QResizeEvent* /*event*/)
{
    layoutText();
}

void NoticeBar::rememberFocus(QWidget* before, QWidget* now)
{
    if (isAncestorOf(now) && !isAncestorOf(before)) {
        m_focusBefore = before;
    }
}

void NoticeBar::giveFocusBack()
{
    if (!isAncestorOf(window()->focusWidget())) {
        return;
    }
    if (m_focusBefore && m_focusBefore->isVisible() && m_focusBefore->isEnabled()) {
        m_focusBefore->setFocus(Qt::OtherFocusReason);
    } else {
        // Past the last of its own.
        m_dismissButton->setFocus(Qt::OtherFocusReason);
        focusNextChild();
    }
}

QRect NoticeBar::textRect() const
{
    const auto* const button =
        m_actionButton->isHidden() ? static_cast<const QWidget*>(m_dismissButton) : m_actionButton;
    const auto direction = layoutDirection();
    QRect place = rect().marginsRemoved(layout()->contentsMargins());
    place.setRight(QStyle::visualRect(direction, rect(), button->geometry()).left() - spacing);
    return QStyle::visualRect(direction, rect(), place);
}

void NoticeBar::layoutText()
{
    m_shownText = wrappedToTwoLines(m_text, font(), textRect().width());
    setToolTip(isShortened(m_text, m_shownText) ? m_text : QString());
    const auto lines = fontMetrics().size(0, m_shownText).height();
    setFixedHeight(std::max(
        {leastHeight, lines + 2 * verticalPadding, layout()->totalMinimumSize().height()}));
    update();
}
