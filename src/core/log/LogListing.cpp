#include "core/log/LogListing.h"

#include "core/log/LogFileName.h"
#include "core/formats/VersionStamp.h"
#include "core/platform/FileDates.h"
#include "core/text/NameParts.h"

#include <QDir>
#include <algorithm>
#include <optional>

namespace tavrin {

namespace {

std::optional<LogFileRecord> recordFor(const QString& folder, const QString& fileName)
{
    const std::optional<int> count = logfilename::countFromFileName(fileName);
    if (!count)
        return std::nullopt;
    const QString path = joinPath(folder, fileName);
    if (!isFileVersionMatch(appVersionInPlist(path)))
        return std::nullopt;
    const std::optional<FileDates> dates = readFileDates(path);
    if (!dates)
        return std::nullopt;
    return LogFileRecord { fileName, dates->created, *count, path };
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
