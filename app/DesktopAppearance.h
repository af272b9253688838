#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVariantMap>

class QDBusPendingCallWatcher;

/// What the person asked of the look of all programs, as the desktop's portal tells it on the
/// session bus.
///
/// The desktop is asked once, without waiting, and says itself what changes later. Until it
/// answers, and where nobody does, nothing special is asked for.
class DesktopAppearance : public QObject
{
    Q_OBJECT

public:
    explicit DesktopAppearance(QDBusConnection connection, QObject* parent = nullptr);

    /// Whether nothing should move by itself.
    bool reducesMotion() const;
    /// Whether texts and borders should stand out more than usual.
    bool hasHighContrast() const;

Q_SIGNALS:
    /// At least one of them may have another value now.
    void didChange();

private Q_SLOTS:
    void readAnswer(QDBusPendingCallWatcher* call);
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    QVariant setting(const QString& group, const QString& key) const;

    QDBusConnection m_connection;
    /// By group and key.
    QMap<QString, QVariantMap> m_settings;
};
