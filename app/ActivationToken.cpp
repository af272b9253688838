#include "app/ActivationToken.h"

namespace {

const QString startupIDKey = QStringLiteral("desktop-startup-id");
const QString activationTokenKey = QStringLiteral("activation-token");

} // namespace

ActivationToken ActivationToken::fromEnvironment()
{
    return {qEnvironmentVariable("DESKTOP_STARTUP_ID"),
            qEnvironmentVariable("XDG_ACTIVATION_TOKEN")};
}

ActivationToken ActivationToken::fromPlatformData(const QVariantMap& platformData)
{
    return {platformData.value(startupIDKey).toString(),
            platformData.value(activationTokenKey).toString()};
}

QVariantMap ActivationToken::platformData() const
{
    QVariantMap platformData;
    if (!startupID.isEmpty()) {
        platformData.insert(startupIDKey, startupID);
    }
    if (!activationToken.isEmpty()) {
        platformData.insert(activationTokenKey, activationToken);
    }
    return platformData;
}
