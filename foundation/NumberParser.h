#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

/// Amounts and percentages as people type and paste them, in the locale of money and numbers.
///
/// Read are digits of any script, the signs that mark decimals and thousands in this locale or
/// elsewhere, every kind of blank around the number and between its thousands, and a minus in any
/// of its usual forms, behind the number or as brackets too. A sign that can only mark decimals
/// does ("1,5" in English), and so does the last of two different ones; of one that could as well
/// mark thousands the locale decides ("1.234" is 1234 in German).
///
/// Numbers are answered in plain notation ("-1234.50") and have all the digits that were typed,
/// which may be more than an NSDecimalNumber takes. Absent when the text is no number, or more than
/// one.
namespace NumberParser {

/// An amount as it was typed. Whether it can be one in a certain currency, its user decides.
struct Amount
{
    std::string number;
    /// The number if the mark that was taken for one of decimals is one of thousands. Absent when
    /// it can only be what it was taken for.
    std::optional<std::string> numberInThousands;
    /// Whether that mark is one of decimals in this locale; where it is neither, nobody can tell
    /// which of the two numbers is meant.
    bool areDecimalsSure = true;
    /// The signs and codes of currencies that stand beside the number, as they were typed.
    QStringList currencies;
};

/// The amount; the sign or code of a currency may stand on either side: "£1,234.50", "5 EUR".
std::optional<Amount> amount(const QString& text);

/// The percentage, with a percent sign or without: "19.9", "19,9 %". Nobody groups percentages, so
/// a single sign in it always marks decimals.
std::optional<std::string> rate(const QString& text);

} // namespace NumberParser
