#pragma once

#include <QString>
#include <QVariantMap>

/// What tells the desktop that a window which comes forward was asked for by the person just now,
/// and does not push itself in.
struct ActivationToken
{
    /// For X11; empty without one.
    QString startupID;
    /// For Wayland; empty without one.
    QString activationToken;

    /// The token that this launch came with. To be asked before there is an application object,
    /// which takes it out of the environment.
    static ActivationToken fromEnvironment();
    /// As it travels in a call of org.freedesktop.Application.
    static ActivationToken fromPlatformData(const QVariantMap& platformData);
    QVariantMap platformData() const;
};
