#pragma once

#include "core/engine/OptionValues.h"
#include "core/list/FileSystemItem.h"

#include <QString>

namespace tavrin {

// The running counters of the sequence actions, owned by the pipeline and passed to the
// action by reference so that each call hands back the next value.
struct SequenceCounters {
    int numeric = 0;
    QString alphabetic;
};

// Runs one action on one record with the given option values; writes the proposal into
// the record's newFilename and answers false (with an error text) when it could not.
using ActionRunner = bool (*)(FileSystemItem& item, const OptionValues& options, SequenceCounters& counters,
                              QString& error);

struct ActionEntry {
    int tab;
    const char* ruleName;           // the "rule" of a rule step that runs this action
    ActionRunner run;               // null for a tab that runs no action
    const char* resetPerFolderKey;  // option that restarts the counters in each folder, or null
};

// The action of a tab, or null for a tab no action is registered for yet.
const ActionEntry* actionForTab(int tab);
// The action a rule step names ("General", "ReplaceRemove", ...), or null.
const ActionEntry* actionForRule(const QString& ruleName);

// The counters' start values from the options of the sequence tab.
SequenceCounters startCounters(const OptionValues& options);

}  // namespace tavrin
