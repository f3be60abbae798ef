#pragma once

#include "core/list/Progress.h"
#include "core/log/RenameLogEntry.h"

#include <QList>
#include <QString>
#include <atomic>

namespace tavrin {

// How an entry is undone, from what exists at its two paths.
enum class UndoStep {
    MoveBack, // only the new name exists: a no-replace move back to the old one
    CaseOnlyRename, // both exist under different spellings: the same item on a case-insensitive
                    // file system, or another item; renameCaseOnly() tells them apart
    Skip, // the old name is taken alone, or the renamed item is gone
};

UndoStep decideUndoStep(bool oldPathExists, bool newPathExists, bool samePath);

// Whether an entry may be undone at all. A log is only a text file, so it is never trusted to
// move an item out of its folder: both folders must be the same absolute folder, and both
// names (once "/" is ":" again) single path components.
bool isUndoableEntry(const RenameLogEntry& entry);

enum class UndoOutcome {
    Done, // every entry was walked; the log deleted, or kept with the entries not restored
    Cancelled, // stopped early; the log keeps every entry not restored so the rest can be undone
    NotALog, // the file is not a rename log: nothing moved, nothing deleted
    InUse, // a batch is still writing the log, or another undo is at work on it
};

// Why an entry was not restored.
enum class UndoProblemKind {
    Refused, // the entry would move an item out of its folder, or is incomplete
    ItemGone, // nothing has the new name any more
    OtherItem, // the new name belongs to another item than the one the batch renamed
    OldNameTaken, // another item has the old name
    Failed, // the system refused the move; see `reason`
};

struct UndoProblem {
    RenameLogEntry entry;
    UndoProblemKind kind = UndoProblemKind::Failed;
    QString reason; // the system's text, for Failed

    // One line for the summary, naming the item.
    QString text() const;
};

struct UndoSummary {
    UndoOutcome outcome = UndoOutcome::Done;
    int entries = 0;
    int restored = 0;
    bool logDeleted = false;
    // The log was kept (rewritten with only the entries not restored), so undo can be tried again.
    bool logKept = false;
    QList<UndoProblem> problems; // the entries walked and not restored, in the order they were walked
    QList<RenameLogEntry> restoredEntries; // the entries whose item has its old name back

    int notRestored() const { return entries - restored; }
};

// Gives every item of a log back its old name, the last rename first. Nothing is overwritten,
// and only the item the batch renamed is moved back: where the log records its device and
// inode, an item with another identity at the new name is left alone. When every entry was
// restored the log is deleted, so a batch is undone at most once; otherwise the log keeps
// exactly the entries not restored (walked or not), so the undo can be tried again.
// `cancel` is read before each entry; progress reports the entry at hand.
UndoSummary undoRenaming(
    const QString& logPath, const std::atomic_bool& cancel, ProgressObserver* observer = nullptr);

// The summary alert's message: the entries found, restored and not restored, a line each, then
// what happened to each entry not restored (the first few) and whether the log was kept.
QString undoSummaryText(const UndoSummary& summary);

}  // namespace tavrin
