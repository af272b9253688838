#include "foundation/NumberFormatter.h"

#include "foundation/Currency.h"
#include "foundation/KeptForSettings.h"

#include <QStringBuilder>
#include <unicode/nounit.h>
#include <unicode/numberformatter.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <limits>
#include <utility>

namespace {

using icu::number::LocalizedNumberFormatter;
using icu::number::Precision;

enum class Style
{
    Currency,
    TwoDecimals,
    AllDecimals,
    Amount,
    Rate
};

/// `code` counts for currencies and amounts only; that of a currency is well-formed.
LocalizedNumberFormatter makeFormatter(const RegionalSettings& settings, Style style,
                                       const QString& code)
{
    const auto formatter =
        icu::number::NumberFormatter::withLocale(icu::Locale(settings.moneyLocale().c_str()));
    switch (style) {
    case Style::Currency: {
        UErrorCode status = U_ZERO_ERROR;
        return formatter.unit(icu::CurrencyUnit(code.utf16(), status));
    }
    case Style::TwoDecimals:
        return formatter.precision(Precision::fixedFraction(2));
    case Style::Amount:
        return formatter.precision(Precision::minFraction(Currency::decimals(code)));
    case Style::Rate:
        return formatter.precision(Precision::unlimited())
            .unit(icu::NoUnit::percent())
            .grouping(UNUM_GROUPING_OFF);
    case Style::AllDecimals:
        break;
    }
    return formatter.precision(Precision::unlimited());
}

/// Looked at before ICU does: it would write all the digits of 1e999999999, and a formatter that
/// could not read its first decimals fails ever after.
bool isPlainDecimal(std::string_view text)
{
    if (text.starts_with('-')) {
        text.remove_prefix(1);
    }
    const auto isDigit = [](char character) {
        return character >= '0' && character <= '9';
    };
    const auto digits = std::count_if(text.begin(), text.end(), isDigit);
    const auto points = std::count(text.begin(), text.end(), '.');
    return digits > 0 && points <= 1 && digits + points == std::ssize(text);
}

QString textInStyle(std::string_view decimal, Style style, const QString& code = {})
{
    const auto plainText = [&] {
        return QString::fromUtf8(decimal.data(), static_cast<qsizetype>(decimal.size()));
    };
    if (!isPlainDecimal(decimal)) {
        return plainText();
    }
    static KeptForSettings<std::pair<Style, QString>, LocalizedNumberFormatter> formatters;
    const auto& formatter = formatters.get({style, code}, [&](const RegionalSettings& settings) {
        return makeFormatter(settings, style, code);
    });
    UErrorCode status = U_ZERO_ERROR;
    const icu::StringPiece piece(decimal.data(), static_cast<int32_t>(decimal.size()));
    const auto text = formatter.formatDecimal(piece, status).toString(status);
    if (U_FAILURE(status)) {
        return plainText();
    }
    return QStringView(text.getBuffer(), text.length()).toString();
}

} // namespace

QString NumberFormatter::currencyText(std::string_view decimal, const std::optional<QString>& code)
{
    const QString usedCode = code ? *code : Currency::localCode().value_or(QString());
    // Given a code that it cannot use, ICU would print some other currency.
    if (Currency::isWellFormed(usedCode)) {
        return textInStyle(decimal, Style::Currency, usedCode.toUpper());
    }
    const auto number = textInStyle(decimal, Style::TwoDecimals);
    return usedCode.isEmpty() ? number : QString(number % u' ' % usedCode);
}

QString NumberFormatter::amountText(std::string_view decimal, const std::optional<QString>& code)
{
    return textInStyle(decimal, Style::Amount,
                       code ? *code : Currency::localCode().value_or(QString()));
}

QString NumberFormatter::rateText(std::string_view percentage)
{
    return textInStyle(percentage, Style::Rate);
}

QString NumberFormatter::numberText(std::string_view decimal)
{
    return textInStyle(decimal, Style::AllDecimals);
}

QString NumberFormatter::percentText(double percent)
{
    // Sign, all the digits of the largest double, point and one decimal.
    std::array<char, std::numeric_limits<double>::max_exponent10 + 4> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), percent,
                                   std::chars_format::fixed, 1)
                         .ptr;
    return QString::fromLatin1(buffer.data(), end - buffer.data());
}
