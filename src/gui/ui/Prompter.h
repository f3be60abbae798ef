#pragma once

#include <QString>

class QWidget;

namespace tavrin {

// The questions and alerts of the window. The window asks through this interface
// so that a test can answer without a dialog; MessageBoxPrompter asks the user.
class Prompter {
public:
    virtual ~Prompter() = default;

    // "Rename the listed items?": true for YES.
    virtual bool confirmRename(QWidget* parent) = 0;
    // The log cannot be written: true for CONTINUE (rename without it), false for ABORT.
    virtual bool continueWithoutLog(QWidget* parent) = 0;
    // An alert with one OK button, such as a missing input.
    virtual void warn(QWidget* parent, const QString& title, const QString& message) = 0;
    // News that needs no decision, such as saved preferences.
    virtual void inform(QWidget* parent, const QString& title, const QString& message) = 0;
    // A YES/NO question: true for YES.
    virtual bool askYesNo(QWidget* parent, const QString& title, const QString& message) = 0;
};

} // namespace tavrin
