#include "core/log/UndoRenaming.h"

#include "core/log/JournalFile.h"
#include "core/log/LogFileLock.h"
#include "core/log/RenameLog.h"
#include "core/log/RenameLogFormat.h"
#include "core/log/RenameLogReader.h"
#include "core/platform/FileOperations.h"
#include "core/platform/SystemCalls.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <optional>

namespace tavrin {

namespace {

// The summary names this many entries not restored at most; the log keeps them all.
constexpr int listedProblems = 20;
constexpr char partSuffix[] = ".part";

// The item at the new name is the one the batch renamed. The inode decides; the device too,
// unless the whole file system now has another number (a disk mounted again), which the
// folder shows.
bool isRenamedItem(const RenameLogEntry& entry, const ItemIdentity& item)
{
    if (!entry.hasIdentity())
        return true;
    if (item.inode != entry.inode)
        return false;
    return item.device == entry.device || itemIdentity(entry.targetLocation).device != entry.device;
}

UndoProblemKind problemOf(const FileResult& result)
{
    switch (result.outcome) {
    case FileOutcome::TargetExists:
    case FileOutcome::NotSameItem:
        return UndoProblemKind::OldNameTaken;
    case FileOutcome::SourceMissing:
        return UndoProblemKind::ItemGone;
    case FileOutcome::Ok:
    case FileOutcome::Failed:
        break;
    }
    return UndoProblemKind::Failed;
}

// Undoes one entry; nothing when its item has its old name again.
std::optional<UndoProblem> undoEntry(const RenameLogEntry& entry)
{
    if (!isUndoableEntry(entry))
        return UndoProblem {entry, UndoProblemKind::Refused, {}};
    const QString oldPath = entry.sourcePath();
    const QString newPath = entry.targetPath();
    const ItemIdentity item = itemIdentity(newPath);
    // An item known by its identity to be under its old name is restored already: the rename
    // of an entry written just before a batch was killed, for one, never happened.
    if (!item.exists && entry.hasIdentity() && isRenamedItem(entry, itemIdentity(oldPath)))
        return std::nullopt;
    if (!item.exists)
        return UndoProblem {entry, UndoProblemKind::ItemGone, {}};
    if (!isRenamedItem(entry, item))
        return UndoProblem {entry, UndoProblemKind::OtherItem, {}};
    FileResult result;
    switch (decideUndoStep(pathExists(oldPath), true, oldPath == newPath)) {
    case UndoStep::MoveBack:
        result = moveItemNoReplace(newPath, oldPath);
        break;
    case UndoStep::CaseOnlyRename:
        result = renameCaseOnly(newPath, oldPath);
        break;
    case UndoStep::Skip:
        return UndoProblem {entry, UndoProblemKind::OldNameTaken, {}};
    }
    if (result.ok())
        return std::nullopt;
    return UndoProblem {entry, problemOf(result), result.message};
}

// Walks the entries, the last rename first; answers those not restored, in log order.
QList<RenameLogEntry> walkEntries(const QList<RenameLogEntry>& entries, const std::atomic_bool& cancel,
    ProgressObserver* observer, UndoSummary& summary)
{
    ThrottledProgress progress(observer);
    QList<RenameLogEntry> remaining;
    qsizetype next = entries.size();
    for (; next > 0; --next) {
        if (cancel.load()) {
            summary.outcome = UndoOutcome::Cancelled;
            break;
        }
        const RenameLogEntry& entry = entries[next - 1];
        progress.report(entry.targetPath(), int(entries.size() - next), summary.entries);
        if (std::optional<UndoProblem> problem = undoEntry(entry)) {
            remaining.prepend(entry);
            summary.problems.append(std::move(*problem));
        } else {
            ++summary.restored;
            summary.restoredEntries.append(entry);
        }
    }
    progress.finish(QString(), int(entries.size() - next), summary.entries);
    return entries.mid(0, next) + remaining;
}

// Replaces the log by itself with fewer entries: the shorter document is complete and synced
// under a name of its own before it takes the log's place.
bool rewriteLog(const QString& path, const RenameLogContents& contents, const QList<RenameLogEntry>& remaining)
{
    const QString partPath = path + QLatin1String(partSuffix);
    JournalFile part;
    if (!part.createExclusive(partPath))
        return false;
    const bool written = part.append(logxml::document(contents.type, remaining, contents.appVersion)) && part.sync()
        && systemCalls().rename(QFile::encodeName(partPath).constData(), QFile::encodeName(path).constData()) == 0;
    part.close();
    if (!written) {
        qWarning("Error in undoRenaming : %s", qPrintable(part.lastError()));
        QFile::remove(partPath);
        return false;
    }
    syncParentFolder(QFile::encodeName(path).constData());
    return true;
}

const char* problemKey(UndoProblemKind kind)
{
    switch (kind) {
    case UndoProblemKind::Refused:
        return "UNDOENTRYREFUSED";
    case UndoProblemKind::ItemGone:
        return "UNDOITEMGONE";
    case UndoProblemKind::OtherItem:
        return "UNDOITEMREPLACED";
    case UndoProblemKind::OldNameTaken:
        return "UNDOOLDNAMETAKEN";
    case UndoProblemKind::Failed:
        break;
    }
    return "UNDOMOVEFAILED";
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

QString UndoProblem::text() const
{
    const QString message = localized(problemKey(kind));
    switch (kind) {
    case UndoProblemKind::OldNameTaken:
        return message.arg(entry.targetPath(), entry.sourceName);
    case UndoProblemKind::Failed:
        return message.arg(entry.targetPath(), reason);
    default:
        return message.arg(entry.targetPath());
    }
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
    const QList<RenameLogEntry> remaining = walkEntries(contents->entries, cancel, observer, summary);
    if (remaining.isEmpty())
        summary.logDeleted = deleteLogFile(logPath);
    else if (remaining.size() < contents->entries.size())
        summary.logKept = rewriteLog(logPath, *contents, remaining);
    else
        summary.logKept = true;
    return summary;
}

QString undoSummaryText(const UndoSummary& summary)
{
    // Counts in the user's number format: "100,000", not "100000".
    const QLocale locale;
    QString text = localized("UNDOTOTALNOSITEMSFOUND").arg(locale.toString(summary.entries)) + QLatin1Char('\n')
        + localized("UNDOTOTALNOSITEMSRENAMED").arg(locale.toString(summary.restored)) + QLatin1Char('\n')
        + localized("UNDOTOTALNOSITEMDOESNOTEXISTS").arg(locale.toString(summary.notRestored()));
    for (const UndoProblem& problem : summary.problems.first(std::min<qsizetype>(listedProblems, summary.problems.size())))
        text += QLatin1Char('\n') + problem.text();
    if (summary.problems.size() > listedProblems)
        text += QLatin1Char('\n') + localized("UNDOMOREPROBLEMS").arg(locale.toString(summary.problems.size() - listedProblems));
    if (summary.logKept)
        text += QLatin1Char('\n') + localized("UNDOLOGKEPT");
    return text;
}

}  // namespace tavrin
