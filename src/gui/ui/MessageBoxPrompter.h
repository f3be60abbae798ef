#pragma once

#include "gui/ui/Prompter.h"

namespace tavrin {

// Asks with message boxes and a file dialog whose buttons carry the application's own
// texts, and opens files through the desktop's default applications.
class MessageBoxPrompter final : public Prompter {
public:
    bool confirmRename(QWidget* parent, const RenameQuestion& question) override;
    bool continueWithoutLog(QWidget* parent) override;
    void alert(QWidget* parent, Severity severity, const PromptText& text) override;
    bool askYesNo(QWidget* parent, const PromptText& text) override;
    QString choose(QWidget* parent, Choice choice, const ChooserQuestion& question) override;
    bool openWithDesktop(const QString& path) override;
};

} // namespace tavrin
