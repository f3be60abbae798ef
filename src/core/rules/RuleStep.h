#pragma once

#include <QList>
#include <QVariant>
#include <QVariantMap>
#include <optional>

namespace tavrin {

// One step of a rule: the action it runs ("rule"), the action's kind ("type"), whether it
// runs ("isActive"), and the action's options under the keys the settings use. Options are
// kept as rule files hold them: texts, "%d" numbers, lists as arrays, and a number under
// "sequence" for the counter of a sequence.
using RuleStep = QVariantMap;
// The steps of a rule, in the order they run.
using RuleChain = QList<RuleStep>;

namespace stepkeys {
inline constexpr char Rule[] = "rule";
inline constexpr char Type[] = "type";
inline constexpr char IsActive[] = "isActive";
inline constexpr char Sequence[] = "sequence";
// The photo fields of a photo step, archived as MetaDataField objects beside their tokens.
inline constexpr char MetaDataList[] = "MetaDataList";
}  // namespace stepkeys

QString stepRule(const RuleStep& step);
QString stepType(const RuleStep& step);
// "isActive" read through the integer conversion: a step without it does not run.
bool isStepActive(const RuleStep& step);
void setStepActive(RuleStep& step, bool active);

// A chain as a list of dictionaries, the form keyed archives hold it in.
QVariant chainToVariant(const RuleChain& rules);
// Nothing unless every element is a dictionary.
std::optional<RuleChain> chainFromVariant(const QVariant& value);

// Rules saved by early versions named their actions "Rule - General" and so on: the prefix
// goes, wherever it stands in "rule".
void removeRulePrefix(RuleChain& rules);

}  // namespace tavrin
