#include "core/rules/RuleStep.h"

#include "core/text/StringUtilities.h"

namespace tavrin {

namespace {

QString stepText(const RuleStep& step, const char* key)
{
    return step.value(QString::fromLatin1(key)).toString();
}

}  // namespace

QString stepRule(const RuleStep& step)
{
    return stepText(step, stepkeys::Rule);
}

QString stepType(const RuleStep& step)
{
    return stepText(step, stepkeys::Type);
}

bool isStepActive(const RuleStep& step)
{
    return toInteger(stepText(step, stepkeys::IsActive)) != 0;
}

void setStepActive(RuleStep& step, bool active)
{
    step.insert(QString::fromLatin1(stepkeys::IsActive), active ? QStringLiteral("1") : QStringLiteral("0"));
}

QVariant chainToVariant(const RuleChain& rules)
{
    QVariantList list;
    list.reserve(rules.size());
    for (const RuleStep& step : rules)
        list.append(step);
    return list;
}

std::optional<RuleChain> chainFromVariant(const QVariant& value)
{
    if (value.typeId() != QMetaType::QVariantList)
        return std::nullopt;
    RuleChain rules;
    for (const QVariant& item : value.toList()) {
        if (item.typeId() != QMetaType::QVariantMap)
            return std::nullopt;
        rules.append(item.toMap());
    }
    return rules;
}

void removeRulePrefix(RuleChain& rules)
{
    const QString key = QString::fromLatin1(stepkeys::Rule);
    for (RuleStep& step : rules) {
        if (step.contains(key))
            step.insert(key, step.value(key).toString().remove(QStringLiteral("Rule - ")));
    }
}

}  // namespace tavrin
