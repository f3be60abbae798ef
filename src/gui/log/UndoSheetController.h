#pragma once

#include "core/log/LogFileCheck.h"
#include "core/log/UndoRenaming.h"
#include "gui/ui/Prompter.h"
#include "gui/ui/Sheet.h"

#include <QString>
#include <QStyle>

class QIcon;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableView;

namespace tavrin {

class ActivityStatus;
struct Progress;
class BackgroundJob;
class ElidedLabel;
class LogTableModel;

// What the undo sheet works with: the folder of the logs, the status line that shows how long
// an undo took, and who asks the user.
struct UndoSheetContext {
    QString logFolder;
    ActivityStatus* status = nullptr;
    Prompter* prompter = nullptr;
};

// The sheet that undoes a logged batch: the logs of the log folder, newest first, and the
// commands to undo, open, view and delete one, enabled once a log is chosen. The undo itself and the check of a log chosen
// on disk run on a worker thread, so the sheet stays responsive through a long undo; while
// one runs, every command waits and the sheet cannot be closed; Cancel (or Esc) stops an undo
// after the entry at hand, and the log keeps what was not restored.
class UndoSheetController : public Sheet {
    Q_OBJECT

public:
    UndoSheetController(UndoSheetContext context, QWidget* parent);
    ~UndoSheetController() override;

    LogTableModel* model() const { return m_model; }
    QTableView* table() const { return m_table; }
    // True while a log is checked or undone.
    bool isUndoing() const { return m_isUndoing; }
    // True while the listed logs are read for their entry counts.
    bool isCounting() const;
    // The log the commands act on: the selected row's, or one opened from disk; "" for none.
    const QString& currLogFilePath() const { return m_currLogFilePath; }
    int totalFilesCanBeUndoFromLog() const { return m_totalFilesCanBeUndoFromLog; }

    // Lists the logs of the delegate's log folder; none is current afterwards.
    void loadUserLogFiles();
    void undoRenaming();
    void openLogFile();
    void deleteLogFile();
    void viewLogFileContent();
    void showHelp();

    // What the last undo did.
    const UndoSummary& lastSummary() const { return m_summary; }

signals:
    // After the check of a log chosen on disk, its alert included.
    void checkFinished();
    // After an undo, its summary included.
    void undoFinished();

protected:
    void reject() override;

private:
    void createWidgets();
    QWidget* createTable();
    QWidget* createStatusArea();
    QWidget* createLogCommands();
    QDialogButtonBox* createButtons();
    QPushButton* makeButton(
        const SheetButton& text, const QIcon& icon, void (UndoSheetController::*command)());
    QIcon themeIcon(const char* name, QStyle::StandardPixmap fallback) const;

    void selectionChanged();
    void setCurrentLog(const QString& path, int entries);
    void showEntriesStatus(int entries);
    void updateCountLine();
    void setUndoing(bool undoing, const QString& status);
    void showProgress(const Progress& progress);
    void alert(Prompter::Severity severity, const char* titleKey, const QString& message);

    void updateCommands();
    void countEntries();
    void showCounts(const QStringList& paths, const QList<int>& counts);
    void showRemainingEntries(const QString& path, int entries);
    void cancelUndo();

    void finishCheck();
    void finishUndo();
    void removeCurrentLog();
    void forgetLog(const QString& path);

    UndoSheetContext m_context;
    LogTableModel* m_model;
    BackgroundJob* m_worker;
    // Reads how many entries each listed log holds, without holding up the sheet.
    BackgroundJob* m_counter;

    QTableView* m_table = nullptr;
    QLabel* m_countLabel = nullptr;
    QLabel* m_statusLabel = nullptr;
    ElidedLabel* m_currentLogLabel = nullptr;
    QProgressBar* m_busyIndicator = nullptr;
    QPushButton* m_cancelButton = nullptr;
    QPushButton* m_openButton = nullptr;
    QPushButton* m_viewButton = nullptr;
    QPushButton* m_deleteButton = nullptr;
    QPushButton* m_undoButton = nullptr;
    QDialogButtonBox* m_buttons = nullptr;

    QString m_currLogFilePath;
    int m_totalFilesCanBeUndoFromLog = 0;
    bool m_isUndoing = false;
    // The log the worker's job is about, and what the job found; the worker thread writes
    // the results, the GUI thread reads them once it has ended.
    QString m_jobPath;
    CheckedLog m_checked;
    UndoSummary m_summary;
};

} // namespace tavrin
