#pragma once

#include <QString>

namespace tavrin {

// What a rule file handed to the application turned out to be.
enum class RuleFileCheck {
    Compatible,
    // Written by another major version: its steps may not mean the same here.
    Incompatible,
    // Not a rule file: no version stamp, or not a property list holding a list of steps.
    Unreadable,
};

RuleFileCheck checkRuleFile(const QString& path);

// Where the rules library keeps a rule file of that name: the rules folder.
QString ruleLibraryPath(const QString& rulesFolder, const QString& ruleFilePath);

// Copies a rule file into the rules library, replacing a rule of the same name only once
// the copy is complete. False with the reason when it cannot.
bool addRuleToLibrary(const QString& ruleFilePath, const QString& rulesFolder, QString* error = nullptr);

} // namespace tavrin
