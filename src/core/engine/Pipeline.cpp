#include "core/engine/Pipeline.h"

#include "core/engine/FolderPathIndex.h"
#include "core/engine/ProposalConflicts.h"
#include "core/engine/RuleProposer.h"
#include "core/engine/actions/general.h"
#include "core/list/FileList.h"
#include "core/list/StatusTexts.h"
#include "core/log/RenameLog.h"
#include "core/platform/FileOperations.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QDateTime>
#include <QLocale>
#include <exception>
#include <memory>
#include <optional>

namespace tavrin {

namespace {

RenameStatus alreadyExistsStatus(const FileSystemItem& item)
{
    return item.itemType() == ItemType::File ? RenameStatus::FileAlreadyExists : RenameStatus::FolderAlreadyExists;
}

RenameStatus notFoundStatus(const FileSystemItem& item)
{
    return item.itemType() == ItemType::File ? RenameStatus::FileNotFound : RenameStatus::FolderNotFound;
}

void setNewFilename(FileSystemItem& item, const QString& name)
{
    item.setObject(name, QString::fromLatin1(itemkeys::NewFilename));
}

}  // namespace

TabProposer::TabProposer(const OptionValues& options, int tab)
    : m_options(options)
    , m_action(actionForTab(tab))
{
    resetCounters();
}

// Binding the action again reads its options afresh and restarts its counters.
void TabProposer::resetCounters()
{
    if (m_action && m_action->bind)
        m_run = m_action->bind(m_options);
}

bool TabProposer::restartsInEachFolder() const
{
    return m_action && m_action->resetPerFolderKey && m_options.boolean(m_action->resetPerFolderKey);
}

bool TabProposer::computesNames() const
{
    return m_action == nullptr || m_action->bind != nullptr;
}

bool TabProposer::propose(FileSystemItem& item, QString& error)
{
    if (!m_run)
        return true;
    return m_run(item, error);
}

Pipeline::Pipeline(FileList& list, const OptionValues& options)
    : m_list(list)
    , m_options(options)
{
}

PreviewOutcome Pipeline::preview(const std::atomic_bool& cancel, ProgressObserver* observer, int limit)
{
    TabProposer proposer(m_options, m_options.integer(Settings::selectedTabKey));
    return preview(proposer, cancel, observer, limit);
}

PreviewOutcome Pipeline::previewRule(const RuleChain& rules, const std::atomic_bool& cancel,
                                     ProgressObserver* observer, int limit)
{
    RuleProposer proposer(rules);
    return preview(proposer, cancel, observer, limit);
}

PreviewOutcome Pipeline::preview(Proposer& proposer, const std::atomic_bool& cancel, ProgressObserver* observer,
                                 int limit)
{
    PreviewOutcome outcome;
    ThrottledProgress progress(observer);
    const bool restartInEachFolder = proposer.restartsInEachFolder();
    if (restartInEachFolder)
        m_list.sortByFolderThenName();

    QString previousFolder;
    const int total = m_list.size();
    const int count = limit >= 0 ? std::min(limit, total) : total;
    int row = 0;
    for (; row < count; ++row) {
        if (cancel.load()) {
            outcome.cancelled = true;
            break;
        }
        FileSystemItem& item = m_list.at(row);
        if (restartInEachFolder) {
            const QString folder = item.fileLocation();
            if (row > 0 && folder != previousFolder)
                proposer.resetCounters();
            previousFolder = folder;
        }
        if (proposer.computesNames())
            setNewFilename(item, QString());
        progress.report(item.fullPath(), row, total);

        if (!pathExists(item.fullPath())) {
            item.setStatus(notFoundStatus(item));
            continue;
        }
        QString error;
        outcome.actionSucceeded = proposer.propose(item, error);
        if (!outcome.actionSucceeded)
            outcome.lastError = error;
        judgeProposal(item, outcome);
    }
    // A record this run did not reach must not keep what an earlier run proposed: apply
    // would rename it by options the user has since changed.
    if (proposer.computesNames()) {
        for (int rest = row; rest < total; ++rest)
            setNewFilename(m_list.at(rest), QString());
    }
    outcome.conflicts = markProposalConflicts(m_list);
    progress.finish(QString(), row, total);
    return outcome;
}

// Turns the action's proposal into what the record shows: the new name, or a status.
void Pipeline::judgeProposal(FileSystemItem& item, PreviewOutcome& outcome) const
{
    // A status the record already holds (an imported list's refusal) stands.
    if (item.hasStatus())
        return;
    const QString old = item.filenameWithExtension();
    QString proposed = item.newFilename();
    if (proposed.isEmpty())
        proposed = old;
    // A "/" from metadata or a date format is kept as ":", the form the file system stores.
    proposed = storedName(proposed);
    if (!isValidNewName(proposed)) {
        item.setStatus(RenameStatus::NoChanges);
        return;
    }
    if (old.compare(proposed, Qt::CaseInsensitive) == 0) {
        if (old == proposed) {
            item.setStatus(RenameStatus::NoChanges);
        } else {
            setNewFilename(item, proposed);
            outcome.hasFilesForRenaming = true;
            ++outcome.proposals;
        }
        return;
    }
    if (pathExists(joinPath(item.fileLocation(), proposed))) {
        item.setStatus(alreadyExistsStatus(item));
        return;
    }
    setNewFilename(item, proposed);
    outcome.hasFilesForRenaming = true;
    ++outcome.proposals;
}

bool Pipeline::appliesFolderByFolder() const
{
    return (m_options.boolean(Settings::isFoldersKey) && m_options.boolean(Settings::isIncludeSubFoldersKey))
        || m_options.integer(Settings::selectedTabKey) == tabs::FromFile;
}

void Pipeline::arrangeForApply()
{
    if (appliesFolderByFolder())
        m_list.sortByFolderThenName();
}

namespace {

// One apply run: the log, the per-record steps and the bookkeeping of what was renamed.
class ApplyRun {
public:
    ApplyRun(FileList& list, const OptionValues& options, bool rewritePaths)
        : m_list(list)
        , m_tab(options.integer(Settings::selectedTabKey))
        , m_generalOptionIndex(options.integer(Settings::generalOptionIndexKey))
        , m_isFolders(options.boolean(Settings::isFoldersKey))
    {
        if (rewritePaths)
            m_index = std::make_unique<FolderPathIndex>(list);
    }

    bool openLog(const QString& folder, const ContinueWithoutLog& continueWithoutLog)
    {
        const QString type = QString::fromLatin1(m_isFolders ? "FOLDERS" : "FILES");
        if (m_log.create(folder, type, QDateTime::currentDateTime()))
            return true;
        return continueWithoutLog && continueWithoutLog();
    }

    void renameRecord(int row, ApplyOutcome& outcome);
    void finishLog(ApplyOutcome& outcome)
    {
        outcome.logPath = m_log.finish();
        outcome.logError = m_log.finishError();
    }

private:
    // Case conversions of the general tab may name the same object in another case, so
    // neither the existence test nor a plain refusal of an existing target fits them.
    bool isCaseConversion() const
    {
        return m_generalOptionIndex == generaloption::ConvertFilenameCase
            || m_generalOptionIndex == generaloption::ConvertExtensionCase;
    }
    bool skipsExistenceTest() const { return m_tab == tabs::General || isCaseConversion(); }
    bool allowsCaseOnlyRename() const
    {
        return (m_tab == tabs::General || m_tab == tabs::FromFile)
            && m_generalOptionIndex <= generaloption::ConvertExtensionCase;
    }
    bool targetTaken(const FileSystemItem& item, const QString& target) const
    {
        return item.itemType() == ItemType::File ? pathExists(target) : isDirectory(target);
    }
    FileResult move(const QString& source, const QString& target) const;
    static bool movedAnyway(const ItemIdentity& before, const QString& source, const QString& target)
    {
        return isSameItem(itemIdentity(target), before) && !isSameItem(itemIdentity(source), before);
    }

    FileList& m_list;
    RenameLog m_log;
    std::unique_ptr<FolderPathIndex> m_index;
    int m_tab;
    int m_generalOptionIndex;
    bool m_isFolders;
};

FileResult ApplyRun::move(const QString& source, const QString& target) const
{
    const FileResult outcome = moveItemNoReplace(source, target);
    if (outcome.outcome != FileOutcome::TargetExists || !allowsCaseOnlyRename())
        return outcome;
    // Only a target that is the source itself in another letter case may be renamed over.
    const FileResult caseOnly = renameCaseOnly(source, target);
    return caseOnly.ok() ? caseOnly : outcome;
}

void ApplyRun::renameRecord(int row, ApplyOutcome& outcome)
{
    FileSystemItem& item = m_list.at(row);
    const QString proposed = item.newFilename();
    if (proposed.isEmpty() || item.hasStatus())
        return;
    const QString source = item.fullPath();
    const QString target = joinPath(item.fileLocation(), proposed);
    if (!isValidNewName(proposed) || proposed == item.filenameWithExtension()) {
        item.setStatus(RenameStatus::NoChanges);
        ++outcome.failed;
        return;
    }
    if (!skipsExistenceTest() && targetTaken(item, target)) {
        item.setStatus(alreadyExistsStatus(item));
        ++outcome.failed;
        return;
    }
    // The entry reaches the log file before the move, so a batch cut short by a crash can
    // still be undone; a move that fails takes its entry back out, unless the disk shows that
    // it happened all the same (a network file system can report an error after the fact).
    const ItemIdentity before = itemIdentity(source);
    m_log.addLogEntry(source, target, before.device, before.inode);
    const FileResult moved = move(source, target);
    if (!moved.ok() && !movedAnyway(before, source, target)) {
        m_log.dropLastEntry();
        if (moved.outcome == FileOutcome::TargetExists)
            item.setStatus(alreadyExistsStatus(item));
        else
            item.setStatus(RenameStatus::NoChanges);
        ++outcome.failed;
        return;
    }
    m_log.confirmEntry();
    item.setStatus(RenameStatus::RenamingOk);
    if (m_index)
        m_index->itemMoved(m_list, source, target);
    item.setFullPath(target);
    ++outcome.renamed;
}

}  // namespace

ApplyOutcome Pipeline::applyRenames(const QString& logFolder, const ContinueWithoutLog& continueWithoutLog,
                                    const std::atomic_bool& cancel, ProgressObserver* observer)
{
    ApplyOutcome outcome;
    const bool rewritePaths = appliesFolderByFolder();
    arrangeForApply();
    ApplyRun run(m_list, m_options, rewritePaths);
    if (!run.openLog(logFolder, continueWithoutLog)) {
        outcome.aborted = true;
        run.finishLog(outcome);
        m_list.resetFilesDic();
        return outcome;
    }

    ThrottledProgress progress(observer);
    const int total = m_list.size();
    int row = 0;
    try {
        for (; row < total; ++row) {
            if (cancel.load()) {
                outcome.cancelled = true;
                break;
            }
            progress.report(m_list.at(row).fullPath(), row, total);
            run.renameRecord(row, outcome);
        }
    } catch (const std::exception& exception) {
        qWarning("Error %s", exception.what());
    }
    progress.finish(QString(), row, total);
    for (int rest = row; rest < total; ++rest) {
        const FileSystemItem& item = m_list.at(rest);
        if (!item.hasStatus() && !item.newFilename().isEmpty())
            ++outcome.untouched;
    }
    run.finishLog(outcome);
    m_list.resetFilesDic();
    return outcome;
}

QString timeTakenText(double seconds, const char* key)
{
    return localized("TIMETAKEN").arg(QLocale().toString(seconds, 'f', 2), localized(key));
}

}  // namespace tavrin
