#include "gui/engine/InsertDeleteTab.h"

#include "core/engine/actions/insertdelete.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/OptionBinder.h"
#include "gui/engine/PlaceChoices.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tavrin {

namespace {

using Kind = TextFieldFormatter::Kind;

// The ids of the mode buttons: the indexes Settings::chooseInsertOrDelete takes.
constexpr int kInsert = 0;
constexpr int kDelete = 1;

} // namespace

InsertDeleteTab::InsertDeleteTab(Settings& settings, QWidget* parent)
    : ActionTab(parent)
    , m_settings(settings)
    , m_binder(new OptionBinder(settings, this))
{
    setObjectName(QStringLiteral("insertDeleteTab"));
    auto* groups = new QHBoxLayout;
    groups->addWidget(makeInsertGroup(), 1);
    groups->addWidget(makeDeleteGroup());

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeModeRow());
    layout->addLayout(groups, 1);
    connect(&m_settings, &Settings::settingsChanged, this, &InsertDeleteTab::refreshFromSettings);
    refreshFromSettings();
}

InsertDeleteTab::~InsertDeleteTab() = default;

QWidget* InsertDeleteTab::fieldForOption(const QString& optionKey) const
{
    return m_binder->field(optionKey);
}

QLayout* InsertDeleteTab::makeModeRow()
{
    QButtonGroup* modes = m_binder->radioGroup(&Settings::chooseInsertOrDelete,
        [](const Settings& settings) { return settings.isInsertDeleteInsert() ? kInsert : kDelete; });
    QRadioButton* insert = m_binder->radioButton(modes, kInsert, QStringLiteral("insertMode"), "INSERTMODE");
    insert->setToolTip(localized("INSERTMODETIP"));
    QRadioButton* remove = m_binder->radioButton(modes, kDelete, QStringLiteral("deleteMode"), "DELETEMODE");
    remove->setToolTip(localized("DELETEMODETIP"));

    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(insert);
    row->addWidget(remove);
    row->addStretch();
    return row;
}

QGroupBox* InsertDeleteTab::makeInsertGroup()
{
    m_insertGroup = new QGroupBox(localized("INSERTGROUP"));
    m_insertGroup->setObjectName(QStringLiteral("insertGroup"));
    QGridLayout* grid = OptionBinder::groupGrid(m_insertGroup);

    auto* textLabel = new QLabel(localized("INSERTTEXT"));
    QLineEdit* text = m_binder->textField({ Settings::insertDeleteInsertKey, "INSERTTEXTPLACEHOLDER" });
    textLabel->setBuddy(text);
    OptionBinder::describeRow({ textLabel, text }, localized("INSERTTEXTTIP"));
    grid->addWidget(textLabel, 0, 0);
    grid->addWidget(text, 0, 1, 1, PlaceChoices::Columns - 1);

    m_places = std::make_unique<PlaceChoices>(*m_binder,
        PlaceChoices::Group { { Settings::insertDeleteInsertOptionIndexKey, Settings::insertDeleteAtCharacterPositionsKey,
                                  Settings::insertDeleteInsertAtPostionDirectionKey,
                                  Settings::insertDeleteInsertAtBeforeTextKey,
                                  Settings::insertDeleteInsertAtBeforeOccurrenceKey,
                                  Settings::insertDeleteInsertAtAfterTextKey,
                                  Settings::insertDeleteInsertAtAfterOccurrenceKey },
            &Settings::chooseInsertPosition, OptionBinder::Preview::Follows, QStringLiteral("insertPlace") },
        grid, 1);
    grid->setRowStretch(1 + PlaceChoices::Rows, 1);
    return m_insertGroup;
}

QGroupBox* InsertDeleteTab::makeDeleteGroup()
{
    m_deleteGroup = new QGroupBox(localized("DELETEGROUP"));
    m_deleteGroup->setObjectName(QStringLiteral("deleteGroup"));
    QGridLayout* grid = OptionBinder::groupGrid(m_deleteGroup);

    auto* countLabel = new QLabel(localized("DELETENUMBER"));
    QLineEdit* count
        = m_binder->numberField(Settings::insertDeleteNumberOfCharactersKey, Kind::PositiveNumber);
    countLabel->setBuddy(count);
    OptionBinder::describeRow({ countLabel, count }, localized("DELETENUMBERTIP"));
    grid->addWidget(countLabel, 0, 0);
    grid->addWidget(count, 0, 1);

    auto* fromLabel = new QLabel(localized("DELETEFROM"));
    QLineEdit* from
        = m_binder->numberField(Settings::insertDeleteFromCharacterPositionKey, Kind::PositiveNumber);
    fromLabel->setBuddy(from);
    QWidget* direction
        = m_binder->directionChoice(Settings::isInsertDeleteDeleteFromBackWardKey, false, true);
    OptionBinder::describeRow({ fromLabel, from, direction }, localized("DELETEFROMTIP"));
    grid->addWidget(fromLabel, 1, 0);
    grid->addWidget(from, 1, 1);
    grid->addWidget(direction, 1, 2);

    grid->setColumnStretch(3, 1);
    grid->setRowStretch(2, 1);
    return m_deleteGroup;
}

void InsertDeleteTab::refreshFromSettings()
{
    m_binder->refresh();
    enableChosenInputs();
}

void InsertDeleteTab::enableChosenInputs()
{
    const bool insert = m_settings.isInsertDeleteInsert();
    m_insertGroup->setEnabled(insert);
    m_deleteGroup->setEnabled(!insert);
    m_places->enableChosenInputs(m_settings);
}

} // namespace tavrin
