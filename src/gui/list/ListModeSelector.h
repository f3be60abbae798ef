#pragma once

#include "gui/control/ListMode.h"

#include <QWidget>

class QButtonGroup;
class QCheckBox;
class QRadioButton;

namespace tavrin {

// The choice between renaming files and renaming folders, and whether chosen folders are
// descended into. It only reports what the user picks; the controller decides.
class ListModeSelector : public QWidget {
    Q_OBJECT

public:
    explicit ListModeSelector(QWidget* parent = nullptr);

    // Shows a mode without reporting it back.
    void showMode(ListMode mode, bool includeSubFolders);

signals:
    void modeChosen(ListMode mode);
    void includeSubFoldersChosen(bool include);

private:
    QButtonGroup* m_modes;
    QRadioButton* m_files;
    QRadioButton* m_folders;
    QCheckBox* m_includeSubFolders;
};

}  // namespace tavrin
