#pragma once

#include "cli/CommandSettings.h"
#include "cli/LoadedList.h"
#include "cli/RenameOptions.h"
#include "core/engine/Pipeline.h"
#include "core/profiles/Settings.h"

#include <QStringList>
#include <QTextStream>
#include <optional>

namespace tavrin::cli {

// `tavrin-cli preview`: the new names one action tab proposes, nothing changed on disk.
int runPreviewCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

// `tavrin-cli apply`: the same preview, then the renames on disk, logged for undo.
int runApplyCommand(const QStringList& arguments, QTextStream& out, QTextStream& err);

// What a preview or apply run did, for the report.
struct RunResult {
    PreviewOutcome preview;
    bool applyRequested = false;       // the apply command: its JSON always carries its keys
    std::optional<ApplyOutcome> apply;  // set when something was applied
};

// The steps preview and apply are made of, shared with the commands built on them.
// The settings the options ask for (configureSettings), the list of the PATHs and its
// preview (in apply's order `forApply`) by the tab's action or the steps of --rule; the exit
// status when the options are refused, nothing when the preview ran.
std::optional<int> previewPaths(const char* command, CommonOptions& common, const RenameOptions& extra, bool forApply,
                                Settings& settings, LoadedList& loaded, PreviewOutcome& preview, QTextStream& err);
// The names as the table shows them, row by row.
QStringList shownNames(const FileList& list);
// "--yes", or else the answer to the question on the terminal.
bool confirmApply(bool yes, QTextStream& err);
// The renames of a previewed list, logged; Ctrl+C stops after the current item.
ApplyOutcome applyPreviewed(FileList& list, const OptionValues& values, bool continueWithoutLog, QTextStream& err);
// The rows (or the JSON) and the summary; the exit status the run deserves.
void printResult(const LoadedList& loaded, const QStringList& namesBefore, const RunResult& result, bool json,
                 QTextStream& out, QTextStream& err);
int exitStatus(const LoadedList& loaded, const RunResult& result);

}  // namespace tavrin::cli
