#pragma once

#include "gui/ui/Sheet.h"

class QLineEdit;
class QPushButton;
class QStandardItemModel;
class QTableView;

namespace tavrin {

class Prompter;
class SessionController;

// The sheet of the profiles kept in the profile folder, with the date each was made: save
// the options under a new name (asking before one is replaced), open one, delete one.
class ProfileSheetController : public Sheet {
    Q_OBJECT

public:
    ProfileSheetController(SessionController& session, Prompter* prompter, QWidget* parent);

    QTableView* table() const { return m_table; }
    // The full path of the selected profile; empty for none.
    QString currProfileFilePath() const;

    void loadProfiles();
    void saveProfile();
    // Opens the selected profile and closes the sheet.
    void loadProfile();
    void deleteProfile();

private:
    QString profileFolder() const;
    bool hasSelection();

    SessionController& m_session;
    Prompter* m_prompter;
    QStandardItemModel* m_model;
    QTableView* m_table;
    QLineEdit* m_newProfileName;
};

} // namespace tavrin
