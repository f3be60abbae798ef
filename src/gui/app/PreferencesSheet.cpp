#include "gui/app/PreferencesSheet.h"

#include "core/text/LocalizedStrings.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
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

PreferencesSheet::PreferencesSheet(const Preferences& preferences, QWidget* parent)
    : QDialog(parent)
    , m_chooseFolder([](QWidget* owner, const QString& title, const QString& start) {
        return QFileDialog::getExistingDirectory(owner, title, start);
    })
    , m_warn([](QWidget* owner, const QString& title, const QString& message) {
        QMessageBox::warning(owner, title, message);
    })
{
    setObjectName(QStringLiteral("preferencesSheet"));
    setWindowTitle(localized(kTitleKey));
    setWindowModality(Qt::WindowModal);

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

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addSpacing(6);
    layout->addWidget(m_automaticSaveBox);
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
    // Made inside the sheet at once, so that the default button below is the sheet's.
    auto* box = new QDialogButtonBox(
        QDialogButtonBox::Help | QDialogButtonBox::Cancel | QDialogButtonBox::Save, this);
    QPushButton* help = box->button(QDialogButtonBox::Help);
    help->setObjectName(QStringLiteral("helpButton"));
    help->setText(localized("HELP"));
    help->setShortcut(QKeySequence::HelpContents);
    box->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cancelButton"));
    box->button(QDialogButtonBox::Cancel)->setText(localized("CANCEL"));
    QPushButton* save = box->button(QDialogButtonBox::Save);
    save->setObjectName(QStringLiteral("saveButton"));
    save->setText(localized("SAVE"));
    save->setDefault(true);
    connect(box, &QDialogButtonBox::accepted, this, &PreferencesSheet::accept);
    connect(box, &QDialogButtonBox::rejected, this, &PreferencesSheet::reject);
    connect(box, &QDialogButtonBox::helpRequested, this, &PreferencesSheet::helpRequested);
    return box;
}

void PreferencesSheet::chooseFolder(QLineEdit* field, const char* titleKey)
{
    const QString chosen = m_chooseFolder(this, localized(titleKey), cleanedPath(field));
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

void PreferencesSheet::setFolderChooser(FolderChooser chooser)
{
    m_chooseFolder = std::move(chooser);
}

void PreferencesSheet::setWarner(Warner warner)
{
    m_warn = std::move(warner);
}

// Saving a folder that is not there would only move the failure to the next save of a
// rule, profile or log, far from where the path was typed.
void PreferencesSheet::accept()
{
    for (QLineEdit* field : { m_rulesField, m_profilesField, m_logsField }) {
        const QString path = cleanedPath(field);
        if (!isExistingFolder(path)) {
            m_warn(this, localized(kTitleKey), localized("PREFERENCESFOLDERMISSING").arg(path));
            field->setFocus();
            field->selectAll();
            return;
        }
    }
    QDialog::accept();
}

} // namespace tavrin
