#include "core/engine/RuleProposer.h"

namespace tavrin {

RuleProposer::RuleProposer(const RuleChain& rules)
{
    for (const RuleStep& step : rules) {
        const ActionEntry* action = actionForRule(stepRule(step));
        if (!isStepActive(step) || !action)
            continue;
        auto values = std::make_unique<StepOptionValues>(step, *action);
        const bool restarts = action->resetPerFolderKey && values->boolean(action->resetPerFolderKey);
        BoundAction run = action->bind(*values);
        m_steps.push_back({action, std::move(values), std::move(run), restarts});
    }
}

void RuleProposer::resetCounters()
{
    for (Step& step : m_steps) {
        if (step.restartsInEachFolder)
            step.run = step.action->bind(*step.values);
    }
}

bool RuleProposer::restartsInEachFolder() const
{
    for (const Step& step : m_steps) {
        if (step.restartsInEachFolder)
            return true;
    }
    return false;
}

bool RuleProposer::propose(FileSystemItem& item, QString& error)
{
    bool succeeded = true;
    for (Step& step : m_steps) {
        QString stepError;
        if (!step.run(item, stepError)) {
            succeeded = false;
            error = stepError;
        }
    }
    return succeeded;
}

}  // namespace tavrin
