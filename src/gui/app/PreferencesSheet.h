#pragma once

#include "core/profiles/Preferences.h"

#include "gui/ui/Sheet.h"

#include <QString>

class QCheckBox;
class QDialogButtonBox;
class QGridLayout;
class QLineEdit;

namespace tavrin {

class Prompter;

// The sheet of the preferences: the folders where rules, profiles and logs are kept, whether
// the profile in use is saved without asking, and whether arriving items are sorted by name. It only edits a copy; the window
// saves what preferences() answers once the sheet is accepted, which it is only when
// every folder exists.
class PreferencesSheet : public Sheet {
    Q_OBJECT

public:
    // The folder choosers and the alert about a folder that is not there go through `prompter`.
    PreferencesSheet(const Preferences& preferences, bool sortsOnArrival, Prompter* prompter,
        QWidget* parent = nullptr);

    // The values as edited, the folder paths cleaned.
    Preferences preferences() const;
    // Whether items that arrive in the window are sorted by name, kept with the window's state.
    bool sortsOnArrival() const;

    void accept() override;

private:
    struct FolderRow;

    QLineEdit* addFolderRow(QGridLayout* grid, int row, const FolderRow& folder, const QString& path);
    QDialogButtonBox* createButtons();
    void chooseFolder(QLineEdit* field, const char* titleKey);

    QLineEdit* m_rulesField = nullptr;
    QLineEdit* m_profilesField = nullptr;
    QLineEdit* m_logsField = nullptr;
    QCheckBox* m_automaticSaveBox = nullptr;
    QCheckBox* m_sortOnArrivalBox = nullptr;
    Prompter* m_prompter;
};

} // namespace tavrin
