#pragma once

#include "core/profiles/Preferences.h"

#include <QDialog>
#include <QString>
#include <functional>

class QCheckBox;
class QDialogButtonBox;
class QGridLayout;
class QLineEdit;

namespace tavrin {

// The sheet of the preferences: the folders where rules, profiles and logs are kept, and
// whether the profile in use is saved without asking. It only edits a copy; the window
// saves what preferences() answers once the sheet is accepted, which it is only when
// every folder exists.
class PreferencesSheet : public QDialog {
    Q_OBJECT

public:
    using FolderChooser = std::function<QString(QWidget* parent, const QString& title, const QString& start)>;
    using Warner = std::function<void(QWidget* parent, const QString& title, const QString& message)>;

    explicit PreferencesSheet(const Preferences& preferences, QWidget* parent = nullptr);

    // The values as edited, the folder paths cleaned.
    Preferences preferences() const;

    // Replace the folder dialog and the warning box, so that tests answer them.
    void setFolderChooser(FolderChooser chooser);
    void setWarner(Warner warner);

    void accept() override;

signals:
    void helpRequested();

private:
    struct FolderRow;

    QLineEdit* addFolderRow(QGridLayout* grid, int row, const FolderRow& folder, const QString& path);
    QDialogButtonBox* createButtons();
    void chooseFolder(QLineEdit* field, const char* titleKey);

    QLineEdit* m_rulesField = nullptr;
    QLineEdit* m_profilesField = nullptr;
    QLineEdit* m_logsField = nullptr;
    QCheckBox* m_automaticSaveBox = nullptr;
    FolderChooser m_chooseFolder;
    Warner m_warn;
};

} // namespace tavrin
