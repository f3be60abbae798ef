#include "core/platform/InputFile.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrin {

namespace {

int refuse(InputFileError reason, InputFileError* error, int fd = -1)
{
    if (fd >= 0)
        ::close(fd);
    if (error)
        *error = reason;
    return -1;
}

// A device, FIFO or socket is never opened at all when the first look tells what it is; the
// second look, at the opened file, catches a swap in between.
InputFileError judge(const struct stat& info, qint64 largestSize)
{
    if (!S_ISREG(info.st_mode))
        return InputFileError::NotRegular;
    return info.st_size > largestSize ? InputFileError::TooLarge : InputFileError::None;
}

}  // namespace

int openInputFile(const QString& path, qint64 largestSize, InputFileError* error)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat info {};
    if (path.isEmpty() || ::stat(name.constData(), &info) != 0)
        return refuse(InputFileError::Missing, error);
    if (const InputFileError reason = judge(info, largestSize); reason != InputFileError::None)
        return refuse(reason, error);
    const int fd = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
        return refuse(errno == ENOENT ? InputFileError::Missing : InputFileError::Unreadable, error);
    if (::fstat(fd, &info) != 0)
        return refuse(InputFileError::Unreadable, error, fd);
    if (const InputFileError reason = judge(info, largestSize); reason != InputFileError::None)
        return refuse(reason, error, fd);
    if (error)
        *error = InputFileError::None;
    return fd;
}

std::optional<QByteArray> readInputFile(const QString& path, qint64 largestSize, InputFileError* error)
{
    const int fd = openInputFile(path, largestSize, error);
    if (fd < 0)
        return std::nullopt;
    QByteArray bytes;
    // A file that grows past the cap while it is read is refused as well.
    char buffer[65536];
    for (;;) {
        const ssize_t count = ::read(fd, buffer, sizeof buffer);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            refuse(InputFileError::Unreadable, error, fd);
            return std::nullopt;
        }
        if (count == 0)
            break;
        bytes.append(buffer, count);
        if (bytes.size() > largestSize) {
            refuse(InputFileError::TooLarge, error, fd);
            return std::nullopt;
        }
    }
    ::close(fd);
    return bytes;
}

}  // namespace tavrin
