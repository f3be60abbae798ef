#include "core/log/LogFileLock.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tavrin {

LogFileLock::~LogFileLock()
{
    release();
}

LogFileLock::Result LogFileLock::tryLock(const QString& path, bool writable)
{
    release();
    m_fd = ::open(QFile::encodeName(path).constData(), (writable ? O_RDWR : O_RDONLY) | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (m_fd < 0)
        return Result::Failed;
    int answer = 0;
    do
        answer = ::flock(m_fd, LOCK_EX | LOCK_NB);
    while (answer != 0 && errno == EINTR);
    if (answer == 0 || errno != EWOULDBLOCK)
        return Result::Locked;
    release();
    return Result::InUse;
}

void LogFileLock::release()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}

}  // namespace tavrin
