#include "core/platform/SystemCalls.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>

namespace tavrin {

namespace {

int renameNoReplace(const char* source, const char* target)
{
#ifdef RENAME_NOREPLACE
    return ::renameat2(AT_FDCWD, source, AT_FDCWD, target, RENAME_NOREPLACE);
#else
    // A C library older than the wrapper: the kernel call itself, whose flag 1 is "no replace".
    return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, source, AT_FDCWD, target, 1U));
#endif
}

int openFile(const char* path, int flags, mode_t mode)
{
    return ::open(path, flags, mode);
}

const SystemCalls realCalls {renameNoReplace, ::rename, ::link, ::unlink, openFile, ::pwrite, ::fsync};

}  // namespace

SystemCalls& systemCalls()
{
    static SystemCalls calls = realCalls;
    return calls;
}

const SystemCalls& realSystemCalls()
{
    return realCalls;
}

bool syncParentFolder(const char* path)
{
    const char* slash = std::strrchr(path, '/');
    const std::string folder = !slash ? std::string(".") : (slash == path ? std::string("/") : std::string(path, slash));
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return false;
    // A file system that cannot sync a folder says EINVAL: there is nothing more to wait for.
    const bool synced = systemCalls().fsync(fd) == 0 || errno == EINVAL;
    const int error = errno;
    ::close(fd);
    errno = error;
    return synced;
}

}  // namespace tavrin
