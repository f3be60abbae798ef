// rename_loop_bench [COUNT] [FOLDER]
//
// Makes COUNT empty files (100,000 by default) named "file-000001.txt"... in FOLDER (a new
// temporary folder by default), renames each to "renamed-000001.txt" with
// renameat2(RENAME_NOREPLACE) on full paths, as the apply loop does, and prints the time the
// renames took. A folder it made itself is removed afterwards; files in a given folder are
// left renamed, so the same names can then be given to `tavrin-cli apply --yes`.

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr long defaultCount = 100000;

std::string numbered(const std::string& folder, const char* stem, long index)
{
    char name[64];
    std::snprintf(name, sizeof name, "/%s-%06ld.txt", stem, index);
    return folder + name;
}

bool makeFiles(const std::string& folder, long count)
{
    for (long i = 1; i <= count; ++i) {
        const int fd
            = ::open(numbered(folder, "file", i).c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0644);
        if (fd < 0) {
            std::fprintf(stderr, "cannot make file %ld: %s\n", i, std::strerror(errno));
            return false;
        }
        ::close(fd);
    }
    return true;
}

// Answers the number of renames that succeeded.
long renameAll(const std::string& folder, long count)
{
    long renamed = 0;
    for (long i = 1; i <= count; ++i) {
        const std::string source = numbered(folder, "file", i);
        const std::string target = numbered(folder, "renamed", i);
        if (::renameat2(AT_FDCWD, source.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE) == 0)
            ++renamed;
        else
            std::fprintf(stderr, "rename %ld: %s\n", i, std::strerror(errno));
    }
    return renamed;
}

void removeAll(const std::string& folder, long count)
{
    for (long i = 1; i <= count; ++i) {
        ::unlink(numbered(folder, "renamed", i).c_str());
        ::unlink(numbered(folder, "file", i).c_str());
    }
    ::rmdir(folder.c_str());
}

std::string makeTemporaryFolder()
{
    const char* base = std::getenv("TMPDIR");
    std::string pattern = std::string(base && *base ? base : "/tmp") + "/rename-loop-bench-XXXXXX";
    return ::mkdtemp(pattern.data()) ? pattern : std::string();
}

}  // namespace

int main(int argc, char** argv)
{
    const long count = argc > 1 ? std::strtol(argv[1], nullptr, 10) : defaultCount;
    if (count <= 0 || count > 999999) {
        std::fprintf(stderr, "usage: %s [COUNT (1 to 999999)] [FOLDER]\n", argv[0]);
        return 2;
    }
    const bool ownFolder = argc <= 2;
    const std::string folder = ownFolder ? makeTemporaryFolder() : std::string(argv[2]);
    if (folder.empty()) {
        std::fprintf(stderr, "cannot make a temporary folder: %s\n", std::strerror(errno));
        return 1;
    }
    if (!makeFiles(folder, count)) {
        if (ownFolder)
            removeAll(folder, count);
        return 1;
    }

    const auto start = std::chrono::steady_clock::now();
    const long renamed = renameAll(folder, count);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;

    std::printf("%ld of %ld files renamed in %.3f s (%.2f us per file) in %s\n", renamed, count,
        elapsed.count(), elapsed.count() * 1e6 / static_cast<double>(count), folder.c_str());
    if (ownFolder)
        removeAll(folder, count);
    return renamed == count ? 0 : 1;
}
