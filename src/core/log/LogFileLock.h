#pragma once

#include <QString>

namespace tavrin {

// An advisory lock (flock) on a whole log file. A running batch holds one on its "#" log until
// that file is gone, and undo and recovery hold one on the log they work on, so no two of them
// ever work on the same log at once, even from two programs. The kernel drops the lock when
// its holder dies, so a batch that was killed leaves a log anyone may lock.
class LogFileLock {
public:
    enum class Result {
        Locked,
        InUse, // another open file holds the lock: a batch, undo or recovery is at work on it
        Failed, // the file could not be opened
    };

    LogFileLock() = default;
    ~LogFileLock();
    LogFileLock(const LogFileLock&) = delete;
    LogFileLock& operator=(const LogFileLock&) = delete;

    // Opens the file (for writing too when `writable`) and takes the lock without waiting.
    // Where the file system has no locks the file counts as locked by us.
    Result tryLock(const QString& path, bool writable = false);
    void release();

    // The descriptor the lock is held through, -1 when none.
    int fd() const { return m_fd; }

private:
    int m_fd = -1;
};

}  // namespace tavrin
