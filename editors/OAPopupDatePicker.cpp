#include "editors/OAPopupDatePicker.h"

#include "editors/OADateInk.h"
#include "editors/OADatePicker.h"
#include "editors/OADatePickerButton.h"
#include "editors/OADatePickerTextField.h"
#include "editors/PopupPlacement.h"
#include "foundation/UserDefaults.h"
#include "widgets/HighContrast.h"
#include "widgets/RoundedRing.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

OAPopupDatePicker& OAPopupDatePicker::sharedPopupDatePicker()
{
    static QPointer<OAPopupDatePicker> popup;
    if (!popup) {
        popup = new OAPopupDatePicker;
    }
    return *popup;
}

OAPopupDatePicker::OAPopupDatePicker()
    : QWidget(nullptr, Qt::Popup)
    , m_datePicker(new OADatePicker(this))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(m_datePicker);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(m_datePicker, &OADatePicker::datePicked, this, &OAPopupDatePicker::pick);
    connect(m_datePicker, &OADatePicker::dayDoubleClicked, this, &QWidget::close);
}

void OAPopupDatePicker::startPickingDateWithTitle(const QString& title,
                                                  OADatePickerTextField& control,
                                                  Instant defaultDate)
{
    close();
    m_control = &control;
    m_originalValue = control.date();
    m_hasPicked = false;
    control.installEventFilter(this);

    setParent(&control, Qt::Popup);
    // A window takes over nothing of its parent by itself, but for the palette, where a field's is
    // no good.
    setPalette(QGuiApplication::palette());
    setFont(control.font());
    setLayoutDirection(control.layoutDirection());
    setCursor(Qt::ArrowCursor);
    setWindowTitle(title);
    setAccessibleName(title);
    m_datePicker->setFirstDayOfTheWeek(
        UserDefaults::standardUserDefaults().integerForKey(u"FirstDayOfTheWeek"));
    m_datePicker->setDateValue(m_originalValue.value_or(defaultDate));
    placeBelowControl();
    m_datePicker->setFocus();
    show();
}

OADatePickerTextField* OAPopupDatePicker::control() const
{
    return m_control;
}

bool OAPopupDatePicker::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_control && event->type() == QEvent::Hide) {
        close();
    }
    return QWidget::eventFilter(watched, event);
}

bool OAPopupDatePicker::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // The window's shortcuts are not for now: an undo would change the field from behind.
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void OAPopupDatePicker::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        putBackOriginalValue();
        close();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        close();
        break;
    case Qt::Key_Period:
        if (event->modifiers() == Qt::ControlModifier) {
            close();
        }
        break;
    default:
        break;
    }
}

void OAPopupDatePicker::mousePressEvent(QMouseEvent* event)
{
    // Where a press closes the calendar, it also does what it does there. On the calendar button
    // that would be to open the calendar again.
    const auto& button = m_control->calendarButton();
    const auto point = button.mapFromGlobal(event->globalPosition().toPoint());
    setAttribute(Qt::WA_NoMouseReplay, button.isVisible() && button.rect().contains(point));
    QWidget::mousePressEvent(event);
}

void OAPopupDatePicker::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), OADateInk::paper);
    RoundedRing::draw(painter, rect(), 0.0, 1.0, HighContrast::ink(OADateInk::border));
}

void OAPopupDatePicker::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (m_control) {
        m_control->removeEventFilter(this);
        m_control = nullptr;
    }
}

void OAPopupDatePicker::pick(Instant date)
{
    if (m_control) {
        m_hasPicked = true;
        m_control->pickDate(date);
    }
}

void OAPopupDatePicker::putBackOriginalValue()
{
    // Without a pick nothing was changed, and a text that is no date may wait to be corrected.
    if (m_control && m_hasPicked) {
        m_control->enterDate(m_originalValue);
    }
}

void OAPopupDatePicker::placeBelowControl()
{
    const QRect field(m_control->mapToGlobal(QPoint()), m_control->size());
    const auto* const found = QGuiApplication::screenAt(field.center());
    const auto* const screen = found ? found : m_control->screen();
    adjustSize();
    move(PopupPlacement::topLeftBelowField(field, size(), screen->availableGeometry()));
}
