#pragma once

#include "core/engine/Validation.h"
#include "core/rules/RuleStep.h"

#include <QString>
#include <optional>

namespace tavrin {

class Settings;

// What building a step from the options of the selected tab gave.
struct StepOutcome {
    std::optional<RuleStep> step;
    // An input the step needs is missing: the alert to show, and the field to focus.
    std::optional<ValidationFailure> failure;
    // Set when an audio or photo mask is missing: its message, already part of the alert.
    QString error;
};

// Builds a step of the selected tab's options, as the tab would run them: the options are
// normalised first, in place (steps below 1 become "1", letter steps above 26 become "26",
// empty occurrence counts of the general tab become "1" ...). No step for a tab without
// steps, for a missing input, or when no kind of the action is chosen.
StepOutcome getRule(Settings& settings);

// Appends the step `built` holds. Answers true when one was added, and also when none was
// but `built.error` already tells why; false when there is none and no error to show.
bool addRule(RuleChain& rules, const StepOutcome& built);

// Loads a step back into the options and selects its tab, as one change of the settings.
// Booleans and indexes are read through the integer conversion, radio choices set their
// mirrors, and the step's "type" chooses the kind of its action. A "PrefixSuffix" step is
// never loaded: nothing changes. A step whose "type" is not one of its action's kinds only
// selects the tab. Answers whether any option was loaded.
bool setRule(Settings& settings, const RuleStep& step);

}  // namespace tavrin
