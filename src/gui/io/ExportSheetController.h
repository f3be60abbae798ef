#pragma once

#include "core/io/ExportList.h"
#include "gui/ui/Sheet.h"

#include <functional>
#include <vector>

class QCheckBox;

namespace tavrin {

class FileSystemItem;
class Prompter;

// The export sheet: which columns to write, then where. It refuses a choice that writes
// nothing, asks for the file (proposing "export.txt"; the dialog asks before replacing one)
// and says how the writing went.
class ExportSheetController : public Sheet {
    Q_OBJECT

public:
    using Items = std::function<const std::vector<FileSystemItem>&()>;

    ExportSheetController(Items files, Prompter* prompter, const QString& folder, QWidget* parent);

    ExportColumns columns() const;
    // The Export button.
    void exportList();

private:
    QCheckBox* addOption(const char* objectName, const char* textKey, bool checked);

    Items m_files;
    Prompter* m_prompter;
    QString m_folder;
    QCheckBox* m_isFilename = nullptr;
    QCheckBox* m_isNewFilename = nullptr;
    QCheckBox* m_isLocation = nullptr;
    QCheckBox* m_isIncludeLocation = nullptr;
    QCheckBox* m_addColumnNamesInHeader = nullptr;
};

}  // namespace tavrin
