#include "app/DesktopAppearance.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QStringList>

#include <utility>

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
/// Where desktops have told of animations since before the other group did.
const QString interfaceGroup = QStringLiteral("org.gnome.desktop.interface");

/// In the answer to some questions a value is wrapped twice.
QVariant unwrapped(QVariant value)
{
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

DesktopAppearance::DesktopAppearance(QDBusConnection connection, QObject* parent)
    : QObject(parent)
    , m_connection(std::move(connection))
{
    // The slot is connected by the names of its types, which have to be known by then.
    qRegisterMetaType<QDBusVariant>();
    m_connection.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                         SLOT(settingChanged(QString, QString, QDBusVariant)));
    auto question =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    question.setArguments({QStringList{appearanceGroup, interfaceGroup}});
    auto* const call = new QDBusPendingCallWatcher(m_connection.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, &DesktopAppearance::readAnswer);
}

bool DesktopAppearance::reducesMotion() const
{
    const auto animations = setting(interfaceGroup, QStringLiteral("enable-animations"));
    return setting(appearanceGroup, QStringLiteral("reduced-motion")).toUInt() == 1 ||
           (animations.isValid() && !animations.toBool());
}

bool DesktopAppearance::hasHighContrast() const
{
    return setting(appearanceGroup, QStringLiteral("contrast")).toUInt() == 1;
}

void DesktopAppearance::readAnswer(QDBusPendingCallWatcher* call)
{
    call->deleteLater();
    const auto answer = call->reply();
    if (answer.type() == QDBusMessage::ReplyMessage && answer.signature() == u"a{sa{sv}}") {
        m_settings = qdbus_cast<QMap<QString, QVariantMap>>(answer.arguments().first());
        Q_EMIT didChange();
    }
}

void DesktopAppearance::settingChanged(const QString& group, const QString& key,
                                       const QDBusVariant& value)
{
    if (group == appearanceGroup || group == interfaceGroup) {
        m_settings[group][key] = value.variant();
        Q_EMIT didChange();
    }
}

QVariant DesktopAppearance::setting(const QString& group, const QString& key) const
{
    return unwrapped(m_settings.value(group).value(key));
}
