#pragma once

#include "core/engine/OptionValues.h"
#include "core/list/FileSystemItem.h"

#include <QString>
#include <functional>
#include <span>

namespace tavrin {

// One action with the options of one run read into it: writes a record's proposal into
// its newFilename and answers false (with an error text) when it could not. A sequence
// carries its counter from call to call.
using BoundAction = std::function<bool(FileSystemItem& item, QString& error)>;

// Reads an action's options once and binds them, with the counters at their start values.
using ActionBinder = BoundAction (*)(const OptionValues& options);

// One kind of rule step an action makes: its "type", the switch of the tab that picks it
// (null when the action has one kind) with the radio choice behind that switch, and the
// option keys the step stores, in order.
struct StepForm {
    const char* type;
    const char* modeKey;
    const char* radioKey;
    int radioIndex;
    std::span<const char* const> keys;
};

struct ActionEntry {
    int tab;
    const char* ruleName;           // the "rule" of a rule step that runs this action
    ActionBinder bind;              // null for a tab that runs no action
    const char* resetPerFolderKey;  // option that restarts the counters in each folder, or null
    // The kinds of step, in the order the tab's switches are asked which one is on; none
    // for an action that makes no steps.
    std::span<const StepForm> stepForms = {};
};

// The action of a tab, or null for a tab no action is registered for yet.
const ActionEntry* actionForTab(int tab);
// The action a rule step names ("General", "ReplaceRemove", ...), or null.
const ActionEntry* actionForRule(const QString& ruleName);
// The kind of step of that "type", or null.
const StepForm* stepFormOf(const ActionEntry& action, const QString& type);

}  // namespace tavrin
