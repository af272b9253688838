#pragma once

#include "store/PropertyValue.h"

#include <QString>

#include <optional>

/// What turns the value of a text field into text and back, and steps it.
class OATextFieldFormatter
{
public:
    enum class Step
    {
        Up,
        LargeUp,
        Down,
        LargeDown,
    };

    virtual ~OATextFieldFormatter() = default;

    /// The text for a value; empty for the absent one, and for one of another type.
    virtual QString stringForObjectValue(const PropertyValue& value) const = 0;
    /// What the text says; the absent value when it cannot be read.
    virtual PropertyValue objectValueForString(const QString& text) const = 0;
    /// The value that is a step from `value`. Absent, as here, when the formatter does not step.
    virtual std::optional<PropertyValue> steppedValue(const PropertyValue& /*value*/,
                                                      Step /*step*/) const
    {
        return std::nullopt;
    }
};
