#pragma once

#include "core/rules/RuleStep.h"

#include <QString>
#include <optional>
#include <vector>

namespace tavrin {

// A node of the tree the rules sheet shows for one step: the root names the step's kind,
// and under it one leaf per option that matters for that kind, in the order of the tab,
// each with its label and the value as a person reads it ("TRUE", "END", a joined date
// format ...). Labels and display words come from the string tables.
class Rule {
public:
    // The root of a step's tree: its kind as the option, an empty value.
    static Rule rootItem(const RuleStep& step);

    Rule(std::optional<RuleStep> rule, QString option, QString value);

    const QString& option() const { return m_option; }
    const QString& value() const { return m_value; }

    // Built from the step on first request; a node without a step is a leaf, which has none.
    const std::vector<Rule>& children() const;
    // -1 for a leaf.
    int numberOfChildren() const;
    const Rule& childAtIndex(int index) const;

private:
    std::optional<RuleStep> m_rule;
    QString m_option;
    QString m_value;
    mutable std::vector<Rule> m_children;
    mutable bool m_childrenBuilt = false;
};

// The leaves of a step, as rootItem(step).children() holds them.
std::vector<Rule> ruleLeaves(const RuleStep& step);

}  // namespace tavrin
