#pragma once

#include "gui/engine/ActionTab.h"

class QLineEdit;
class QRadioButton;

namespace tavrin {

class Prompter;
class RenameController;

// The rename-from-file tab: the chosen list file, whether it names files or folders, and the
// button that replaces the list with its items, each carrying its new name or its status.
// The names are previewed as soon as the list is in, so Rename can follow at once.
class FromFileTab : public ActionTab {
    Q_OBJECT

public:
    explicit FromFileTab(RenameController& rename, QWidget* parent = nullptr);

    QWidget* fieldForOption(const QString& optionKey) const override;
    void setPrompter(Prompter* prompter) { m_prompter = prompter; }
    int importType() const;

    void browseRenameFile();
    void importTypeChanged();
    void loadRenameFile();

private:
    void showRenameFile();
    void refuse(const char* messageKey);

    RenameController& m_rename;
    Prompter* m_prompter = nullptr;
    QLineEdit* m_path = nullptr;
    QRadioButton* m_files = nullptr;
    QRadioButton* m_folders = nullptr;
    int m_importType = 0;  // 0 the list names files, 1 folders
};

}  // namespace tavrin
