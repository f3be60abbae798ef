#include "core/log/LogListing.h"

#include "core/log/LogFileName.h"
#include "core/formats/VersionStamp.h"
#include "core/text/NameParts.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace tavrin {

namespace {

qint64 millisecondsOf(const struct statx_timestamp& stamp)
{
    return stamp.tv_sec * 1000 + stamp.tv_nsec / 1000000;
}

std::optional<QDateTime> creationDate(const QString& path)
{
    struct statx info { };
    if (::statx(AT_FDCWD, QFile::encodeName(path).constData(), 0, STATX_BTIME | STATX_MTIME, &info) != 0)
        return std::nullopt;
    const bool hasBirthTime = (info.stx_mask & STATX_BTIME) != 0;
    return QDateTime::fromMSecsSinceEpoch(millisecondsOf(hasBirthTime ? info.stx_btime : info.stx_mtime));
}

std::optional<LogFileRecord> recordFor(const QString& folder, const QString& fileName)
{
    const std::optional<int> count = logfilename::countFromFileName(fileName);
    if (!count)
        return std::nullopt;
    const QString path = joinPath(folder, fileName);
    if (!isFileVersionMatch(appVersionInPlist(path)))
        return std::nullopt;
    const std::optional<QDateTime> created = creationDate(path);
    if (!created)
        return std::nullopt;
    return LogFileRecord { fileName, *created, *count, path };
}

}  // namespace

QList<LogFileRecord> loadUserLogFiles(const QString& logFolder)
{
    QList<LogFileRecord> records;
    const QStringList names = QDir(logFolder).entryList(QDir::Files | QDir::Hidden, QDir::Unsorted);
    for (const QString& name : names) {
        if (std::optional<LogFileRecord> record = recordFor(logFolder, name))
            records.append(std::move(*record));
    }
    sortNewestFirst(records);
    return records;
}

void sortNewestFirst(QList<LogFileRecord>& records)
{
    std::sort(records.begin(), records.end(), [](const LogFileRecord& left, const LogFileRecord& right) {
        if (left.dateCreated != right.dateCreated)
            return left.dateCreated > right.dateCreated;
        return left.logFileName > right.logFileName;
    });
}

}  // namespace tavrin
