#include "foundation/UserDefaults.h"

#include "foundation/Log.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QVariant>

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>
#include <utility>

namespace {

/// The whole of `text` as a number; absent when it is none, or none that the type holds.
template <typename Number>
std::optional<Number> parse(std::string_view text)
{
    Number number{};
    const auto* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, number);
    return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(number) : std::nullopt;
}

template <typename Number>
QString spell(Number number)
{
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), number);
    return QString::fromLatin1(text.data(), written.ptr - text.data());
}

std::int64_t saturated(double number)
{
    constexpr double bound = 0x1p63;
    if (number >= bound) {
        return INT64_MAX;
    }
    return number < -bound ? INT64_MIN : static_cast<std::int64_t>(number);
}

QString configurationDirectory()
{
    const QString configured = qEnvironmentVariable("XDG_CONFIG_HOME");
    return configured.startsWith(u'/') ? configured : QDir::homePath() + u"/.config";
}

} // namespace

UserDefaults::UserDefaults(std::unique_ptr<QSettings> settings)
    : m_settings(std::move(settings))
{}

UserDefaults::UserDefaults(UserDefaults&&) noexcept = default;
UserDefaults& UserDefaults::operator=(UserDefaults&&) noexcept = default;
UserDefaults::~UserDefaults() = default;

UserDefaults UserDefaults::standardUserDefaults()
{
    return inFile(configurationDirectory() + u"/Corvane/Corvane.conf");
}

UserDefaults UserDefaults::inFile(const QString& path)
{
    return UserDefaults(std::make_unique<QSettings>(path, QSettings::NativeFormat));
}

UserDefaults UserDefaults::volatileDefaults()
{
    return UserDefaults(nullptr);
}

std::optional<double> UserDefaults::numberForKey(QStringView key) const
{
    const auto number = parse<double>(valueForKey(key).toString().toStdString());
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::int64_t UserDefaults::integerForKey(QStringView key) const
{
    // Not through a double where it can be avoided: that holds no more than 53 bits.
    const auto integer = parse<std::int64_t>(valueForKey(key).toString().toStdString());
    return integer ? *integer : saturated(doubleForKey(key));
}

bool UserDefaults::boolForKey(QStringView key) const
{
    const QString text = valueForKey(key).toString();
    return text.compare(u"true", Qt::CaseInsensitive) == 0 ||
           text.compare(u"yes", Qt::CaseInsensitive) == 0 || doubleForKey(key) != 0;
}

QByteArray UserDefaults::byteArrayForKey(QStringView key) const
{
    const QVariant value = valueForKey(key);
    return value.typeId() == QMetaType::QByteArray ? value.toByteArray() : QByteArray();
}

void UserDefaults::setDouble(double value, QStringView key)
{
    setValue(std::isfinite(value) ? QVariant(spell(value)) : QVariant(), key);
}

void UserDefaults::setInteger(std::int64_t value, QStringView key)
{
    setValue(spell(value), key);
}

void UserDefaults::setBool(bool value, QStringView key)
{
    setValue(value ? QStringLiteral("true") : QStringLiteral("false"), key);
}

void UserDefaults::setByteArray(const QByteArray& value, QStringView key)
{
    setValue(value, key);
}

bool UserDefaults::synchronize()
{
    if (!m_settings) {
        return true;
    }
    m_settings->sync();
    if (m_settings->status() != QSettings::AccessError) {
        return true;
    }
    Log::line(QString(u"Unable to write the user defaults: " + m_settings->fileName()));
    return false;
}

QVariant UserDefaults::valueForKey(QStringView key) const
{
    return m_settings ? m_settings->value(key) : m_volatileValues.value(key.toString());
}

void UserDefaults::setValue(const QVariant& value, QStringView key)
{
    if (!m_settings) {
        m_volatileValues.insert(key.toString(), value);
        return;
    }
    // QSettings would make them for everyone to read.
    const QDir directory = QFileInfo(m_settings->fileName()).dir();
    for (const QString& missing : {QFileInfo(directory.path()).path(), directory.path()}) {
        QDir().mkdir(missing, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    if (value.isValid()) {
        m_settings->setValue(key, value);
    } else {
        m_settings->remove(key);
    }
}
