#include "app/StoreLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

StoreLock::StoreLock(const QString& directory)
    : m_descriptor(::open(QFile::encodeName(directory + u"/storedata.lock").constData(),
                          O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK,
                          S_IRUSR | S_IWUSR))
{
    struct stat status = {};
    if (m_descriptor < 0 || ::fstat(m_descriptor, &status) != 0) {
        m_error = errno;
    } else if (!S_ISREG(status.st_mode)) {
        m_error = EINVAL;
    }
}

StoreLock::~StoreLock()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

StoreLock::State StoreLock::acquire()
{
    if (m_error != 0) {
        return State::Unavailable;
    }
    if (::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0) {
        return State::Held;
    }
    if (errno == EWOULDBLOCK) {
        return State::HeldByAnother;
    }
    m_error = errno;
    return State::Unavailable;
}

QString StoreLock::storeName() const
{
    struct stat status = {};
    if (m_error != 0 || ::fstat(m_descriptor, &status) != 0) {
        return {};
    }
    // What is locked is the file, by whatever path one comes to it.
    return QString::number(status.st_dev, 16) + u'_' + QString::number(status.st_ino, 16);
}

ErrorText StoreLock::errorText() const
{
    switch (m_error) {
    case 0:
        return {};
    case EINVAL:
    case EISDIR:
    case ELOOP:
    case ENXIO:
        return ErrorText(QT_TRANSLATE_NOOP("NSError", "It is not a file."));
    default:
        return ErrorText::verbatim(qt_error_string(m_error));
    }
}
