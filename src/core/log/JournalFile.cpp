#include "core/log/JournalFile.h"

#include "core/platform/SystemCalls.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tavrin {

JournalFile::~JournalFile()
{
    close();
}

bool JournalFile::createExclusive(const QString& path)
{
    close();
    m_fd = systemCalls().open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    m_size = 0;
    if (m_fd < 0)
        return fail();
    lockWhileOpen();
    return true;
}

// Tells a program starting meanwhile that this journal is alive, not left by a killed process
// (see LogFileLock). Someone else can hold the lock only for the moment it takes to look at the
// new, still empty file. Without locks on the file system the journal is written all the same.
void JournalFile::lockWhileOpen()
{
    while (::flock(m_fd, LOCK_EX) != 0 && errno == EINTR) {
    }
}

bool JournalFile::append(const QByteArray& bytes)
{
    if (m_fd < 0)
        return false;
    qint64 written = 0;
    while (written < bytes.size()) {
        const auto remaining = static_cast<size_t>(bytes.size() - written);
        const ssize_t count
            = systemCalls().pwrite(m_fd, bytes.constData() + written, remaining, static_cast<off_t>(m_size + written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            if (count == 0)
                errno = ENOSPC;
            const bool failed = fail();
            // A half-written line would make everything after it unreadable.
            if (::ftruncate(m_fd, static_cast<off_t>(m_size)) != 0)
                close();
            return failed;
        }
        written += count;
    }
    m_size += written;
    return true;
}

bool JournalFile::truncateTo(qint64 size)
{
    if (m_fd < 0 || size < 0 || size > m_size)
        return false;
    if (::ftruncate(m_fd, static_cast<off_t>(size)) != 0)
        return fail();
    m_size = size;
    return true;
}

bool JournalFile::sync()
{
    if (m_fd < 0)
        return false;
    return systemCalls().fsync(m_fd) == 0 || fail();
}

void JournalFile::close()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}

bool JournalFile::fail()
{
    m_lastError = qt_error_string(errno);
    return false;
}

}  // namespace tavrin
