#include "gui/io/FromFileTab.h"

#include "core/io/ImportFiles.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/control/ListController.h"
#include "gui/control/RenameController.h"
#include "gui/control/SessionController.h"
#include "gui/ui/Prompter.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tavrin {

FromFileTab::FromFileTab(RenameController& rename, QWidget* parent)
    : ActionTab(parent)
    , m_rename(rename)
{
    setObjectName(QStringLiteral("fromFileTab"));
    auto* grid = new QGridLayout(this);
    m_path = new QLineEdit(this);
    m_path->setObjectName(QString::fromLatin1(Settings::renameFileKey));
    m_path->setReadOnly(true);
    auto* label = new QLabel(localized("RENAMEFILELABEL"), this);
    label->setBuddy(m_path);
    auto* browse = new QPushButton(localized("BROWSEBUTTON"), this);
    browse->setObjectName(QStringLiteral("browseRenameFileButton"));
    m_files = new QRadioButton(localized("IMPORTFILES"), this);
    m_files->setObjectName(QStringLiteral("importFilesButton"));
    m_files->setChecked(true);
    m_folders = new QRadioButton(localized("IMPORTFOLDERS"), this);
    m_folders->setObjectName(QStringLiteral("importFoldersButton"));
    auto* load = new QPushButton(localized("LOADRENAMEFILE"), this);
    load->setObjectName(QStringLiteral("loadRenameFileButton"));
    load->setToolTip(localized("LOADRENAMEFILETOOLTIP"));

    grid->addWidget(label, 0, 0);
    grid->addWidget(m_path, 0, 1, 1, 2);
    grid->addWidget(browse, 0, 3);
    grid->addWidget(m_files, 1, 1);
    grid->addWidget(m_folders, 1, 2);
    grid->addWidget(load, 1, 3);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(2, 1);

    connect(browse, &QPushButton::clicked, this, &FromFileTab::browseRenameFile);
    connect(load, &QPushButton::clicked, this, &FromFileTab::loadRenameFile);
    connect(m_folders, &QRadioButton::toggled, this, &FromFileTab::importTypeChanged);
    connect(&m_rename.session().settings(), &Settings::settingsChanged, this, &FromFileTab::showRenameFile);
    showRenameFile();
}

QWidget* FromFileTab::fieldForOption(const QString& optionKey) const
{
    return optionKey == QLatin1String(Settings::renameFileKey) ? m_path : nullptr;
}

int FromFileTab::importType() const
{
    return m_importType;
}

void FromFileTab::browseRenameFile()
{
    Settings& settings = m_rename.session().settings();
    const QString current = settings.renameFile();
    const QString chosen = m_prompter->choose(window(), Prompter::Choice::RenameFile,
        {localized("CHOOSETABDELIMITEDTEXTFILE"), current.isEmpty() ? QString() : QFileInfo(current).path()});
    settings.setRenameFile(chosen);
    showRenameFile();
}

// The list's mode follows at load time: switching it now would empty the list for nothing.
void FromFileTab::importTypeChanged()
{
    m_importType = m_folders->isChecked() ? 1 : 0;
}

void FromFileTab::loadRenameFile()
{
    const RenameFileRead read = readRenameFile(m_rename.session().settings().renameFile(), importType());
    if (read.problemKey) {
        refuse(read.problemKey);
        return;
    }
    ListController& list = m_rename.list();
    list.setMode(importType() == 1 ? ListMode::Folders : ListMode::Files);
    const FileRenameItem renameList = read.list;
    const ListJob job{localized("LOADINGMESSAGE").arg(QFileInfo(m_rename.session().settings().renameFile()).fileName()),
                      "importFiles"};
    list.run(
        job,
        [renameList](FileList& files, const std::atomic_bool& cancel, ProgressObserver* progress) {
            files.clear();
            importFiles(files, renameList, cancel, progress);
        },
        [this] { m_rename.preview(); });
}

void FromFileTab::refuse(const char* messageKey)
{
    m_rename.session().settings().setRenameFile(QString());
    showRenameFile();
    m_prompter->alert(window(), Prompter::Severity::Critical, {localized("RENAMEFROMFILETITLE"), localized(messageKey)});
}

void FromFileTab::showRenameFile()
{
    m_path->setText(m_rename.session().settings().renameFile());
}

}  // namespace tavrin
