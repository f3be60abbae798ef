#pragma once

#include <QString>

class QWidget;

namespace tavrin {

// The title and the text of an alert or a question.
struct PromptText {
    QString title;
    QString message;
};

// What a chooser is asked: its title and the folder it starts in.
struct ChooserQuestion {
    QString title;
    QString folder;
};

// What a rename is about to do: how many items get a new name, and how many of those
// proposals another item also proposes.
struct RenameQuestion {
    int items = 0;
    int conflicts = 0;
};

// What the window and its sheets ask of the user and of the desktop: questions, alerts, the
// choice of a file or a folder, and opening a file in another application. They go through this
// interface so that a test can answer without a dialog and without starting a viewer;
// MessageBoxPrompter is the real thing.
class Prompter {
public:
    enum class Severity { Information, Warning, Critical };
    // What a chooser picks: an existing log file, a profile to open, a name to save a profile
    // under (the dialog asks before replacing a file), a folder, a rename list to read, a name
    // to export the list under (asking before replacing too), a rule file to open, a name to
    // save a rule file under (asking likewise).
    enum class Choice { LogFile, OpenProfile, SaveProfile, Folder, RenameFile, ExportList, OpenRule, SaveRule };

    virtual ~Prompter() = default;

    // "Rename the listed items?": true for the rename button, which names the count. Says so
    // when proposals collide.
    virtual bool confirmRename(QWidget* parent, const RenameQuestion& question) = 0;
    // The log cannot be written: true for CONTINUE (rename without it), false for ABORT.
    virtual bool continueWithoutLog(QWidget* parent) = 0;
    // An alert with one OK button.
    virtual void alert(QWidget* parent, Severity severity, const PromptText& text) = 0;
    // A YES/NO question: true for YES.
    virtual bool askYesNo(QWidget* parent, const PromptText& text) = 0;
    // The path chosen; empty when the chooser was cancelled.
    virtual QString choose(QWidget* parent, Choice choice, const ChooserQuestion& question) = 0;
    // Shows a file in the application the desktop opens its type with; false when none could.
    virtual bool openWithDesktop(const QString& path) = 0;

    // A missing input, a failure: an alert that warns.
    void warn(QWidget* parent, const PromptText& text) { alert(parent, Severity::Warning, text); }
    // News that needs no decision, such as saved preferences.
    void inform(QWidget* parent, const PromptText& text) { alert(parent, Severity::Information, text); }
};

} // namespace tavrin
