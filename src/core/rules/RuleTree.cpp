#include "core/rules/RuleTree.h"

#include "core/text/LocalizedStrings.h"

namespace tavrin {

Rule Rule::rootItem(const RuleStep& step)
{
    return Rule(step, LocalizedStrings::text(stepType(step)), QString());
}

Rule::Rule(std::optional<RuleStep> rule, QString option, QString value)
    : m_rule(std::move(rule))
    , m_option(std::move(option))
    , m_value(std::move(value))
{
}

const std::vector<Rule>& Rule::children() const
{
    if (!m_childrenBuilt && m_rule) {
        m_children = ruleLeaves(*m_rule);
        m_childrenBuilt = true;
    }
    return m_children;
}

int Rule::numberOfChildren() const
{
    return m_rule ? int(children().size()) : -1;
}

const Rule& Rule::childAtIndex(int index) const
{
    return children().at(std::size_t(index));
}

}  // namespace tavrin
