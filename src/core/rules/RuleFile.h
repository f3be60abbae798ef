#pragma once

#include "core/rules/RuleStep.h"

#include <QByteArray>
#include <QString>
#include <optional>

namespace tavrin {

enum class RuleFileStatus {
    Opened,
    // Written by another major version, or carrying no version: its steps may not mean the
    // same here.
    Incompatible,
    // Not a rule file: not a property list of steps, or more than a rule file holds.
    Unreadable,
};

struct RuleFileOutcome {
    RuleFileStatus status = RuleFileStatus::Unreadable;
    RuleChain rules;   // the steps as the file holds them, when opened
    QString message;   // why it was not, for the user
};

// A rule file (".tnrule"): an XML property list holding the array of steps, each a
// dictionary with "rule", "type" and "isActive" first and then the options of its kind in
// their order, its root element stamped with the version that wrote it.
//
// Writes the file, then stamps it; a file that cannot be stamped is removed again. The file
// at `path` is replaced: the save dialog has asked.
bool saveRuleFile(const RuleChain& rules, const QString& path, QString* error = nullptr);

// Adds the "appversion" attribute of this version to the root element of a written rule
// file, replacing the file only once the stamped one is complete.
bool addAppVersionToRuleFile(const QString& path);

// Opens a rule file of this major version. Steps keep their "rule" as written.
RuleFileOutcome openRuleFile(const QString& path);

// The steps of a rule file whatever version wrote it; nothing when it is not one.
std::optional<RuleChain> readRuleSteps(const QString& path);

// The XML of the steps as saveRuleFile writes it, before the stamp.
QByteArray ruleFileXml(const RuleChain& rules);

}  // namespace tavrin
