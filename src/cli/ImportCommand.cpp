#include "cli/ImportCommand.h"

#include "cli/RenameCommand.h"
#include "cli/TerminalProgress.h"
#include "cli/Usage.h"
#include "core/io/ImportFiles.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"

#include <unistd.h>

namespace tavrin::cli {

namespace {

class ImportOptions final : public ExtraOptions {
public:
    Outcome takeOption(const QString& name, const TakeValue&, QString&) override
    {
        if (name == QLatin1String("--apply"))
            apply = true;
        else if (name == QLatin1String("--yes") || name == QLatin1String("-y"))
            yes = true;
        else if (name == QLatin1String("--continue-without-log"))
            continueWithoutLog = true;
        else
            return Outcome::NotMine;
        return Outcome::Taken;
    }

    QStringList optionNames() const override
    {
        return {QStringLiteral("--apply"), QStringLiteral("--yes"), QStringLiteral("--continue-without-log")};
    }

    bool apply = false;
    bool yes = false;
    bool continueWithoutLog = false;
};

QString checkUsage(const CommonOptions& common, const ImportOptions& extra)
{
    if (common.paths.size() != 1 || common.scan.includeSubFolders || !common.sortKeys.isEmpty())
        return localized("CLIIMPORTONEFILE");
    if (extra.apply && !extra.yes && ::isatty(STDIN_FILENO) != 1)
        return localized("CLIAPPLYNEEDSYES");
    return {};
}

// Apply works folder by folder; the report keeps the order of the file.
ApplyOutcome applyInFileOrder(FileList& list, const OptionValues& values, bool continueWithoutLog, QTextStream& err)
{
    QHash<QString, size_t> fileRow;
    for (size_t row = 0; row < list.items().size(); ++row)
        fileRow.insert(list.items()[row].fullPath(), row);
    FileList applyOrder = list;
    Pipeline(applyOrder, values).arrangeForApply();

    const ApplyOutcome outcome = applyPreviewed(list, values, continueWithoutLog, err);
    std::vector<FileSystemItem> inFileOrder(list.items().size());
    for (size_t row = 0; row < list.items().size(); ++row)
        inFileOrder[fileRow.value(applyOrder.items()[row].fullPath())] = std::move(list.items()[row]);
    list.items() = std::move(inFileOrder);
    list.resetFilesDic();
    return outcome;
}

}  // namespace

int runImportCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    CommonOptions common;
    ImportOptions extra;
    QString error;
    if (!parseCommonOptions(arguments, common, error, &extra))
        return reportUsageError("import", error, err);
    if (common.help) {
        out << localized("CLIIMPORTUSAGE") << '\n';
        return kExitDone;
    }
    error = checkUsage(common, extra);
    if (!error.isEmpty())
        return reportUsageError("import", error, err);
    const int importType = common.scan.folders ? 1 : 0;
    const RenameFileRead read = readRenameFile(common.paths.first(), importType);
    if (read.problemKey) {
        err << "tavrin-cli import: " << localized(read.problemKey) << '\n';
        return kExitFailed;
    }

    Settings settings;
    settings.chooseFilesOrFolders(importType);
    settings.setSelectedTab(tabs::FromFile);
    settings.setRenameFile(common.paths.first());
    const PropertyOptionValues values(settings);
    LoadedList loaded;
    RunResult result;
    result.applyRequested = extra.apply;
    {
        TerminalProgress progress;
        const std::atomic_bool neverCancelled{false};
        importFiles(loaded.list, read.list, neverCancelled, &progress);
        result.preview = Pipeline(loaded.list, values).preview(neverCancelled, &progress);
    }
    if (result.preview.conflicts > 0)
        err << localized("CLICONFLICTS").arg(result.preview.conflicts) << '\n';
    const QStringList namesBefore = shownNames(loaded.list);
    if (extra.apply && result.preview.hasFilesForRenaming) {
        if (!confirmApply(extra.yes, err)) {
            err << localized("CLIAPPLYDECLINED") << '\n';
            return kExitDone;
        }
        result.apply = applyInFileOrder(loaded.list, values, extra.continueWithoutLog, err);
    }
    printResult(loaded, namesBefore, result, common.json, out, err);
    return exitStatus(loaded, result);
}

}  // namespace tavrin::cli
