#pragma once

#include "core/engine/Pipeline.h"
#include "core/engine/StepOptionValues.h"
#include "core/rules/RuleStep.h"

#include <memory>
#include <vector>

namespace tavrin {

// The active steps of a rule chain, run in order on each record: every step works on the
// name the step before it proposed. Each step that numbers keeps a counter of its own; a
// step whose action no tab runs here is passed over.
class RuleProposer final : public Proposer {
public:
    explicit RuleProposer(const RuleChain& rules);

    // Only the counters of the steps that restart in each folder start again; all of them
    // start at their first values when the proposer is made.
    void resetCounters() override;
    bool restartsInEachFolder() const override;
    bool computesNames() const override { return true; }
    // False, with the error of the last step that failed, when any step failed.
    bool propose(FileSystemItem& item, QString& error) override;

private:
    struct Step {
        const ActionEntry* action;
        std::unique_ptr<StepOptionValues> values;
        BoundAction run;
        bool restartsInEachFolder;
    };
    std::vector<Step> m_steps;
};

}  // namespace tavrin
