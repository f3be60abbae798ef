#pragma once

#include "gui/ui/Prompter.h"

namespace tavrin {

// Asks with message boxes whose buttons carry the application's own texts.
class MessageBoxPrompter final : public Prompter {
public:
    bool confirmRename(QWidget* parent) override;
    bool continueWithoutLog(QWidget* parent) override;
    void warn(QWidget* parent, const QString& title, const QString& message) override;
    void inform(QWidget* parent, const QString& title, const QString& message) override;
    bool askYesNo(QWidget* parent, const QString& title, const QString& message) override;
};

} // namespace tavrin
