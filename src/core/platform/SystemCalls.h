#pragma once

#include <sys/types.h>

namespace tavrin {

// The system calls that move items and write logs, gathered in one table. The program always
// runs with the real ones; tests replace single entries to make the k-th call fail with a
// chosen errno, or do its work and still report a failure, as a network file system can.
struct SystemCalls {
    int (*renameNoReplace)(const char* source, const char* target);
    int (*rename)(const char* source, const char* target);
    int (*link)(const char* source, const char* target);
    int (*unlink)(const char* path);
    int (*open)(const char* path, int flags, mode_t mode);
    ssize_t (*pwrite)(int fd, const void* bytes, size_t count, off_t offset);
    int (*fsync)(int fd);
};

// The table in use; tests assign entries and put back realSystemCalls() when done.
SystemCalls& systemCalls();
const SystemCalls& realSystemCalls();

// fsync() of the folder that holds `path`, so a new, removed or renamed entry survives a
// power cut. False with errno set when it failed.
bool syncParentFolder(const char* path);

}  // namespace tavrin
