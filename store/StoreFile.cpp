#include "store/StoreFile.h"

#include "store/NSError.h"
#include "store/StoreSchema.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace StoreFile {

namespace {

// The places in the header of an SQLite file, in bytes.
constexpr qint64 headerSize = 100;
constexpr qsizetype journalVersionOffset = 18;
constexpr char rollbackJournal = 1;
constexpr qsizetype userVersionOffset = 60;
constexpr qsizetype applicationIDOffset = 68;

[[noreturn]] void fail(const QString& path, const char* description, const ErrorText& reason)
{
    throw NSError(QStringLiteral("NSPersistentStoreErrorDomain"), 2,
                  ErrorText(description, QFileInfo(path).fileName()), reason);
}

void create(const QString& path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(),
                                  O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        fail(path, QT_TRANSLATE_NOOP("NSError", "The data file “%1” could not be made."),
             ErrorText::verbatim(qt_error_string(errno)));
    }
    ::close(descriptor);
}

/// A journal comes and goes beside the file with every save.
bool isInWriteProtectedFolder(const QString& path)
{
    return ::access(QFile::encodeName(QFileInfo(path).path()).constData(), W_OK) != 0;
}

/// Nobody's write bit is set: whoever did that wants the file left alone, even by an administrator
/// whom the bits would not stop.
bool isWriteProtected(const QString& path)
{
    struct stat status = {};
    const auto name = QFile::encodeName(path);
    return ::access(name.constData(), W_OK) != 0 ||
           (::stat(name.constData(), &status) == 0 &&
            (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0);
}

quint32 bigEndian(const QByteArray& header, qsizetype offset)
{
    return qFromBigEndian<quint32>(header.constData() + offset);
}

} // namespace

Content prepare(const QString& path, std::uint32_t formatVersion)
{
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink()) {
        create(path);
        return Content::Empty;
    }
    if (!info.isFile()) {
        fail(path, QT_TRANSLATE_NOOP("NSError", "The data file “%1” could not be opened."),
             ErrorText(QT_TRANSLATE_NOOP("NSError", "It is not a file.")));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(path, QT_TRANSLATE_NOOP("NSError", "The data file “%1” could not be opened."),
             ErrorText::verbatim(file.errorString()));
    }
    if (isWriteProtected(path)) {
        fail(path, QT_TRANSLATE_NOOP("NSError", "The data file “%1” could not be opened."),
             ErrorText(QT_TRANSLATE_NOOP("NSError", "It is write-protected.")));
    }
    if (isInWriteProtectedFolder(path)) {
        fail(path, QT_TRANSLATE_NOOP("NSError", "The data file “%1” could not be opened."),
             ErrorText(QT_TRANSLATE_NOOP("NSError", "Its folder is write-protected.")));
    }
    if (file.size() == 0) {
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        return Content::Empty;
    }
    const auto header = file.read(headerSize);
    const bool isStore = header.size() == headerSize && header.startsWith("SQLite format 3") &&
                         bigEndian(header, applicationIDOffset) == StoreSchema::applicationID;
    if (!isStore) {
        fail(path, QT_TRANSLATE_NOOP("NSError", "The file “%1” is not a Corvane data file."), {});
    }
    if (bigEndian(header, userVersionOffset) != formatVersion ||
        header.at(journalVersionOffset) != rollbackJournal) {
        fail(path, QT_TRANSLATE_NOOP("NSError", "The data file “%1” was made by another version."),
             {});
    }
    return Content::Store;
}

} // namespace StoreFile
