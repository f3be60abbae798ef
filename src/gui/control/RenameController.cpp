#include "gui/control/RenameController.h"

#include "core/engine/OptionValues.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/control/ActivityStatus.h"
#include "gui/control/ListController.h"
#include "gui/control/LivePreview.h"
#include "gui/control/SessionController.h"

#include <QLocale>
#include <algorithm>
#include <memory>

namespace tavrin {

namespace {

QString formattedCount(int count)
{
    return QLocale().toString(count);
}

using Options = std::shared_ptr<const PropertyOptionValues>;
using Rules = std::optional<RuleChain>;

PreviewOutcome proposeNames(FileList& files, const OptionValues& options, const Rules& rules,
    const std::atomic_bool& cancel, ProgressObserver* progress, int limit)
{
    Pipeline pipeline(files, options);
    return rules ? pipeline.previewRule(*rules, cancel, progress, limit) : pipeline.preview(cancel, progress, limit);
}

} // namespace

// A rule's steps run with the values they hold: the options of the tab are not checked.
std::optional<RuleChain> RenameController::chainInUse() const
{
    return m_session.isRuleChainInUse() ? Rules(m_session.rules()) : std::nullopt;
}

RenameController::RenameController(ListController& list, SessionController& session, QObject* parent)
    : QObject(parent)
    , m_list(list)
    , m_session(session)
    , m_livePreview(new LivePreview(*this))
{
    connect(&m_list, &ListController::cleared, this, [this] { setHasFilesForRenaming(false); });
}

// Normalising changes options; those changes must not arm another live preview.
std::optional<ValidationFailure> RenameController::normaliseOptions()
{
    Settings& settings = m_session.settings();
    m_isNormalising = true;
    std::optional<ValidationFailure> failure = validateAndNormalise(settings, settings.selectedTab());
    m_isNormalising = false;
    return failure;
}

std::optional<ValidationFailure> RenameController::preview()
{
    if (m_list.isExecuting() || m_list.shownCount() == 0)
        return std::nullopt;
    const Rules rules = chainInUse();
    if (!rules) {
        if (std::optional<ValidationFailure> failure = normaliseOptions())
            return failure;
    }
    // A live preview still waiting would replace this full preview with a partial one.
    m_livePreview->disarm();
    const Options options = std::make_shared<const PropertyOptionValues>(m_session.settings());
    m_previewOutcome = PreviewOutcome();
    m_list.run(
        { localized("GENERATINGPREVIEWPLEASEWAIT"), rules ? "doPreviewRule" : "doPreview", false },
        [this, options, rules](FileList& files, const std::atomic_bool& cancel, ProgressObserver* progress) {
            m_previewOutcome = proposeNames(files, *options, rules, cancel, progress, -1);
        },
        [this] { finishPreview(); });
    return std::nullopt;
}

bool RenameController::quickPreview(int limit)
{
    if (m_list.isExecuting() || m_list.shownCount() == 0)
        return false;
    const Rules rules = chainInUse();
    if (const std::optional<ValidationFailure> failure = rules ? std::nullopt : normaliseOptions()) {
        m_list.status().showMessage(failure->message());
        return false;
    }
    const Options options = std::make_shared<const PropertyOptionValues>(m_session.settings());
    m_previewOutcome = PreviewOutcome();
    return m_list.run(
        { QString(), rules ? "doPreviewRule" : "doPreview", true },
        [this, options, rules, limit](FileList& files, const std::atomic_bool& cancel, ProgressObserver* progress) {
            m_previewOutcome = proposeNames(files, *options, rules, cancel, progress, limit);
        },
        [this, limit] { finishQuickPreview(limit); });
}

bool RenameController::apply(const ContinueWithoutLogQuestion& continueWithoutLog)
{
    if (m_list.isExecuting() || !m_isHasFilesForRenaming)
        return false;
    const Options options = std::make_shared<const PropertyOptionValues>(m_session.settings());
    m_applyOutcome = ApplyOutcome();
    setHasFilesForRenaming(false);
    const QString modeWord = localized(m_list.isFolders() ? "FOLDERS" : "FILES");
    const auto work = [this, options, folder = m_session.logFolderPath(), continueWithoutLog](
                          FileList& files, const std::atomic_bool& cancel, ProgressObserver* progress) {
        const auto ask = [this, &continueWithoutLog] { return m_list.askOnGuiThread(continueWithoutLog); };
        m_applyOutcome = Pipeline(files, *options).applyRenames(folder, ask, cancel, progress);
    };
    return m_list.run({ localized("RENAMINGITEMSPLEASEWAIT").arg(modeWord), "doApply", false }, work,
        [this] { finishApply(); });
}

void RenameController::finishPreview()
{
    m_list.status().finishTiming("PREVIEWTIME");
    // A cancelled preview proposed only part of the list: Rename waits for one that finishes.
    setHasFilesForRenaming(m_previewOutcome.hasFilesForRenaming && !m_previewOutcome.cancelled);
    if (!m_previewOutcome.actionSucceeded)
        m_list.status().showMessage(m_previewOutcome.lastError);
    else if (m_previewOutcome.conflicts > 0)
        m_list.status().showMessage(localized("CONFLICTSCOUNT").arg(formattedCount(m_previewOutcome.conflicts)));
    emit previewFinished();
}

// A live preview that left records out cannot be applied: renaming only the first records
// of the list would surprise. A full preview is needed first.
void RenameController::finishQuickPreview(int limit)
{
    const bool coveredAll = (limit < 0 || limit >= m_list.shownCount()) && !m_previewOutcome.cancelled;
    setHasFilesForRenaming(coveredAll && m_previewOutcome.hasFilesForRenaming);
    if (!m_previewOutcome.actionSucceeded)
        m_list.status().showMessage(m_previewOutcome.lastError);
    else if (!coveredAll && m_previewOutcome.hasFilesForRenaming)
        m_list.status().showMessage(localized("PARTIALLIVEPREVIEW").arg(formattedCount(std::max(limit, 0))));
    else
        m_list.status().showMessage(QString());
    emit livePreviewFinished();
}

void RenameController::finishApply()
{
    m_list.status().finishTiming("RENAMINGTIME");
    emit renamedCountChanged(renamedCountText());
    m_list.status().showMessage(logLocationText());
    emit applyFinished();
}

QString RenameController::renamedCountText() const
{
    QString text = localized(m_list.isFolders() ? "TOTALNOSFOLDERSRENAMED" : "TOTALNOSFILESRENAMED")
                       .arg(formattedCount(m_applyOutcome.renamed));
    if (m_applyOutcome.failed > 0)
        text += QLatin1Char(' ') + localized("NOTRENAMEDCOUNT").arg(formattedCount(m_applyOutcome.failed));
    if (m_applyOutcome.untouched > 0)
        text += QLatin1Char(' ') + localized("UNTOUCHEDCOUNT").arg(formattedCount(m_applyOutcome.untouched));
    return text;
}

QString RenameController::logLocationText() const
{
    if (m_applyOutcome.aborted)
        return localized("RENAMINGABORTEDNOLOG");
    // The "#" log it left behind still holds the batch; the next start finishes it.
    if (!m_applyOutcome.logError.isEmpty())
        return m_applyOutcome.logError;
    if (m_applyOutcome.logPath.isEmpty())
        return localized("LOGNOTWRITTEN");
    return localized("LOGSAVEDAT").arg(getDisplayFilePath(m_applyOutcome.logPath));
}

void RenameController::setHasFilesForRenaming(bool hasFiles)
{
    if (hasFiles == m_isHasFilesForRenaming)
        return;
    m_isHasFilesForRenaming = hasFiles;
    emit hasFilesForRenamingChanged(hasFiles);
}

void RenameController::setLivePreview(bool enabled)
{
    m_livePreview->setLivePreviewEnabled(enabled);
    rememberLivePreview();
}

void RenameController::setLivePreviewCoverage(bool allFiles, const QString& filesLimit)
{
    m_livePreview->setCoverage(allFiles, filesLimit);
    rememberLivePreview();
}

void RenameController::restoreLivePreview()
{
    const LivePreviewChoice choice = m_session.restoredLivePreview();
    m_livePreview->setCoverage(choice.allFiles, choice.filesLimit);
    m_livePreview->setLivePreviewEnabled(choice.enabled);
}

void RenameController::rememberLivePreview()
{
    m_session.rememberLivePreview({ m_livePreview->isLivePreviewEnabled(),
        m_livePreview->isLivePreviewAllFiles(), m_livePreview->livePreviewFilesLimit() });
}

} // namespace tavrin
