#include "app/FolderOpener.h"

#include "app/ApplicationService.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

void FolderOpener::showFile(const QString& path)
{
    const auto folder = QFileInfo(path).path();
    const auto bus = ApplicationService::sessionBus();
    if (!bus || !QFileInfo::exists(path)) {
        openFolder(folder);
        return;
    }
    auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                               QStringLiteral("/org/freedesktop/FileManager1"),
                                               QStringLiteral("org.freedesktop.FileManager1"),
                                               QStringLiteral("ShowItems"));
    const auto address = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
    call.setArguments({QStringList(address), QString()});
    auto* const watcher = new QDBusPendingCallWatcher(bus->asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, folder] {
        watcher->deleteLater();
        if (watcher->isError()) {
            openFolder(folder);
        }
    });
}

void FolderOpener::openFolder(const QString& path)
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        Q_EMIT failed();
    }
}
