#include "core/platform/FileDates.h"

#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>

namespace tavrin {

namespace {

QDateTime dateOf(const struct statx_timestamp& stamp)
{
    return QDateTime::fromMSecsSinceEpoch(stamp.tv_sec * 1000 + stamp.tv_nsec / 1000000);
}

}  // namespace

std::optional<FileDates> readFileDates(const QString& path)
{
    struct statx info { };
    if (::statx(AT_FDCWD, QFile::encodeName(path).constData(), AT_SYMLINK_NOFOLLOW, STATX_BTIME | STATX_MTIME,
                &info)
        != 0)
        return std::nullopt;
    const QDateTime modified = dateOf(info.stx_mtime);
    const bool hasBirthTime = (info.stx_mask & STATX_BTIME) != 0;
    return FileDates {hasBirthTime ? dateOf(info.stx_btime) : modified, modified};
}

}  // namespace tavrin
