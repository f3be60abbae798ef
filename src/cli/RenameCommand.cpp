#include "cli/RenameCommand.h"

#include "cli/CommandSettings.h"
#include "cli/ListJson.h"
#include "cli/LoadedList.h"
#include "cli/RenameOptions.h"
#include "cli/TerminalProgress.h"
#include "cli/Usage.h"
#include "core/engine/Pipeline.h"
#include "core/engine/Validation.h"
#include "core/list/StatusTexts.h"
#include "core/profiles/Preferences.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"

#include <QJsonDocument>
#include <QMap>
#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace tavrin::cli {

namespace {

enum class Mode { Preview, Apply };

std::atomic_bool interrupted{false};

extern "C" void stopAfterCurrentItem(int)
{
    interrupted.store(true);
}

// Ctrl+C ends an apply after the current item, so the log is saved with what was renamed.
class InterruptGuard {
public:
    InterruptGuard() { m_previous = std::signal(SIGINT, stopAfterCurrentItem); }
    ~InterruptGuard() { std::signal(SIGINT, m_previous); }
    InterruptGuard(const InterruptGuard&) = delete;
    InterruptGuard& operator=(const InterruptGuard&) = delete;

private:
    void (*m_previous)(int) = nullptr;
};

const char* commandName(Mode mode)
{
    return mode == Mode::Preview ? "preview" : "apply";
}

QString summaryLine(const FileList& list)
{
    int proposals = 0;
    QMap<QString, int> statuses;
    for (const FileSystemItem& item : list.items()) {
        if (item.hasStatus())
            ++statuses[item.newFilename()];
        else if (!item.newFilename().isEmpty())
            ++proposals;
    }
    QString line = localized("CLINEWNAMES").arg(proposals);
    for (auto it = statuses.cbegin(); it != statuses.cend(); ++it)
        line += QStringLiteral(", %1: %2").arg(it.key()).arg(it.value());
    return line;
}

// One row per item: its name before the run, then its new name or status as shown.
void printRows(const FileList& list, const QStringList& namesBefore, QTextStream& out)
{
    const QString newName = QString::fromLatin1(itemkeys::NewFilename);
    const QString name = QString::fromLatin1(itemkeys::FilenameWithExtension);
    for (int row = 0; row < list.size(); ++row) {
        const FileSystemItem& item = list.at(row);
        out << namesBefore.at(row) << '\t';
        if (item.status() == RenameStatus::RenamingOk)
            out << item.displayField(name) << '\t';
        out << item.displayField(newName) << '\n';
    }
}

}  // namespace

QStringList shownNames(const FileList& list)
{
    QStringList names;
    names.reserve(list.size());
    for (const FileSystemItem& item : list.items())
        names << item.displayField(QString::fromLatin1(itemkeys::FilenameWithExtension));
    return names;
}

bool confirmApply(bool yes, QTextStream& err)
{
    if (yes)
        return true;
    err << localized("ITEMRENAMINGMESSAGE") << " [" << localized("CLIYESLETTER") << '/'
        << localized("CLINOLETTER") << "] " << Qt::flush;
    char answer[64] = {};
    if (!std::fgets(answer, sizeof answer, stdin))
        return false;
    const QString reply = QString::fromLocal8Bit(answer).trimmed().toLower();
    return !reply.isEmpty()
        && (reply.startsWith(QLatin1Char('y')) || reply.startsWith(localized("CLIYESLETTER").toLower()));
}

ApplyOutcome applyPreviewed(FileList& list, const OptionValues& values, bool continueWithoutLog,
                            QTextStream& err)
{
    const QString logFolder = loadPreferences().defaultLogFolderPath;
    const auto askContinue = [&] {
        err << localized("LOGCREATEFAILED") << '\n';
        if (!continueWithoutLog)
            err << localized("CLICONTINUEWITHOUTLOGHINT") << '\n';
        return continueWithoutLog;
    };
    const InterruptGuard guard;
    interrupted.store(false);
    TerminalProgress progress;
    Pipeline pipeline(list, values);
    return pipeline.applyRenames(logFolder, askContinue, interrupted, &progress);
}

void printResult(const LoadedList& loaded, const QStringList& namesBefore, const RunResult& result, bool json,
                 QTextStream& out, QTextStream& err)
{
    if (json) {
        QJsonObject root = previewJson(loaded.list, loaded.skipped);
        if (result.applyRequested) {
            const ApplyOutcome applied = result.apply.value_or(ApplyOutcome{});
            root.insert(QStringLiteral("renamed"), applied.renamed);
            root.insert(QStringLiteral("log"), applied.logPath.isEmpty() ? QJsonValue(QJsonValue::Null)
                                                                        : QJsonValue(applied.logPath));
        }
        out << QJsonDocument(root).toJson(QJsonDocument::Indented);
    } else {
        printRows(loaded.list, namesBefore, out);
        out << summaryLine(loaded.list);
        if (result.apply)
            out << ", " << localized("CLIRENAMED").arg(result.apply->renamed);
        out << '\n';
        if (result.apply && !result.apply->logPath.isEmpty())
            out << localized("CLILOGWRITTEN").arg(result.apply->logPath) << '\n';
    }
    if (!result.preview.actionSucceeded && !result.preview.lastError.isEmpty())
        err << result.preview.lastError << '\n';
    if (result.apply && !result.apply->logError.isEmpty())
        err << result.apply->logError << '\n';
}

int exitStatus(const LoadedList& loaded, const RunResult& result)
{
    const bool applyFailed = result.apply
        && (result.apply->failed > 0 || result.apply->aborted || !result.apply->logError.isEmpty());
    if (!loaded.missing.isEmpty() || !result.preview.actionSucceeded || applyFailed)
        return kExitFailed;
    return kExitDone;
}

std::optional<int> previewPaths(const char* command, CommonOptions& common, const RenameOptions& extra, bool forApply,
                                Settings& settings, LoadedList& loaded, PreviewOutcome& preview, QTextStream& err)
{
    QString error;
    if (!configureSettings(settings, common, extra, error))
        return reportUsageError(command, error, err);
    // A rule's steps run with the values they hold, unchecked, as the window runs them.
    std::optional<RuleChain> rules;
    if (extra.rule) {
        rules = openRuleOption(*extra.rule, error);
        if (!rules)
            return reportUsageError(command, error, err);
    }
    const int tab = settings.selectedTab();
    if (const auto failure = rules ? std::nullopt : validateAndNormalise(settings, tab)) {
        err << failure->title() << ": " << failure->message() << '\n';
        return kExitBadUsage;
    }

    common.scan = ScanOptions{settings.isFolders(), settings.isIncludeSubFolders(), tab == tabs::FromFile};
    loaded = loadList(common);
    reportProblems(loaded, !common.json, err);
    const PropertyOptionValues values(settings);
    // Previewing in the order apply will work in keeps the rows of the report in step with
    // the renames.
    if (forApply)
        Pipeline(loaded.list, values).arrangeForApply();
    {
        TerminalProgress progress;
        const std::atomic_bool neverCancelled{false};
        Pipeline pipeline(loaded.list, values);
        preview = rules ? pipeline.previewRule(*rules, neverCancelled, &progress)
                        : pipeline.preview(neverCancelled, &progress);
    }
    if (preview.conflicts > 0)
        err << localized("CLICONFLICTS").arg(preview.conflicts) << '\n';
    return std::nullopt;
}

namespace {

bool parseArguments(Mode mode, const QStringList& arguments, CommonOptions& common, RenameOptions& extra,
                    QString& error)
{
    if (!parseCommonOptions(arguments, common, error, &extra))
        return false;
    if (mode == Mode::Apply && !common.help && !extra.yes && !extra.dryRun && ::isatty(STDIN_FILENO) != 1) {
        error = localized("CLIAPPLYNEEDSYES");
        return false;
    }
    return true;
}

int runRename(Mode mode, const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    CommonOptions common;
    RenameOptions extra;
    QString error;
    if (!parseArguments(mode, arguments, common, extra, error))
        return reportUsageError(commandName(mode), error, err);
    // "apply --dry-run" only shows what apply would do.
    if (extra.dryRun)
        mode = Mode::Preview;
    if (common.help) {
        out << localized(mode == Mode::Preview ? "CLIPREVIEWUSAGE" : "CLIAPPLYUSAGE") << "\n\n"
            << localized("CLIRULEPROFILEOPTIONS") << '\n';
        return kExitDone;
    }
    Settings settings;
    LoadedList loaded;
    RunResult result;
    result.applyRequested = mode == Mode::Apply;
    if (const std::optional<int> refused = previewPaths(commandName(mode), common, extra, result.applyRequested,
                                                        settings, loaded, result.preview, err))
        return *refused;
    const PropertyOptionValues values(settings);
    const QStringList namesBefore = shownNames(loaded.list);
    if (mode == Mode::Apply && result.preview.hasFilesForRenaming) {
        if (!confirmApply(extra.yes, err)) {
            err << localized("CLIAPPLYDECLINED") << '\n';
            return kExitDone;
        }
        result.apply = applyPreviewed(loaded.list, values, extra.continueWithoutLog, err);
    }
    printResult(loaded, namesBefore, result, common.json, out, err);
    return exitStatus(loaded, result);
}

}  // namespace

int runPreviewCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    return runRename(Mode::Preview, arguments, out, err);
}

int runApplyCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    return runRename(Mode::Apply, arguments, out, err);
}

}  // namespace tavrin::cli
