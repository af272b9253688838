#include "app/ApplicationService.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFileInfo>
#include <QGuiApplication>

#include <utility>

namespace {

const QString interfaceName = QStringLiteral("org.freedesktop.Application");

/// How long the other instance may take to answer.
constexpr int answerTimeoutMilliseconds = 3000;

/// The other one may turn out to be a launch that is about to leave, too.
constexpr int mostAttempts = 3;

/// The application's name on the bus, which is that of its desktop file.
QString applicationName()
{
    return QGuiApplication::desktopFileName();
}

QString objectPath()
{
    return u'/' + applicationName().replace(u'.', u'/');
}

} // namespace

std::optional<QDBusConnection> ApplicationService::sessionBus()
{
    // Where neither is there, the library would start a bus, on which nobody else would be.
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") &&
        !QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus")) {
        return std::nullopt;
    }
    auto bus = QDBusConnection::sessionBus();
    return bus.isConnected() ? std::optional(bus) : std::nullopt;
}

ApplicationService::ApplicationService(QDBusConnection connection, const QString& storeName)
    : m_connection(std::move(connection))
    , m_storeService(applicationName() + u".Store_" + storeName)
{
    m_connection.registerObject(objectPath(), interfaceName, this,
                                QDBusConnection::ExportScriptableSlots);
    m_connection.interface()->registerService(m_storeService,
                                              QDBusConnectionInterface::QueueService);
}

ApplicationService::~ApplicationService()
{
    m_connection.unregisterObject(objectPath());
    m_connection.unregisterService(applicationName());
    m_connection.unregisterService(m_storeService);
}

void ApplicationService::serveApplication()
{
    m_connection.registerService(applicationName());
}

bool ApplicationService::activateOther(const ActivationToken& token)
{
    m_connection.unregisterService(m_storeService);
    auto call = QDBusMessage::createMethodCall(m_storeService, objectPath(), interfaceName,
                                               QStringLiteral("Activate"));
    call.setAutoStartService(false);
    call.setArguments({token.platformData()});
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const auto answer = m_connection.call(call, QDBus::Block, answerTimeoutMilliseconds);
        if (answer.type() == QDBusMessage::ReplyMessage) {
            return true;
        }
    }
    return false;
}

void ApplicationService::Activate(const QVariantMap& platformData)
{
    Q_EMIT activated(ActivationToken::fromPlatformData(platformData));
}

void ApplicationService::Open(const QStringList& /*locations*/, const QVariantMap& platformData)
{
    Activate(platformData);
}

void ApplicationService::ActivateAction(const QString& action, const QVariantList& /*parameters*/,
                                        const QVariantMap& platformData)
{
    Activate(platformData);
    Q_EMIT actionActivated(action);
}
