#include "gui/app/PreferencesSheet.h"

#include "core/text/LocalizedStrings.h"
#include "gui/ui/Prompter.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tavrin {

namespace {

constexpr char kTitleKey[] = "PREFERENCESTITLE";

QString cleanedPath(const QLineEdit* field)
{
    return QDir::cleanPath(field->text());
}

// The program's working folder means nothing to the user, so a relative path names no folder.
bool isExistingFolder(const QString& path)
{
    return QDir::isAbsolutePath(path) && QFileInfo(path).isDir();
}

} // namespace

// The keys of one folder's row; `name` starts the object names of its field and button.
struct PreferencesSheet::FolderRow {
    const char* name;
    const char* labelKey;
    const char* toolTipKey;
    const char* chooserTitleKey;
};

PreferencesSheet::PreferencesSheet(
    const Preferences& preferences, bool sortsOnArrival, Prompter* prompter, QWidget* parent)
    : Sheet({ "preferencesSheet", kTitleKey }, parent)
    , m_prompter(prompter)
{

    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    m_rulesField = addFolderRow(grid, 0,
        { "rules", "PREFERENCESRULESFOLDER", "PREFERENCESRULESFOLDERTOOLTIP",
            "PREFERENCESCHOOSERULESFOLDER" },
        preferences.defaultRulesFolderPath);
    m_profilesField = addFolderRow(grid, 1,
        { "profiles", "PREFERENCESPROFILESFOLDER", "PREFERENCESPROFILESFOLDERTOOLTIP",
            "PREFERENCESCHOOSEPROFILESFOLDER" },
        preferences.defaultProfileFolderPath);
    m_logsField = addFolderRow(grid, 2,
        { "logs", "PREFERENCESLOGSFOLDER", "PREFERENCESLOGSFOLDERTOOLTIP", "PREFERENCESCHOOSELOGSFOLDER" },
        preferences.defaultLogFolderPath);

    m_automaticSaveBox = new QCheckBox(localized("PREFERENCESAUTOSAVEPROFILE"));
    m_automaticSaveBox->setObjectName(QStringLiteral("automaticSaveBox"));
    m_automaticSaveBox->setToolTip(localized("PREFERENCESAUTOSAVEPROFILETOOLTIP"));
    m_automaticSaveBox->setChecked(preferences.automaticSaveCurrProfile);
    m_sortOnArrivalBox = new QCheckBox(localized("PREFERENCESSORTONARRIVAL"));
    m_sortOnArrivalBox->setObjectName(QStringLiteral("sortOnArrivalBox"));
    m_sortOnArrivalBox->setToolTip(localized("PREFERENCESSORTONARRIVALTOOLTIP"));
    m_sortOnArrivalBox->setChecked(sortsOnArrival);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addSpacing(6);
    layout->addWidget(m_automaticSaveBox);
    layout->addWidget(m_sortOnArrivalBox);
    layout->addSpacing(6);
    layout->addStretch(1);
    layout->addWidget(createButtons());
    m_rulesField->setFocus();
}

QLineEdit* PreferencesSheet::addFolderRow(
    QGridLayout* grid, int row, const FolderRow& folder, const QString& path)
{
    const QString name = QString::fromLatin1(folder.name);
    auto* field = new QLineEdit(path);
    field->setObjectName(name + QStringLiteral("FolderField"));
    field->setToolTip(localized(folder.toolTipKey));
    // Room for a usual path under the home folder, in whatever font the desktop uses.
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 60);
    auto* label = new QLabel(localized(folder.labelKey));
    label->setBuddy(field);
    auto* choose = new QPushButton(localized("PREFERENCESCHOOSEFOLDER"));
    choose->setObjectName(name + QStringLiteral("FolderButton"));
    choose->setToolTip(localized(folder.chooserTitleKey));
    const char* titleKey = folder.chooserTitleKey;
    connect(choose, &QPushButton::clicked, this, [this, field, titleKey] { chooseFolder(field, titleKey); });

    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    grid->addWidget(choose, row, 2);
    return field;
}

QDialogButtonBox* PreferencesSheet::createButtons()
{
    QDialogButtonBox* box = createButtonBox(QDialogButtonBox::Cancel | QDialogButtonBox::Save);
    box->button(QDialogButtonBox::Save)->setDefault(true);
    connect(box, &QDialogButtonBox::accepted, this, &PreferencesSheet::accept);
    return box;
}

void PreferencesSheet::chooseFolder(QLineEdit* field, const char* titleKey)
{
    const QString chosen
        = m_prompter->choose(this, Prompter::Choice::Folder, { localized(titleKey), cleanedPath(field) });
    if (!chosen.isEmpty())
        field->setText(QDir::cleanPath(chosen));
}

Preferences PreferencesSheet::preferences() const
{
    Preferences edited;
    edited.defaultRulesFolderPath = cleanedPath(m_rulesField);
    edited.defaultProfileFolderPath = cleanedPath(m_profilesField);
    edited.defaultLogFolderPath = cleanedPath(m_logsField);
    edited.automaticSaveCurrProfile = m_automaticSaveBox->isChecked();
    return edited;
}

bool PreferencesSheet::sortsOnArrival() const
{
    return m_sortOnArrivalBox->isChecked();
}

// Saving a folder that is not there would only move the failure to the next save of a
// rule, profile or log, far from where the path was typed.
void PreferencesSheet::accept()
{
    for (QLineEdit* field : { m_rulesField, m_profilesField, m_logsField }) {
        const QString path = cleanedPath(field);
        if (!isExistingFolder(path)) {
            m_prompter->warn(this, { localized(kTitleKey), localized("PREFERENCESFOLDERMISSING").arg(path) });
            field->setFocus();
            field->selectAll();
            return;
        }
    }
    QDialog::accept();
}

} // namespace tavrin
