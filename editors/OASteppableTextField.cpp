#include "editors/OASteppableTextField.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <utility>

namespace {

bool isAbsent(const PropertyValue& value)
{
    return std::holds_alternative<std::monostate>(value);
}

std::optional<OATextFieldFormatter::Step> stepOfKey(const QKeyEvent& key)
{
    using Step = OATextFieldFormatter::Step;
    const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
    const bool isLarge = modifiers == Qt::ShiftModifier;
    if (!isLarge && modifiers != Qt::NoModifier) {
        return std::nullopt;
    }
    switch (key.key()) {
    case Qt::Key_Up:
        return isLarge ? Step::LargeUp : Step::Up;
    case Qt::Key_Down:
        return isLarge ? Step::LargeDown : Step::Down;
    default:
        return std::nullopt;
    }
}

} // namespace

OASteppableTextField::OASteppableTextField(QWidget* parent)
    : StyledTextField(parent)
{
    // Not only what is typed: assistive programs set the text as a whole.
    connect(this, &QLineEdit::textChanged, this, &OASteppableTextField::readText);
}

OASteppableTextField::~OASteppableTextField() = default;

void OASteppableTextField::setFormatter(std::unique_ptr<const OATextFieldFormatter> formatter)
{
    m_formatter = std::move(formatter);
    if (!isReadable()) {
        readText(text());
    }
    showReadableValueAnew();
}

void OASteppableTextField::setObjectValue(const PropertyValue& value)
{
    if (m_isAnnouncing && value == m_objectValue) {
        return;
    }
    m_objectValue = value;
    showObjectValue();
}

bool OASteppableTextField::isReadable() const
{
    return !isAbsent(m_objectValue) || text().trimmed().isEmpty();
}

bool OASteppableTextField::validateSteppedObjectValue(const PropertyValue& /*value*/) const
{
    return true;
}

bool OASteppableTextField::stepObjectValue(Step step)
{
    if (isReadOnly() || !m_formatter || !isReadable()) {
        return false;
    }
    const auto stepped = m_formatter->steppedValue(m_objectValue, step);
    if (!stepped || !validateSteppedObjectValue(*stepped)) {
        return false;
    }
    enterObjectValue(*stepped);
    return true;
}

void OASteppableTextField::stepperAction(double stepperValue)
{
    stepObjectValue(stepperValue > m_stepperTracking ? Step::Up : Step::Down);
    m_stepperTracking = stepperValue;
}

void OASteppableTextField::enterObjectValue(const PropertyValue& value)
{
    m_objectValue = value;
    showObjectValue();
    announce();
}

void OASteppableTextField::keyPressEvent(QKeyEvent* event)
{
    const auto step = stepOfKey(*event);
    if (step && stepObjectValue(*step)) {
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        showReadableValueAnew();
    }
    StyledTextField::keyPressEvent(event);
}

void OASteppableTextField::focusOutEvent(QFocusEvent* event)
{
    StyledTextField::focusOutEvent(event);
    // The field's own menu or popup is no end of the typing, and neither is another program.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        showReadableValueAnew();
    }
}

void OASteppableTextField::readText(const QString& text)
{
    if (m_isShowing) {
        return;
    }
    if (!m_formatter) {
        m_objectValue = text;
    } else if (text == m_writtenText) {
        m_objectValue = m_writtenValue;
    } else {
        m_objectValue = m_formatter->objectValueForString(text);
    }
    announce();
}

QString OASteppableTextField::settledText() const
{
    return isAbsent(m_objectValue) ? text() : textOfObjectValue();
}

QString OASteppableTextField::textOfObjectValue() const
{
    return m_formatter ? m_formatter->stringForObjectValue(m_objectValue)
                       : propertyValueAs<QString>(m_objectValue).value_or(QString());
}

void OASteppableTextField::showObjectValue()
{
    const auto shown = textOfObjectValue();
    m_writtenText = shown;
    m_writtenValue = m_objectValue;
    if (shown != text()) {
        const QScopedValueRollback isShowing(m_isShowing, true);
        setText(shown);
    }
}

void OASteppableTextField::showReadableValueAnew()
{
    if (!isAbsent(m_objectValue)) {
        showObjectValue();
    }
}

void OASteppableTextField::announce()
{
    const QScopedValueRollback isAnnouncing(m_isAnnouncing, true);
    Q_EMIT objectValueDidChange();
}
