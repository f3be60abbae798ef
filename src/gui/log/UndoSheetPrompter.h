#pragma once

#include <QString>

class QWidget;

namespace tavrin {

// What the undo sheet asks of the user and of the desktop: questions, alerts, the choice of
// a log file, and opening a file in another application. The sheet goes through this
// interface so that a test can answer without a dialog and without starting a viewer;
// DesktopUndoSheetPrompter is the real thing.
class UndoSheetPrompter {
public:
    enum class Severity { Information, Warning, Critical };

    virtual ~UndoSheetPrompter() = default;

    // One existing log file chosen in an open panel that starts in `folder`; empty when the
    // panel was cancelled.
    virtual QString chooseLogFile(QWidget* parent, const QString& folder) = 0;
    // "Delete the selected log?": true for YES.
    virtual bool confirmDelete(QWidget* parent) = 0;
    // An alert with one OK button.
    virtual void alert(QWidget* parent, Severity severity, const QString& title, const QString& message) = 0;
    // Shows a file in the application the desktop opens its type with; false when none could.
    virtual bool openWithDesktop(const QString& path) = 0;
};

} // namespace tavrin
