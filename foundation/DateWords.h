#pragma once

#include "foundation/TypedText.h"

#include <QString>
#include <QStringList>

#include <map>
#include <string>

/// How dates are worded and ordered in the locale of the dates, in the calendar of the person.
struct DateWords
{
    /// Those of the regional settings in force.
    static const DateWords& current();

    /// The alternatives of an entry of the table of words, which '|' separates: those of the
    /// English source and those of the translation in use. Entries are marked for translation in
    /// the context "RelativeDateFormatter".
    static QStringList spellings(const char* entry);

    /// The locale's short date, with a year of four digits, in Unicode date field letters.
    QString writtenPattern;

    /// The order of the locale's short date, such as "dMy", and of its long date, such as "dNy":
    /// day, month as number or as name, year.
    std::string numericOrder;
    std::string namedOrder;

    /// Full and short names, months from 1 in the person's calendar, weekdays from 1 for Sunday.
    TypedText::Names months;
    TypedText::Names weekdays;

    /// The English names of the Gregorian months, but for those that mean something else here.
    TypedText::Names englishMonths;

    /// Words without a meaning of their own inside the locale's dates, such as "de", under the
    /// field that they stand behind and before: d, M, y, or E for the weekday.
    std::map<char, TypedText::Names> particlesBehind;
    std::map<char, TypedText::Names> particlesBefore;

    /// The year of a date, as dates show it, is this much more than that of Calendar.
    int yearShift = 0;
};
