#pragma once

#include "core/engine/Pipeline.h"
#include "core/engine/Validation.h"

#include <QObject>
#include <QString>
#include <functional>
#include <optional>

namespace tavrin {

class ListController;
class LivePreview;
class SessionController;

// Proposes new names for the list (preview, and the live preview that follows the options)
// and applies them, on the list's background job. The options a run uses are read once, on
// the GUI thread, when it starts: what the user changes meanwhile waits for the next run.
class RenameController : public QObject {
    Q_OBJECT

public:
    // Asked on the GUI thread while an apply waits for the answer: true renames without a
    // usable log, false ends the apply before any rename.
    using ContinueWithoutLogQuestion = std::function<bool()>;

    RenameController(ListController& list, SessionController& session, QObject* parent = nullptr);

    ListController& list() const { return m_list; }
    SessionController& session() const { return m_session; }
    LivePreview& livePreview() const { return *m_livePreview; }

    // The last preview left at least one proposed name, and no apply or clear came since.
    bool isHasFilesForRenaming() const { return m_isHasFilesForRenaming; }
    const PreviewOutcome& lastPreviewOutcome() const { return m_previewOutcome; }
    const ApplyOutcome& lastApplyOutcome() const { return m_applyOutcome; }
    // True while a run normalises the options: those changes start no live preview.
    bool isNormalising() const { return m_isNormalising; }

    // Normalises the options of the selected tab and, when they can run, proposes the new
    // names on the worker thread; while the rule chain is in use, its steps propose them. Answers why the options cannot run, with nothing started.
    // Does nothing while executing or with an empty list.
    std::optional<ValidationFailure> preview();
    // The live preview of the first `limit` records (all when -1): like preview(), but an
    // input that cannot run is only reported in the progress line, and the window stays
    // usable while it runs. False when nothing was started.
    bool quickPreview(int limit);
    // Renames every record that holds a proposal, on the worker thread; false (and nothing
    // happens) while executing or when the last preview proposed nothing.
    bool apply(const ContinueWithoutLogQuestion& continueWithoutLog);

    // Turns live preview on or off, and sets what it covers; the session remembers both.
    void setLivePreview(bool enabled);
    void setLivePreviewCoverage(bool allFiles, const QString& filesLimit);
    void restoreLivePreview();

signals:
    void hasFilesForRenamingChanged(bool hasFiles);
    void previewFinished();
    // A live preview ended; only the new names changed.
    void livePreviewFinished();
    // The count line at the end of an apply: "Files renamed: n".
    void renamedCountChanged(const QString& text);
    void applyFinished();

private:
    std::optional<ValidationFailure> normaliseOptions();
    std::optional<RuleChain> chainInUse() const;
    void finishPreview();
    void finishQuickPreview(int limit);
    void finishApply();
    void rememberLivePreview();
    void setHasFilesForRenaming(bool hasFiles);
    QString renamedCountText() const;
    QString logLocationText() const;

    ListController& m_list;
    SessionController& m_session;
    LivePreview* m_livePreview;
    PreviewOutcome m_previewOutcome;
    ApplyOutcome m_applyOutcome;
    bool m_isNormalising = false;
    bool m_isHasFilesForRenaming = false;
};

} // namespace tavrin
