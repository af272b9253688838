#include "foundation/DateFormatter.h"

#include "foundation/Calendar.h"
#include "foundation/KeptForSettings.h"

#include <QDate>
#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>

#include <array>
#include <charconv>
#include <cmath>
#include <memory>
#include <optional>

namespace {

/// Absent for the short style.
using Pattern = std::optional<QString>;
using Format = std::unique_ptr<icu::DateFormat>;

Format makeFormat(const RegionalSettings& settings, const Pattern& pattern)
{
    const icu::Locale locale(settings.datesLocale().c_str());
    Format format;
    if (pattern) {
        const icu::UnicodeString letters(pattern->utf16(), static_cast<int32_t>(pattern->size()));
        UErrorCode status = U_ZERO_ERROR;
        format = std::make_unique<icu::SimpleDateFormat>(letters, locale, status);
        if (U_FAILURE(status)) {
            return nullptr;
        }
    } else {
        format.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kShort, locale));
    }
    if (format) {
        format->adoptTimeZone(
            icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(settings.timeZone())));
    }
    return format;
}

/// The fields themselves where ICU has no pattern for them.
QString patternOfFields(const RegionalSettings& settings, const QString& fields)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale locale(settings.datesLocale().c_str());
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    if (U_FAILURE(status) || !generator) {
        return fields;
    }
    const icu::UnicodeString skeleton(fields.utf16(), static_cast<int32_t>(fields.size()));
    const auto pattern = generator->getBestPattern(skeleton, status);
    return U_SUCCESS(status) ? QStringView(pattern.getBuffer(), pattern.length()).toString()
                             : fields;
}

QString plainText(Instant date)
{
    if (!date.isSupported()) {
        std::array<char, 32> buffer{};
        const auto end = std::to_chars(buffer.begin(), buffer.end(), date.secondsSince1970()).ptr;
        return QString::fromLatin1(buffer.data(), end - buffer.data());
    }
    const auto days = static_cast<qint64>(std::floor(date.secondsSince1970() / 86400.0));
    return QDate(1970, 1, 1).addDays(days).toString(Qt::ISODate);
}

QString textWithFormat(Instant date, const Pattern& pattern)
{
    static KeptForSettings<Pattern, Format> formats;
    const auto& format = formats.get(
        pattern, [&](const RegionalSettings& settings) { return makeFormat(settings, pattern); });
    // ICU takes any number for a date, and shows another one when it is too large.
    if (!format || !Calendar::expresses(date)) {
        return plainText(date);
    }
    icu::UnicodeString text;
    UErrorCode status = U_ZERO_ERROR;
    format->format(std::floor(date.secondsSince1970()) * U_MILLIS_PER_SECOND, text, nullptr,
                   status);
    if (U_FAILURE(status)) {
        return plainText(date);
    }
    return QStringView(text.getBuffer(), text.length()).toString();
}

} // namespace

QString DateFormatter::shortText(Instant date)
{
    return textWithFormat(date, std::nullopt);
}

QString DateFormatter::text(Instant date, const QString& pattern)
{
    return textWithFormat(date, pattern);
}

QString DateFormatter::textOfFields(Instant date, const QString& fields)
{
    static KeptForSettings<QString, QString> patterns;
    return text(date, patterns.get(fields, [&](const RegionalSettings& settings) {
        return patternOfFields(settings, fields);
    }));
}
