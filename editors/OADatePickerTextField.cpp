#include "editors/OADatePickerTextField.h"

#include "editors/OADatePickerButton.h"
#include "editors/OAPopupDatePicker.h"
#include "foundation/Calendar.h"
#include "foundation/Clock.h"
#include "foundation/RelativeDateFormatter.h"

#include <QKeyEvent>
#include <QStyle>

namespace {

/// What the text and the button keep free at the button's side, in points.
constexpr int calendarInset = 2;

bool isSameDay(Instant left, Instant right)
{
    const auto& calendar = Calendar::current();
    const auto first = calendar.components(left);
    const auto second = calendar.components(right);
    return first && second && first->year == second->year && first->month == second->month &&
           first->day == second->day;
}

} // namespace

/// Gives the field the dates that people type.
class OADatePickerTextField::Formatter : public OATextFieldFormatter
{
public:
    /// The field owns the formatter.
    explicit Formatter(const OADatePickerTextField& field)
        : m_field(field)
    {}

    QString stringForObjectValue(const PropertyValue& value) const override
    {
        const auto date = propertyValueAs<Instant>(value);
        return date ? m_formatter.stringFromDate(*date) : QString();
    }

    PropertyValue objectValueForString(const QString& text) const override
    {
        const auto date = m_formatter.dateFromString(text);
        return date ? PropertyValue(m_field.withoutTimeToCome(*date)) : PropertyValue();
    }

    std::optional<PropertyValue> steppedValue(const PropertyValue& value, Step step) const override
    {
        return m_field.withoutTimeToCome(stepped(propertyValueAs<Instant>(value), step));
    }

private:
    Instant stepped(std::optional<Instant> date, Step step) const
    {
        switch (step) {
        case Step::Up:
            return m_formatter.stepUpValue(date);
        case Step::LargeUp:
            return m_formatter.largeStepUpValue(date);
        case Step::Down:
            return m_formatter.stepDownValue(date);
        case Step::LargeDown:
            break;
        }
        return m_formatter.largeStepDownValue(date);
    }

    const OADatePickerTextField& m_field;
    RelativeDateFormatter m_formatter;
};

OADatePickerTextField::OADatePickerTextField(QWidget* parent)
    : OASteppableTextField(parent)
    , m_calendarButton(new OADatePickerButton(this))
    , m_ownTextMargins(textMargins())
{
    setFormatter(std::make_unique<Formatter>(*this));
    connect(m_calendarButton, &QAbstractButton::clicked, this,
            &OADatePickerTextField::toggleDatePicker);
    layOutCalendarButton();
}

OADatePickerTextField::~OADatePickerTextField() = default;

std::optional<Instant> OADatePickerTextField::date() const
{
    return propertyValueAs<Instant>(objectValue());
}

void OADatePickerTextField::setDate(std::optional<Instant> date)
{
    setObjectValue(propertyValue(date));
}

void OADatePickerTextField::enterDate(std::optional<Instant> date)
{
    enterObjectValue(propertyValue(date));
}

void OADatePickerTextField::pickDate(Instant date)
{
    enterDate(withoutTimeToCome(date));
}

/// The date; today at a time that is still to come is the present instant instead, or the last one
/// that a step may lead to.
Instant OADatePickerTextField::withoutTimeToCome(Instant date) const
{
    const auto now = Clock::now();
    const bool endsToday = m_maxDate && *m_maxDate < now && isSameDay(*m_maxDate, now);
    const auto last = endsToday ? *m_maxDate : now;
    return date > last && isSameDay(date, now) ? last : date;
}

Instant OADatePickerTextField::defaultDate() const
{
    const auto date = m_defaultTextField
                          ? propertyValueAs<Instant>(m_defaultTextField->objectValue())
                          : std::nullopt;
    return date ? *date : RelativeDateFormatter().defaultDate();
}

void OADatePickerTextField::setDatePickerHidden(bool isHidden)
{
    m_isDatePickerHidden = isHidden;
    m_calendarButton->setVisible(!isHidden);
    layOutCalendarButton();
}

bool OADatePickerTextField::validateSteppedObjectValue(const PropertyValue& value) const
{
    const auto date = propertyValueAs<Instant>(value);
    return date && !(m_maxDate && *date > *m_maxDate) && !(m_minDate && *date < *m_minDate);
}

QRect OADatePickerTextField::calendarRectForFrame(const QRect& frame, const QSize& imageSize)
{
    // Down to a whole point also in a field that is lower than the image.
    const int above = (frame.height() - imageSize.height()) >> 1;
    return {{frame.x() + frame.width() - imageSize.width() - calendarInset, frame.y() + above},
            imageSize};
}

void OADatePickerTextField::toggleDatePicker()
{
    auto& popup = OAPopupDatePicker::sharedPopupDatePicker();
    if (popup.control() == this) {
        popup.close();
    } else {
        popup.startPickingDateWithTitle(tr("Choose Date"), *this, defaultDate());
    }
}

bool OADatePickerTextField::event(QEvent* event)
{
    const bool isHandled = OASteppableTextField::event(event);
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::LayoutDirectionChange:
        layOutCalendarButton();
        break;
    case QEvent::ReadOnlyChange:
        m_calendarButton->setEnabled(!isReadOnly());
        break;
    default:
        break;
    }
    return isHandled;
}

void OADatePickerTextField::keyPressEvent(QKeyEvent* event)
{
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const bool hasCalendar = !m_isDatePickerHidden && m_calendarButton->isEnabled();
    if (hasCalendar && event->key() == Qt::Key_Down && modifiers == Qt::AltModifier) {
        toggleDatePicker();
    } else {
        OASteppableTextField::keyPressEvent(event);
    }
}

void OADatePickerTextField::layOutCalendarButton()
{
    const auto image = m_calendarButton->sizeHint();
    m_calendarButton->setGeometry(
        QStyle::visualRect(layoutDirection(), rect(), calendarRectForFrame(rect(), image)));

    auto margins = m_ownTextMargins;
    if (!m_isDatePickerHidden) {
        const int taken = image.width() + calendarInset;
        layoutDirection() == Qt::RightToLeft ? margins.setLeft(taken) : margins.setRight(taken);
    }
    setTextMargins(margins);
}
