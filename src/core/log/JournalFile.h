#pragma once

#include <QByteArray>
#include <QString>

namespace tavrin {

// A file that grows line by line through write(2), so that every line is with the kernel
// (and survives the process being killed) the moment append() returns, and whose last
// lines can be taken back by truncating it to an earlier size.
class JournalFile {
public:
    JournalFile() = default;
    ~JournalFile();
    JournalFile(const JournalFile&) = delete;
    JournalFile& operator=(const JournalFile&) = delete;

    // Makes a new file; refuses to open one that exists, so no earlier journal is lost. The file
    // stays locked (flock) until it is closed.
    bool createExclusive(const QString& path);
    // Writes the bytes at the end. On failure the file is cut back to its size before.
    bool append(const QByteArray& bytes);
    bool truncateTo(qint64 size);
    // Waits until what was written is on the disk itself.
    bool sync();
    void close();

    bool isOpen() const { return m_fd >= 0; }
    qint64 size() const { return m_size; }
    // The system's text for the errno of the last failure.
    const QString& lastError() const { return m_lastError; }

private:
    bool fail();
    void lockWhileOpen();

    int m_fd = -1;
    qint64 m_size = 0;
    QString m_lastError;
};

}  // namespace tavrin
