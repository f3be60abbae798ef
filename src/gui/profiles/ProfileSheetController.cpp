#include "gui/profiles/ProfileSheetController.h"

#include "core/platform/FileOperations.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/ProfileListing.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "gui/control/SessionController.h"
#include "gui/ui/Prompter.h"

#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

namespace tavrin {

namespace {

QPushButton* commandButton(const char* objectName, const char* textKey)
{
    auto* button = new QPushButton(localized(textKey));
    button->setObjectName(QString::fromLatin1(objectName));
    button->setAutoDefault(false);
    return button;
}

} // namespace

ProfileSheetController::ProfileSheetController(SessionController& session, Prompter* prompter, QWidget* parent)
    : Sheet({ "profileSheet", "PROFILESSHEETTITLE" }, parent)
    , m_session(session)
    , m_prompter(prompter)
    , m_model(new QStandardItemModel(0, 2, this))
    , m_table(new QTableView)
    , m_newProfileName(new QLineEdit)
{
    m_model->setHorizontalHeaderLabels({ localized("PROFILENAMECOLUMN"), localized("PROFILEDATECOLUMN") });
    m_table->setObjectName(QStringLiteral("profileTable"));
    setUpTable(m_table, { m_model, QAbstractItemView::SingleSelection, [this] { deleteProfile(); } });
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);

    m_newProfileName->setObjectName(QStringLiteral("newProfileName"));
    m_newProfileName->setPlaceholderText(localized("NEWPROFILENAMEHINT"));
    auto* nameLabel = new QLabel(localized("NEWPROFILENAME"));
    nameLabel->setBuddy(m_newProfileName);
    auto* saveButton = commandButton("saveProfileButton", "SAVENEWPROFILE");
    auto* loadButton = commandButton("loadProfileButton", "LOADPROFILE");
    auto* deleteButton = commandButton("deleteProfileButton", "DELETEPROFILE");
    auto* saveRow = new QHBoxLayout;
    saveRow->addWidget(nameLabel);
    saveRow->addWidget(m_newProfileName, 1);
    saveRow->addWidget(saveButton);
    auto* commands = new QHBoxLayout;
    commands->addWidget(deleteButton);
    commands->addStretch();
    commands->addWidget(loadButton);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 1);
    layout->addLayout(commands);
    layout->addLayout(saveRow);
    layout->addWidget(createButtonBox(QDialogButtonBox::Close));
    resize(560, 400);

    connect(saveButton, &QPushButton::clicked, this, &ProfileSheetController::saveProfile);
    connect(m_newProfileName, &QLineEdit::returnPressed, this, &ProfileSheetController::saveProfile);
    connect(loadButton, &QPushButton::clicked, this, &ProfileSheetController::loadProfile);
    connect(m_table, &QTableView::doubleClicked, this, &ProfileSheetController::loadProfile);
    connect(deleteButton, &QPushButton::clicked, this, &ProfileSheetController::deleteProfile);
    loadProfiles();
}

QString ProfileSheetController::profileFolder() const
{
    return m_session.preferences().defaultProfileFolderPath;
}

QString ProfileSheetController::currProfileFilePath() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? QString() : joinPath(profileFolder(), rows.first().data().toString());
}

void ProfileSheetController::loadProfiles()
{
    m_model->removeRows(0, m_model->rowCount());
    const QLocale locale;
    for (const ProfileRecord& profile : tavrin::loadProfiles(profileFolder())) {
        auto* created = new QStandardItem(locale.toString(profile.dateCreated.toLocalTime(), QLocale::ShortFormat));
        m_model->appendRow({ new QStandardItem(profile.profileName), created });
    }
}

void ProfileSheetController::saveProfile()
{
    const QString title = localized("PROFILETITLE");
    const QString path = profilePathForName(profileFolder(), m_newProfileName->text());
    if (path.isEmpty()) {
        m_prompter->warn(this, { title, localized("PROFILEENTERNEWNAME") });
        return;
    }
    if (pathExists(path)
        && !m_prompter->askYesNo(this, { title, localized("PROFILEOVERWRITECONFIRM").arg(lastPathComponent(path)) }))
        return;
    QString error;
    if (!saveProfileFile(m_session.settings(), path, &error)) {
        m_prompter->alert(this, Prompter::Severity::Critical, { title, localized("PROFILESAVEDFAILED").arg(error) });
        return;
    }
    loadProfiles();
    m_newProfileName->clear();
}

bool ProfileSheetController::hasSelection()
{
    if (!currProfileFilePath().isEmpty())
        return true;
    m_prompter->warn(this, { localized("PROFILETITLE"), localized("PROFILESELECT") });
    return false;
}

void ProfileSheetController::loadProfile()
{
    if (!hasSelection())
        return;
    const ProfileOutcome outcome = m_session.setCurrentSettings(currProfileFilePath());
    if (outcome.result != ProfileLoadResult::Loaded) {
        m_prompter->alert(this, Prompter::Severity::Critical, { localized("LOADPROFILETITLE"), outcome.message });
        return;
    }
    accept();
}

// Deleting the profile in use leaves the options as they are, with no profile in use.
void ProfileSheetController::deleteProfile()
{
    if (!hasSelection())
        return;
    const QString path = currProfileFilePath();
    const QString question = localized("PROFILEDELETECONFIRM").arg(lastPathComponent(path));
    if (!m_prompter->askYesNo(this, { localized("PROFILETITLE"), question }))
        return;
    if (!QFile::remove(path)) {
        qWarning("Error in deleteProfile : %s cannot be removed", qPrintable(path));
        m_prompter->warn(this, { localized("PROFILETITLE"), localized("PROFILEDELETEFAILED").arg(lastPathComponent(path)) });
    } else if (path == m_session.currProfileFile()) {
        m_session.closeProfile();
    }
    loadProfiles();
    m_table->clearSelection();
}

} // namespace tavrin
