#include "core/log/UndoRenaming.h"

#include "core/log/LogFileLock.h"
#include "core/log/RenameLog.h"
#include "core/log/RenameLogReader.h"
#include "core/platform/FileOperations.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QDir>
#include <ranges>

namespace tavrin {

namespace {

// Undoes one entry; true when its item has its old name again.
bool undoEntry(const RenameLogEntry& entry)
{
    if (!isUndoableEntry(entry))
        return false;
    const QString oldPath = entry.sourcePath();
    const QString newPath = entry.targetPath();
    switch (decideUndoStep(pathExists(oldPath), pathExists(newPath), oldPath == newPath)) {
    case UndoStep::MoveBack:
        return moveItemNoReplace(newPath, oldPath).ok();
    case UndoStep::CaseOnlyRename:
        return renameCaseOnly(newPath, oldPath).ok();
    case UndoStep::Skip:
        break;
    }
    return false;
}

void walkEntries(const QList<RenameLogEntry>& entries, const std::atomic_bool& cancel,
    ProgressObserver* observer, UndoSummary& summary)
{
    ThrottledProgress progress(observer);
    int walked = 0;
    for (const RenameLogEntry& entry : std::views::reverse(entries)) {
        if (cancel.load()) {
            summary.outcome = UndoOutcome::Cancelled;
            break;
        }
        progress.report(entry.targetPath(), walked, summary.entries);
        if (undoEntry(entry))
            ++summary.restored;
        ++walked;
    }
    progress.finish(QString(), walked, summary.entries);
}

}  // namespace

UndoStep decideUndoStep(bool oldPathExists, bool newPathExists, bool samePath)
{
    if (!newPathExists)
        return UndoStep::Skip;
    if (!oldPathExists)
        return UndoStep::MoveBack;
    return samePath ? UndoStep::Skip : UndoStep::CaseOnlyRename;
}

bool isUndoableEntry(const RenameLogEntry& entry)
{
    return entry.hasAllAttributes && entry.sourceLocation == entry.targetLocation
        && QDir::isAbsolutePath(entry.sourceLocation) && isValidNewName(storedName(entry.sourceName))
        && isValidNewName(storedName(entry.targetName));
}

UndoSummary undoRenaming(const QString& logPath, const std::atomic_bool& cancel, ProgressObserver* observer)
{
    UndoSummary summary;
    LogFileLock lock;
    if (lock.tryLock(logPath) == LogFileLock::Result::InUse) {
        summary.outcome = UndoOutcome::InUse;
        return summary;
    }
    const std::optional<RenameLogContents> contents = readLogEntries(logPath);
    if (!contents) {
        summary.outcome = UndoOutcome::NotALog;
        return summary;
    }
    summary.entries = static_cast<int>(contents->entries.size());
    walkEntries(contents->entries, cancel, observer, summary);
    if (summary.outcome == UndoOutcome::Done)
        summary.logDeleted = deleteLogFile(logPath);
    return summary;
}

QString undoSummaryText(const UndoSummary& summary)
{
    return localized("UNDOTOTALNOSITEMSFOUND").arg(summary.entries) + QLatin1Char('\n')
        + localized("UNDOTOTALNOSITEMSRENAMED").arg(summary.restored) + QLatin1Char('\n')
        + localized("UNDOTOTALNOSITEMDOESNOTEXISTS").arg(summary.notRestored());
}

}  // namespace tavrin
