#include "core/log/LogRecovery.h"

#include "core/log/LogFileLock.h"
#include "core/log/LogFileName.h"
#include "core/log/RenameLog.h"
#include "core/log/RenameLogFormat.h"
#include "core/log/RenameLogReader.h"
#include "core/platform/FileOperations.h"
#include "core/text/NameParts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <unistd.h>

namespace tavrin {

namespace {

bool writeAllAt(int fd, const QByteArray& bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::pwrite(fd, bytes.constData() + written,
            static_cast<size_t>(bytes.size() - written), static_cast<off_t>(written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

// Rewrites the log in place as the finished document. Its entries are the lines already there
// (the killed batch wrote them in the finished layout), so at any moment of the rewrite the
// file reads as the same log: the inode, and with it the creation date the log is sorted by,
// stay the same.
bool closeDocument(int fd, const RenameLogContents& contents)
{
    const QByteArray text = logxml::document(contents.type, contents.entries, contents.appVersion);
    return writeAllAt(fd, text) && ::ftruncate(fd, static_cast<off_t>(text.size())) == 0 && ::fsync(fd) == 0;
}

bool sameLog(const QString& path, const RenameLogContents& contents)
{
    const std::optional<RenameLogContents> other = readLogEntries(path);
    return other && other->type == contents.type && other->entries == contents.entries;
}

enum class Recovery { Finished, NothingToDo, Failed };

Recovery recoverLog(const QString& folder, const QString& interimName, QString& finishedPath)
{
    const QString path = joinPath(folder, interimName);
    LogFileLock lock;
    switch (lock.tryLock(path, true)) {
    case LogFileLock::Result::InUse:
        return Recovery::NothingToDo;
    case LogFileLock::Result::Failed:
        return Recovery::Failed;
    case LogFileLock::Result::Locked:
        break;
    }
    const std::optional<RenameLogContents> contents = readLogEntries(path);
    // An empty file is a batch's that had not written its head yet, when it was killed or, for
    // a moment before it locks the file, still running: either way nothing was renamed.
    if (!contents)
        return QFileInfo(path).size() == 0 ? Recovery::NothingToDo : Recovery::Failed;
    if (!contents->rootClosed && !closeDocument(lock.fd(), *contents))
        return Recovery::Failed;
    // A batch of an earlier version killed between writing its finished log and removing its
    // "#" file left two copies of one log: the "#" one then goes.
    finishedPath = moveToFinishedLogName(path, folder, interimName, static_cast<int>(contents->entries.size()),
        [&contents](const QString& taken) { return sameLog(taken, *contents); });
    return finishedPath.isEmpty() ? Recovery::Failed : Recovery::Finished;
}

}  // namespace

LogRecoveryReport recoverInterruptedLogs(const QString& logFolder)
{
    LogRecoveryReport report;
    const QStringList names = QDir(logFolder).entryList(QDir::Files | QDir::Hidden, QDir::Unsorted);
    for (const QString& name : names) {
        if (!logfilename::isInterimFileName(name))
            continue;
        QString finishedPath;
        switch (recoverLog(logFolder, name, finishedPath)) {
        case Recovery::Finished:
            report.finished.append(finishedPath);
            break;
        case Recovery::Failed:
            qWarning("Error in recoverInterruptedLogs : could not finish %s",
                qPrintable(joinPath(logFolder, name)));
            report.leftAlone.append(joinPath(logFolder, name));
            break;
        case Recovery::NothingToDo:
            break;
        }
    }
    return report;
}

}  // namespace tavrin
