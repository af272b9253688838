#include "foundation/Currency.h"

#include "foundation/KeptForSettings.h"
#include "foundation/RegionalSettings.h"

#include <unicode/ucurr.h>
#include <unicode/uloc.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace {

constexpr int usualDecimals = 2;

/// Of signs that are understood in many countries: first what is the shortest for one currency
/// alone ("$"), then what is clear in any country ("US$").
const std::string shortSignsLocale = "en";
const std::string clearSignsLocale = "en_001";

/// Absent when ICU knows no name or sign of this style and would answer the code itself.
std::optional<QString> nameInStyle(const QString& code, UCurrNameStyle style,
                                   const std::string& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    int length = 0;
    const auto capitals = code.toUpper().toStdU16String();
    const auto* const name =
        ucurr_getName(capitals.c_str(), locale.c_str(), style, nullptr, &length, &status);
    if (U_FAILURE(status) || std::u16string_view(name, length) == capitals) {
        return std::nullopt;
    }
    return QStringView(name, length).toString();
}

/// In capitals, without blanks and marks of the writing direction.
QString comparable(const QString& text)
{
    QString kept = text.toUpper();
    kept.removeIf([](QChar character) {
        return character.isSpace() || character.category() == QChar::Other_Format;
    });
    return kept;
}

/// The codes and signs of all currencies, in comparable form.
const QSet<QString>& signsAndCodes()
{
    static KeptForSettings<int, QSet<QString>> kept;
    return kept.get(0, [](const RegionalSettings& settings) {
        QSet<QString> texts;
        for (const auto& code : Currency::isoCodes()) {
            texts.insert(code);
            for (const auto style : {UCURR_SYMBOL_NAME, UCURR_NARROW_SYMBOL_NAME}) {
                if (const auto sign = nameInStyle(code, style, settings.moneyLocale())) {
                    texts.insert(comparable(*sign));
                }
            }
        }
        return texts;
    });
}

/// The codes of a kind (a union of UCurrCurrencyType), in the system's order.
QStringList codesOfKind(std::uint32_t kind)
{
    QStringList codes;
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUEnumerationPointer known(ucurr_openISOCurrencies(kind, &status));
    while (const char* code = uenum_next(known.getAlias(), nullptr, &status)) {
        codes.append(QString::fromLatin1(code));
    }
    // A currency that was introduced twice is listed twice.
    codes.removeDuplicates();
    return codes;
}

/// Whether a sign, in comparable form, is the one that this style has for the currency.
bool isSign(const QString& sign, const QString& code, UCurrNameStyle style,
            const std::string& locale)
{
    const auto found = nameInStyle(code, style, locale);
    return found && comparable(*found) == sign;
}

bool isLocalSign(const QString& sign, const QString& code)
{
    const auto& locale = RegionalSettings::current().moneyLocale();
    return isSign(sign, code, UCURR_SYMBOL_NAME, locale) ||
           isSign(sign, code, UCURR_NARROW_SYMBOL_NAME, locale);
}

} // namespace

std::optional<QString> Currency::localCode()
{
    std::array<char16_t, 4> code{};
    UErrorCode status = U_ZERO_ERROR;
    const int length = ucurr_forLocale(RegionalSettings::current().moneyLocale().c_str(),
                                       code.data(), code.size(), &status);
    if (U_FAILURE(status) || length == 0) {
        return std::nullopt;
    }
    // Where nothing is said of the country, ICU answers "no currency", or silver.
    const auto found = QStringView(code.data(), length).toString();
    return codesOfKind(UCURR_COMMON).contains(found) ? std::optional(found) : std::nullopt;
}

QStringList Currency::isoCodes()
{
    return codesOfKind(UCURR_ALL);
}

const QSet<QString>& Currency::codesInUse()
{
    // ICU's own question for this (ucurr_isAvailable) keeps one country of each currency, and so
    // misses the pound.
    static const QSet<QString> inUse = [] {
        QSet<QString> paidWith;
        for (const auto* country = uloc_getISOCountries(); *country; ++country) {
            UErrorCode status = U_ZERO_ERROR;
            const icu::LocalUEnumerationPointer codes(ucurr_getKeywordValuesForLocale(
                "currency", (std::string("und_") + *country).c_str(), true, &status));
            while (const char* code = uenum_next(codes.getAlias(), nullptr, &status)) {
                paidWith.insert(QString::fromLatin1(code));
            }
        }
        const auto common = codesOfKind(UCURR_COMMON | UCURR_NON_DEPRECATED);
        return paidWith.intersect({common.begin(), common.end()});
    }();
    return inUse;
}

bool Currency::isWellFormed(QStringView code)
{
    return code.size() == 3 && std::all_of(code.begin(), code.end(), [](QChar letter) {
               return (letter >= u'A' && letter <= u'Z') || (letter >= u'a' && letter <= u'z');
           });
}

QString Currency::name(const QString& code)
{
    if (!isWellFormed(code)) {
        return code;
    }
    return nameInStyle(code, UCURR_LONG_NAME, RegionalSettings::current().moneyLocale())
        .value_or(code);
}

int Currency::decimals(const std::optional<QString>& code)
{
    const QString usedCode = code ? *code : localCode().value_or(QString());
    if (!isWellFormed(usedCode)) {
        return usualDecimals;
    }
    UErrorCode status = U_ZERO_ERROR;
    const int decimals =
        ucurr_getDefaultFractionDigits(usedCode.toUpper().toStdU16String().c_str(), &status);
    return U_SUCCESS(status) ? decimals : usualDecimals;
}

bool Currency::isSignOrCode(const QString& text)
{
    constexpr auto mostLetters = 3;
    if (signsAndCodes().contains(comparable(text))) {
        return true;
    }
    const auto signCount = std::ranges::count_if(
        text, [](QChar character) { return character.category() == QChar::Symbol_Currency; });
    const auto letterCount =
        std::ranges::count_if(text, [](QChar character) { return character.isLetter(); });
    return signCount == 1 && signCount + letterCount == text.size() && letterCount <= mostLetters;
}

bool Currency::isSignOrCodeOf(const QString& text, const QString& code)
{
    auto sign = comparable(text);
    const auto capitals = code.toUpper();
    if (sign == capitals || isLocalSign(sign, capitals) ||
        isSign(sign, capitals, UCURR_SYMBOL_NAME, shortSignsLocale) ||
        isSign(sign, capitals, UCURR_SYMBOL_NAME, clearSignsLocale)) {
        return true;
    }
    // "US$" and "C$": the sign with the beginning of the code, as where several countries have it.
    const auto narrow = nameInStyle(capitals, UCURR_NARROW_SYMBOL_NAME, clearSignsLocale);
    return narrow && (sign == *narrow || sign == capitals.left(1) + *narrow ||
                      sign == capitals.left(2) + *narrow);
}

std::optional<QString> Currency::codeForSign(const QString& sign)
{
    const auto wanted = comparable(sign);
    if (const auto local = localCode(); local && isLocalSign(wanted, *local)) {
        return local;
    }
    const auto& locale = RegionalSettings::current().moneyLocale();
    for (const auto& [style, place] : {std::pair(UCURR_SYMBOL_NAME, locale),
                                       {UCURR_SYMBOL_NAME, shortSignsLocale},
                                       {UCURR_SYMBOL_NAME, clearSignsLocale},
                                       {UCURR_NARROW_SYMBOL_NAME, locale}}) {
        QStringList found;
        for (const auto& code : codesInUse()) {
            if (isSign(wanted, code, style, place)) {
                found.append(code);
            }
        }
        if (!found.isEmpty()) {
            return found.size() == 1 ? std::optional(found.first()) : std::nullopt;
        }
    }
    return std::nullopt;
}
