#include "bench/GeneratedStore.h"

#include <QDir>
#include <QTemporaryDir>

#include <map>
#include <string>

QString GeneratedStore::directory(const StoreGenerator::Size& size)
{
    static const QTemporaryDir folder;
    static std::map<std::string, QString> directories;
    auto& directory = directories[size.name];
    if (directory.isEmpty()) {
        directory = folder.filePath(QString::fromLatin1(size.name));
        QDir().mkpath(directory);
        StoreGenerator::generate(size, directory + QStringLiteral("/storedata.sqlite"));
    }
    return directory;
}

QString GeneratedStore::path(const StoreGenerator::Size& size)
{
    return directory(size) + QStringLiteral("/storedata.sqlite");
}
