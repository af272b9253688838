#include "foundation/Currency.h"

#include "foundation/KeptForSettings.h"
#include "foundation/RegionalSettings.h"

#include <QSet>
#include <unicode/ucurr.h>

#include <algorithm>
#include <array>

namespace {

constexpr int usualDecimals = 2;

/// Absent when ICU knows no name or sign of this style and would answer the code itself.
std::optional<QString> nameInStyle(const QString& code, UCurrNameStyle style,
                                   const RegionalSettings& settings)
{
    UErrorCode status = U_ZERO_ERROR;
    int length = 0;
    const auto* const name =
        ucurr_getName(code.toUpper().toStdU16String().c_str(), settings.moneyLocale().c_str(),
                      style, nullptr, &length, &status);
    if (U_FAILURE(status) || status == U_USING_DEFAULT_WARNING) {
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
                if (const auto sign = nameInStyle(code, style, settings)) {
                    texts.insert(comparable(*sign));
                }
            }
        }
        return texts;
    });
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
    return QStringView(code.data(), length).toString();
}

QStringList Currency::isoCodes()
{
    QStringList codes;
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUEnumerationPointer known(ucurr_openISOCurrencies(UCURR_ALL, &status));
    while (const char* code = uenum_next(known.getAlias(), nullptr, &status)) {
        codes.append(QString::fromLatin1(code));
    }
    // A currency that was introduced twice is listed twice.
    codes.removeDuplicates();
    return codes;
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
    return nameInStyle(code, UCURR_LONG_NAME, RegionalSettings::current()).value_or(code);
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
