#pragma once

#include "cli/CommonOptions.h"
#include "cli/RenameOptions.h"
#include "core/rules/RuleStep.h"

#include <QString>
#include <optional>

namespace tavrin {
class Settings;
}

namespace tavrin::cli {

// The arguments of the commands that work on one rule file or profile:
// "tavrin-cli rule|profile ACTION FILE [OPTION]...".
struct DocumentArguments {
    QString action;  // "add", "show", "save"
    QString file;
    CommonOptions common;
    RenameOptions extra;
};

// Reads them; `actions` are those the command knows. False with the message on bad usage;
// --help stops there (common.help set).
bool parseDocumentArguments(const QStringList& arguments, const QStringList& actions, DocumentArguments& parsed,
                            QString& error);

// The options a command works with: the empty profile, or the profile --profile names, then
// the list mode of the command line, the tab and every --set in the order given. Without a
// profile the mode is exactly what the command line says (files, no sub-folders unless
// asked); a profile keeps its own unless --folders or --recursive ask for more. False with
// the message when the profile cannot be opened, a key names no option, a value cannot be
// set, or the tab has no action.
bool configureSettings(Settings& settings, const CommonOptions& common, const RenameOptions& extra, QString& error);

// The steps of the rule file --rule names, their "rule" without the prefix of early
// versions; nothing, with the message, when the file cannot be opened here.
std::optional<RuleChain> openRuleOption(const QString& path, QString& error);

}  // namespace tavrin::cli
