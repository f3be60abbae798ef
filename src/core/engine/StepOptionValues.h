#pragma once

#include "core/engine/ActionRegistry.h"
#include "core/engine/OptionValues.h"
#include "core/rules/RuleStep.h"

namespace tavrin {

// The options of one rule step, as its action reads them. The switches that pick a kind of
// the action ("isInsertDeleteInsert", ...) are not stored in a step: they answer whether the
// step's "type" is that kind. An option the step does not hold reads as empty.
class StepOptionValues final : public OptionValues {
public:
    StepOptionValues(const RuleStep& step, const ActionEntry& action);

    QString text(const char* key) const override;
    int integer(const char* key) const override;
    bool boolean(const char* key) const override;
    QStringList list(const char* key) const override;
    QDateTime date(const char* key) const override;

private:
    QVariant value(const char* key) const;

    RuleStep m_step;
    const ActionEntry& m_action;
};

}  // namespace tavrin
