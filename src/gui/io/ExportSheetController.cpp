#include "gui/io/ExportSheetController.h"

#include "core/list/FileList.h"
#include "core/text/LocalizedStrings.h"
#include "gui/ui/Prompter.h"

#include <QCheckBox>
#include <QDir>
#include <QPushButton>
#include <QVBoxLayout>

namespace tavrin {

ExportSheetController::ExportSheetController(Items files, Prompter* prompter, const QString& folder, QWidget* parent)
    : Sheet({"exportSheet", "EXPORTFILESTITLE"}, parent)
    , m_files(std::move(files))
    , m_prompter(prompter)
    , m_folder(folder)
{
    const ExportColumns initial;
    auto* layout = new QVBoxLayout(this);
    m_isFilename = addOption("isFilename", "FILENAME", initial.isFilename);
    m_isNewFilename = addOption("isNewFilename", "NEWFILENAME", initial.isNewFilename);
    m_isLocation = addOption("isLocation", "LOCATION", initial.isLocation);
    m_isIncludeLocation = addOption("isIncludeLocation", "EXPORTINCLUDELOCATION", initial.isIncludeLocation);
    m_addColumnNamesInHeader = addOption("addColumnNamesInHeader", "EXPORTHEADER", initial.addColumnNamesInHeader);
    for (QCheckBox* box : {m_isFilename, m_isNewFilename, m_isLocation, m_isIncludeLocation, m_addColumnNamesInHeader})
        layout->addWidget(box);
    QDialogButtonBox* box = createButtonBox(QDialogButtonBox::Cancel);
    QPushButton* exportButton = addDefaultButton(box, {"exportButton", "EXPORTBUTTON"});
    connect(exportButton, &QPushButton::clicked, this, &ExportSheetController::exportList);
    layout->addWidget(box);
}

QCheckBox* ExportSheetController::addOption(const char* objectName, const char* textKey, bool checked)
{
    auto* box = new QCheckBox(localized(textKey), this);
    box->setObjectName(QString::fromLatin1(objectName));
    box->setChecked(checked);
    return box;
}

ExportColumns ExportSheetController::columns() const
{
    return {m_isFilename->isChecked(), m_isNewFilename->isChecked(), m_isLocation->isChecked(),
            m_isIncludeLocation->isChecked(), m_addColumnNamesInHeader->isChecked()};
}

void ExportSheetController::exportList()
{
    const ExportColumns chosen = columns();
    if (const char* refusal = exportRefusal(chosen)) {
        m_prompter->alert(this, Prompter::Severity::Critical, {localized("EXPORTFILESTITLE"), localized(refusal)});
        return;
    }
    const QString path = m_prompter->choose(this, Prompter::Choice::ExportList,
                                            {localized("EXPORTFILELISTTITLE"), m_folder});
    if (path.isEmpty())
        return;
    FileList list;
    for (const FileSystemItem& item : m_files())
        list.append(item);
    QString error;
    // The save dialog asked before replacing an existing file.
    if (!writeExportFile(path, exportListText(list, chosen), true, error)) {
        m_prompter->alert(this, Prompter::Severity::Critical,
                          {localized("EXPORTFILESTITLE"), localized("EXPORTFILESEXPORTEDFAILED").arg(error)});
        return;
    }
    m_prompter->inform(this, {localized("EXPORTFILESTITLE"), localized("EXPORTFILESEXPORTEDSUCCESS")});
    accept();
}

}  // namespace tavrin
