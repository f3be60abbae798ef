#pragma once

#include "core/engine/ActionRegistry.h"
#include "core/engine/OptionValues.h"
#include "core/list/Progress.h"
#include "core/rules/RuleStep.h"

#include <QString>
#include <atomic>
#include <functional>

namespace tavrin {

class FileList;

struct PreviewOutcome {
    bool actionSucceeded = true;  // the result of the last action call
    QString lastError;            // the error text of the last failed action call
    bool hasFilesForRenaming = false;
    int proposals = 0;  // records that got a new name
    int conflicts = 0;  // proposals that another record also proposes
    bool cancelled = false;
};

struct ApplyOutcome {
    int renamed = 0;
    int failed = 0;         // proposals that could not be applied
    int untouched = 0;      // proposals a cancel left before they were reached
    QString logPath;        // the saved log, empty when none could be written
    QString logError;       // why the log could not be finished, empty when it was (or none was wanted)
    bool aborted = false;   // the log could not be made and the user chose not to go on
    bool cancelled = false;
};

// Asked from the worker thread when the log cannot be created: true goes on without a
// usable log, false ends the apply before any rename.
using ContinueWithoutLog = std::function<bool()>;

// Proposes one record's new name (the action of a tab, or the steps of a rule chain).
class Proposer {
public:
    virtual ~Proposer() = default;
    // The counters that restart in each folder start again (at each new folder, when
    // restartsInEachFolder() says they do).
    virtual void resetCounters() = 0;
    virtual bool restartsInEachFolder() const = 0;
    // False for the rename-from-file tab, whose proposals are imported, not computed.
    virtual bool computesNames() const = 0;
    virtual bool propose(FileSystemItem& item, QString& error) = 0;
};

// The action of one tab over the settings' values.
class TabProposer final : public Proposer {
public:
    TabProposer(const OptionValues& options, int tab);
    void resetCounters() override;
    bool restartsInEachFolder() const override;
    bool computesNames() const override;
    bool propose(FileSystemItem& item, QString& error) override;

private:
    const OptionValues& m_options;
    const ActionEntry* m_action;
    BoundAction m_run;  // empty for a tab that computes no names
};

// Preview and apply over a file list. The options are read by key ("selectedTab",
// "isFolders", "isIncludeSubFolders", "generalOptionIndex" and the action's own). Runs on
// whatever thread calls it; reports through the observer and stops when `cancel` is set.
class Pipeline {
public:
    Pipeline(FileList& list, const OptionValues& options);

    // Proposes a new name or a status for every record (the first `limit` records when
    // limit >= 0). The records a limited or cancelled run did not reach are left with an
    // empty newFilename, so no earlier proposal survives.
    PreviewOutcome preview(const std::atomic_bool& cancel, ProgressObserver* observer, int limit = -1);
    PreviewOutcome preview(Proposer& proposer, const std::atomic_bool& cancel, ProgressObserver* observer,
                           int limit = -1);
    // The same with the active steps of a rule chain in place of the tab's action (RuleProposer).
    PreviewOutcome previewRule(const RuleChain& rules, const std::atomic_bool& cancel, ProgressObserver* observer,
                               int limit = -1);

    // Puts the list in the order apply works in: folder by folder, a folder's items by name,
    // when folders move with their contents (folders with sub-folders, or a rename list), so
    // that renamed folders rewrite the paths below them. Otherwise the order stays.
    void arrangeForApply();

    // Renames on disk every record that holds a proposal, logging each rename in a new log
    // in `logFolder`. Never overwrites anything.
    ApplyOutcome applyRenames(const QString& logFolder, const ContinueWithoutLog& continueWithoutLog,
                              const std::atomic_bool& cancel, ProgressObserver* observer);

private:
    void judgeProposal(FileSystemItem& item, PreviewOutcome& outcome) const;
    bool appliesFolderByFolder() const;

    FileList& m_list;
    const OptionValues& m_options;
};

// "TIMETAKEN" filled with the text of `key` ("PREVIEWTIME", "RENAMINGTIME", ...) and the seconds.
QString timeTakenText(double seconds, const char* key);

}  // namespace tavrin
