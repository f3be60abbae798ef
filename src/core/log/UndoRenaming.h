#pragma once

#include "core/list/Progress.h"
#include "core/log/RenameLogEntry.h"

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
    Done, // every entry was walked and the log deleted
    Cancelled, // stopped early; the log is kept so the rest can still be undone
    NotALog, // the file is not a rename log: nothing moved, nothing deleted
    InUse, // a batch is still writing the log, or another undo is at work on it
};

struct UndoSummary {
    UndoOutcome outcome = UndoOutcome::Done;
    int entries = 0;
    int restored = 0;
    bool logDeleted = false;

    int notRestored() const { return entries - restored; }
};

// Gives every item of a log back its old name, the last rename first, then deletes the log
// whatever came of its entries, so a batch is undone at most once. Nothing is overwritten: an
// entry whose old name is taken by another item, whose item is gone, or that isUndoableEntry()
// refuses is counted as not restored. `cancel` is read before each entry; progress reports
// the entry at hand.
UndoSummary undoRenaming(
    const QString& logPath, const std::atomic_bool& cancel, ProgressObserver* observer = nullptr);

// The summary alert's message: the entries found, restored and not restored, a line each.
QString undoSummaryText(const UndoSummary& summary);

}  // namespace tavrin
