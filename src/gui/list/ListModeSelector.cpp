#include "gui/list/ListModeSelector.h"

#include "core/text/LocalizedStrings.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>

namespace tavrin {

ListModeSelector::ListModeSelector(QWidget* parent)
    : QWidget(parent)
    , m_modes(new QButtonGroup(this))
    , m_files(new QRadioButton(localized("FILESMODE"), this))
    , m_folders(new QRadioButton(localized("FOLDERSMODE"), this))
    , m_includeSubFolders(new QCheckBox(localized("INCLUDESUBFOLDERS"), this))
{
    m_files->setObjectName(QStringLiteral("filesModeButton"));
    m_folders->setObjectName(QStringLiteral("foldersModeButton"));
    m_includeSubFolders->setObjectName(QStringLiteral("includeSubFoldersBox"));
    m_files->setToolTip(localized("FILESMODETOOLTIP"));
    m_folders->setToolTip(localized("FOLDERSMODETOOLTIP"));
    m_includeSubFolders->setToolTip(localized("INCLUDESUBFOLDERSTOOLTIP"));
    m_files->setChecked(true);

    m_modes->addButton(m_files, static_cast<int>(ListMode::Files));
    m_modes->addButton(m_folders, static_cast<int>(ListMode::Folders));
    connect(m_modes, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
        if (checked)
            emit modeChosen(static_cast<ListMode>(id));
    });
    connect(m_includeSubFolders, &QCheckBox::toggled, this, &ListModeSelector::includeSubFoldersChosen);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 0, 8, 0);
    layout->setSpacing(10);
    layout->addWidget(new QLabel(localized("RENAMEMODE"), this));
    layout->addWidget(m_files);
    layout->addWidget(m_folders);
    layout->addSpacing(10);
    layout->addWidget(m_includeSubFolders);
}

void ListModeSelector::showMode(ListMode mode, bool includeSubFolders)
{
    const QSignalBlocker modesBlocker(m_modes);
    const QSignalBlocker includeBlocker(m_includeSubFolders);
    (mode == ListMode::Files ? m_files : m_folders)->setChecked(true);
    m_includeSubFolders->setChecked(includeSubFolders);
}

}  // namespace tavrin
