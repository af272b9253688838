#pragma once

#include "foundation/Instant.h"

#include <QString>

/// Dates as text, in the locale of the dates, its calendar, and the time zone in force.
///
/// An instant that the calendar cannot express is shown as its number of seconds since 1970.
namespace DateFormatter {

/// The date in the locale's short style, without the time ("15/07/2013").
QString shortText(Instant date);

/// The date in a pattern of Unicode date field letters, such as "YYYY" or "MMMM".
QString text(Instant date, const QString& pattern);

/// The date with these fields, Unicode date field letters such as "yMMMM", in the order and with
/// the words around them that the locale has for them ("July 2013").
QString textOfFields(Instant date, const QString& fields);

} // namespace DateFormatter
