#include "core/log/LogFileCheck.h"

#include "core/log/LogFileLock.h"
#include "core/log/RenameLog.h"
#include "core/log/RenameLogReader.h"
#include "core/formats/VersionStamp.h"

namespace tavrin {

namespace {

bool isInUse(const QString& path)
{
    LogFileLock lock;
    return lock.tryLock(path) == LogFileLock::Result::InUse;
}

}  // namespace

QList<RenameLogEntry> readLogFile(const QString& path)
{
    const std::optional<RenameLogContents> contents = readLogEntries(path);
    return contents ? contents->entries : QList<RenameLogEntry>();
}

bool verifyLogFile(const QString& path, int* entryCount)
{
    const auto count = static_cast<int>(readLogFile(path).size());
    if (entryCount)
        *entryCount = count;
    return count > 0;
}

const char* CheckedLog::messageKey() const
{
    switch (check) {
    case LogCheck::Ready:
        return nullptr;
    case LogCheck::Incompatible:
        return "UNDOFILESFOLDERSINCOMPATIBLE";
    case LogCheck::InvalidFile:
        return "UNDOFILESFOLDERSINVALIDFILE";
    case LogCheck::InUse:
        return "UNDOFILESFOLDERSLOGINUSE";
    }
    return nullptr;
}

CheckedLog openLogFile(const QString& path)
{
    if (!isFileVersionMatch(appVersionInPlist(path)))
        return { LogCheck::Incompatible, 0 };
    if (isInUse(path))
        return { LogCheck::InUse, 0 };
    int entries = 0;
    if (!verifyLogFile(path, &entries))
        return { LogCheck::InvalidFile, 0 };
    return { LogCheck::Ready, entries };
}

bool deleteLog(const QString& path)
{
    LogFileLock lock;
    if (lock.tryLock(path) == LogFileLock::Result::InUse) {
        qWarning("Error in deleteLogFile : %s is in use", qPrintable(path));
        return false;
    }
    return deleteLogFile(path);
}

}  // namespace tavrin
