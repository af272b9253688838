#include "app/StoreLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

StoreLock::StoreLock(const QString& directory)
    : m_descriptor(::open(QFile::encodeName(directory + u"/storedata.lock").constData(),
                          O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR))
{
    if (m_descriptor < 0) {
        return;
    }
    if (::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0) {
        m_state = State::Held;
    } else if (errno == EWOULDBLOCK) {
        m_state = State::HeldByAnother;
    }
}

StoreLock::~StoreLock()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}
