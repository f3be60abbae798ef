#pragma once

#include "gui/log/UndoSheetPrompter.h"

namespace tavrin {

// Asks with a file dialog and message boxes whose buttons carry the application's own
// texts, and opens files through the desktop's default applications.
class DesktopUndoSheetPrompter final : public UndoSheetPrompter {
public:
    QString chooseLogFile(QWidget* parent, const QString& folder) override;
    bool confirmDelete(QWidget* parent) override;
    void alert(QWidget* parent, Severity severity, const QString& title, const QString& message) override;
    bool openWithDesktop(const QString& path) override;
};

} // namespace tavrin
