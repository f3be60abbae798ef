#pragma once

#include "core/engine/Pipeline.h"
#include "core/engine/Validation.h"
#include "core/list/FileList.h"
#include "core/list/Progress.h"
#include "core/profiles/Preferences.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/Settings.h"

#include <QObject>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QThread;

namespace tavrin {

class LivePreview;

enum class ListMode { Files, Folders };

// The keys of the state kept between runs in the user defaults.
namespace userdefaults {
inline constexpr char LastProfile[] = "LASTPROFILE";
inline constexpr char LastRule[] = "LASTRULE";
inline constexpr char Defaults[] = "DEFAULTS";
inline constexpr char LivePreview[] = "LIVEPREVIEW";
inline constexpr char LivePreviewAllFiles[] = "LIVEPREVIEWALLFILES";
inline constexpr char LivePreviewFilesLimit[] = "LIVEPREVIEWFILESLIMIT";
}  // namespace userdefaults

// How opening a profile ended, with the message to show when it failed.
struct ProfileOutcome {
    ProfileLoadResult result = ProfileLoadResult::Loaded;
    QString message;
};

// Owns the file list and the settings, runs long work (scans, previews, applies) on a
// worker thread and reports it back by queued calls: the one place where threads meet
// widgets. While a worker runs, only the worker touches the list; the window reads
// shownItems(), a copy taken when the worker started, and keeps every control that
// changes the list or the options disabled.
class TavrinAppController : public QObject, private ProgressObserver {
    Q_OBJECT

public:
    // Asked on the GUI thread while an apply waits for the answer: true renames without a
    // usable log, false ends the apply before any rename.
    using ContinueWithoutLogQuestion = std::function<bool()>;

    explicit TavrinAppController(QObject* parent = nullptr);
    ~TavrinAppController() override;

    // The records the table shows, in table order.
    const std::vector<FileSystemItem>& shownItems() const;
    int shownCount() const { return static_cast<int>(shownItems().size()); }

    // Every option value, the list mode and the selected tab among them.
    Settings& settings() { return m_settings; }
    const Settings& settings() const { return m_settings; }

    bool isFiles() const { return m_settings.isFiles(); }
    bool isFolders() const { return m_settings.isFolders(); }
    bool isIncludeSubFolders() const { return m_settings.isIncludeSubFolders(); }
    bool isExecuting() const { return m_isExecuting; }
    // The last preview left at least one proposed name, and no apply or clear came since.
    bool isHasFilesForRenaming() const { return m_isHasFilesForRenaming; }

    // Where apply writes its logs: the preference "defaultLogFolderPath".
    const QString& logFolderPath() const { return m_preferences.defaultLogFolderPath; }
    void setLogFolderPath(const QString& path) { m_preferences.defaultLogFolderPath = path; }
    const Preferences& preferences() const { return m_preferences; }
    void setPreferences(const Preferences& preferences) { m_preferences = preferences; }
    // Saves "preferences.plist" and uses the new values from now on; false with the reason
    // when the file could not be written (the values are used all the same).
    bool applyPreferences(const Preferences& preferences, QString* error = nullptr);

    // The start and the end of a session: the last profile, rule chain, options and
    // live-preview state come back from the user defaults, and go there at the end. A
    // remembered profile that cannot be opened any more is forgotten and its failure
    // answered, for the window to tell.
    std::optional<ProfileOutcome> applicationDidFinishLaunching();
    void applicationShouldTerminate();
    // Where the session is kept: the user defaults of "Palisade Soft"/"Tavrin3".
    QSettings& userDefaults() { return m_userDefaults; }

    // The profile file in use; empty for none (the window title then says "Default").
    const QString& currProfileFile() const { return m_currProfileFile; }
    // Opens a profile: its options replace the current ones and it becomes the profile in
    // use. When the automatic save is on, the profile in use is saved first.
    ProfileOutcome setCurrentSettings(const QString& path);
    // Writes the options to `path`, which becomes the profile in use.
    bool saveProfile(const QString& path, QString* error = nullptr);
    // Back to the empty profile, with no profile in use (saving the one in use first when
    // the automatic save is on).
    void loadDefaultProfile();
    // True while a profile is applied: its option changes do not start live previews.
    bool isProfileLoading() const { return m_isProfileLoading; }

    // The rule chain: its steps, in order.
    const QVariantList& rules() const { return m_rules; }
    void setRules(const QVariantList& rules) { m_rules = rules; }

    LivePreview& livePreview() { return *m_livePreview; }
    // Turns live preview on or off and remembers the choice.
    void setLivePreview(bool enabled);
    void setLivePreviewCoverage(bool allFiles, const QString& filesLimit);
    // The live preview of the first `limit` records (all when -1): like preview(), but an
    // input that cannot run is only reported in the progress line, and the window stays
    // usable while it runs. False when nothing was started.
    bool quickPreview(int limit);

    // Seconds since 1970 at the start and the end of the last operation.
    double startTime() const { return m_startTime; }
    double endTime() const { return m_endTime; }
    // The elapsed-time line of the last operation; empty after a clear.
    const QString& lastActionTimeTaken() const { return m_lastActionTimeTaken; }
    // Paths the last scan left out because their names are not valid UTF-8.
    const QStringList& lastSkippedPaths() const { return m_lastSkippedPaths; }
    const PreviewOutcome& lastPreviewOutcome() const { return m_previewOutcome; }
    const ApplyOutcome& lastApplyOutcome() const { return m_applyOutcome; }

    // "Files listed: n" or "Folders listed: n", by mode.
    QString countText() const;

    // A change between files and folders empties the list. Ignored while executing.
    void setMode(ListMode mode);
    void setIncludeSubFolders(bool include);

    // Scans the paths on a worker thread in the current mode; false (and nothing
    // happens) while another operation runs or when there is no path.
    bool addFiles(const QStringList& paths);
    // Items handed over from outside (a file manager, a second launch, the clipboard). With
    // folders among them the user chooses how to list them (pasteboardItemsRequested);
    // otherwise they are listed as files. Ignored while executing.
    void loadFiles(const QStringList& paths);
    // The choice made for items from outside: the mode, sub-folders, and the items to list.
    bool addPastedItems(const QStringList& paths, bool folders, bool includeSubFolders);

    // Normalises the options of the selected tab and, when they can run, proposes the new
    // names on a worker thread. Answers why the options cannot run, with nothing started.
    // Does nothing while executing or with an empty list.
    std::optional<ValidationFailure> preview();
    // Renames every record that holds a proposal, on a worker thread; false (and nothing
    // happens) while executing or when the last preview proposed nothing.
    bool apply(const ContinueWithoutLogQuestion& continueWithoutLog);
    void cancelProcess();

    // The list operations do nothing while executing.
    void removeRows(const QList<int>& rows);
    void clear();
    // Each returns the rows the moved records now occupy, the selection to show.
    QList<int> moveUp(const QList<int>& rows);
    QList<int> moveDown(const QList<int>& rows);
    void sort(const SortKey& key);

    // Starts the timing of an operation that runs outside the controller, such as an undo in
    // its sheet; showLastActionTimeTaken() ends it.
    void startTiming();
    // Ends the timing of an operation and shows "<key's text>: <seconds>".
    void showLastActionTimeTaken(const char* key);

signals:
    void executingChanged(bool executing);
    void modeChanged();
    void hasFilesForRenamingChanged(bool hasFiles);
    // A line for the progress area: what the operation does, then the path it is at; after
    // an operation, what the user should know about its end (an action's error, the log).
    void progressMessage(const QString& text);
    // The running count of an add: "Files found: n".
    void foundCountChanged(const QString& text);
    // How far a preview or an apply has come through the list.
    void progressChanged(int done, int total);
    // The count line at the end of an apply: "Files renamed: n".
    void renamedCountChanged(const QString& text);
    // Around a change that replaces the rows (add, remove, clear, sort, preview, apply).
    void listAboutToChange();
    void listChanged();
    // Around a move: the same rows in another order.
    void orderAboutToChange();
    void orderChanged();
    void lastActionTimeTakenChanged(const QString& text);
    // Emitted once at the end of a scan that left names out.
    void nonUtf8NamesSkipped(const QStringList& paths);
    void addFinished();
    void previewFinished();
    // A live preview ended; only the new names changed.
    void livePreviewFinished();
    void namesChanged();
    void pasteboardItemsRequested(const QStringList& paths);
    void currProfileFileChanged(const QString& path);
    // A profile (or the empty one) replaced the options.
    void currentSettingsApplied();
    void applyFinished();

private:
    void progress(const Progress& progress) override;
    void reportProgress(const Progress& progress);
    void startWorker(
        const QString& message, std::function<void()> work, void (TavrinAppController::*finish)());
    void launchWorker(std::function<void()> work, void (TavrinAppController::*finish)());
    void endWorker();
    void endQuietWorker();
    void runScan(const QStringList& paths, const ScanOptions& options);
    void runPreview(int limit, ProgressObserver* observer);
    void runApply(const QString& logFolder, const ContinueWithoutLogQuestion& continueWithoutLog);
    bool askOnGuiThread(const ContinueWithoutLogQuestion& question);
    void finishAddFiles();
    void finishPreview();
    void finishQuickPreview();
    void setCurrProfileFile(const QString& path);
    void saveProfileInUseWhenAutomatic();
    void restoreRules();
    void restoreLivePreview();
    void finishApply();
    void modeSettingChanged();
    void setHasFilesForRenaming(bool hasFiles);
    void stopWorker();
    QString foundCountText(int found) const;
    QString renamedCountText() const;
    QString logLocationText() const;
    QString modeWordText() const;

    FileList m_files;
    Settings m_settings;
    // The options a preview or an apply runs with: a copy, so that the worker never reads
    // what the GUI thread writes.
    Settings m_workerSettings;
    std::vector<FileSystemItem> m_snapshot;
    std::unique_ptr<QThread> m_worker;
    std::atomic_bool m_cancel = false;
    ScanResult m_scanResult;
    PreviewOutcome m_previewOutcome;
    ApplyOutcome m_applyOutcome;
    QStringList m_lastSkippedPaths;
    QString m_lastActionTimeTaken;
    Preferences m_preferences;
    QSettings m_userDefaults;
    QString m_currProfileFile;
    QVariantList m_rules;
    LivePreview* m_livePreview;
    int m_quickPreviewLimit = -1;
    bool m_isProfileLoading = false;
    double m_startTime = 0;
    double m_endTime = 0;
    bool m_isExecuting = false;
    bool m_isHasFilesForRenaming = false;
};

}  // namespace tavrin
