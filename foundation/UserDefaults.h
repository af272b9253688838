#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringView>

#include <cstdint>
#include <memory>
#include <optional>

class QSettings;

/// The person's settings, by key, in "Corvane/Corvane.conf" of the configuration directory.
///
/// The file may be edited by hand or be left over from anything: every reading answers its neutral
/// value where it holds nothing usable. Numbers are written in a form of their own that no locale
/// changes.
class UserDefaults
{
public:
    /// The defaults of the person who runs the program. `$XDG_CONFIG_HOME` decides where they are
    /// unless it is empty or relative; what is missing of the directory is made by the first write,
    /// for the person alone.
    static UserDefaults standardUserDefaults();
    /// The defaults in the file at `path`.
    static UserDefaults inFile(const QString& path);
    /// Defaults that start empty, are forgotten with this object, and never touch the disk.
    static UserDefaults volatileDefaults();

    UserDefaults(UserDefaults&&) noexcept;
    UserDefaults& operator=(UserDefaults&&) noexcept;
    /// Writes what was not synchronised yet.
    ~UserDefaults();

    /// The finite number stored under `key`; absent when there is none.
    std::optional<double> numberForKey(QStringView key) const;
    /// The same with 0.0 for absent.
    double doubleForKey(QStringView key) const { return numberForKey(key).value_or(0.0); }
    /// The number stored under `key`, without its fraction, at most as large or small as the type
    /// allows; 0 when there is none.
    std::int64_t integerForKey(QStringView key) const;
    /// Whether "true", "yes" or a number that is not 0 is stored under `key`.
    bool boolForKey(QStringView key) const;
    /// The bytes stored under `key`; empty when there are none.
    QByteArray byteArrayForKey(QStringView key) const;

    /// A value that is not finite removes what is stored under `key`.
    void setDouble(double value, QStringView key);
    void setInteger(std::int64_t value, QStringView key);
    void setBool(bool value, QStringView key);
    void setByteArray(const QByteArray& value, QStringView key);

    /// Writes what was set since the last time. Whether that worked; when not, the log says so.
    bool synchronize();

private:
    explicit UserDefaults(std::unique_ptr<QSettings> settings);

    QVariant valueForKey(QStringView key) const;
    void setValue(const QVariant& value, QStringView key);

    /// Null for the volatile defaults.
    std::unique_ptr<QSettings> m_settings;
    QHash<QString, QVariant> m_volatileValues;
};
