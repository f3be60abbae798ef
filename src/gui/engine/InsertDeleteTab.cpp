#include "gui/engine/InsertDeleteTab.h"

#include "core/engine/actions/insertdelete.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/OptionBinder.h"

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

// The insert places fill two columns of the insert group: the places that need no text on
// the left, the two anchored on a text on the right, where the anchors get the room. Each
// column holds a radio button and the inputs beside it; an empty one keeps the two apart.
constexpr int kLeftPlaces = 0;
constexpr int kColumnGap = 16;
constexpr int kRightPlaces = 3;

QGridLayout* groupGrid(QGroupBox* group)
{
    auto* grid = new QGridLayout(group);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    return grid;
}

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
    using namespace insertoption;
    m_insertGroup = new QGroupBox(localized("INSERTGROUP"));
    m_insertGroup->setObjectName(QStringLiteral("insertGroup"));
    QGridLayout* grid = groupGrid(m_insertGroup);
    m_places = m_binder->radioGroup(&Settings::chooseInsertPosition,
        [](const Settings& settings) { return settings.insertDeleteInsertOptionIndex(); });

    auto* textLabel = new QLabel(localized("INSERTTEXT"));
    QLineEdit* text = m_binder->textField({ Settings::insertDeleteInsertKey, "INSERTTEXTPLACEHOLDER" });
    textLabel->setBuddy(text);
    OptionBinder::describeRow({ textLabel, text }, localized("INSERTTEXTTIP"));
    grid->addWidget(textLabel, 0, 0);
    grid->addWidget(text, 0, 1, 1, kRightPlaces + 1);

    const auto occurrenceWord = [] { return new QLabel(localized("OCCURRENCE")); };
    const auto occurrence
        = [this](const char* key) { return m_binder->numberField(key, Kind::PositiveNumber); };
    const auto anchor = [this](const char* key) { return m_binder->textField({ key, "ANCHORPLACEHOLDER" }); };

    addPlace(grid, AtBeginning, { 1, kLeftPlaces }, { "INSERTATBEGINNING", "INSERTATBEGINNINGTIP" }, {});
    addPlace(grid, AtEnd, { 2, kLeftPlaces }, { "INSERTATEND", "INSERTATENDTIP" }, {});
    addPlace(grid, AtPosition, { 3, kLeftPlaces }, { "INSERTATPOSITION", "INSERTATPOSITIONTIP" },
        { m_binder->numberField(Settings::insertDeleteAtCharacterPositionsKey, Kind::PositiveNumber),
            m_binder->directionChoice(Settings::insertDeleteInsertAtPostionDirectionKey,
                insertdirection::FromStart, insertdirection::FromEnd) });
    addPlace(grid, BeforeText, { 1, kRightPlaces }, { "INSERTBEFORE", "INSERTBEFORETIP" },
        { anchor(Settings::insertDeleteInsertAtBeforeTextKey), occurrenceWord(),
            occurrence(Settings::insertDeleteInsertAtBeforeOccurrenceKey) });
    addPlace(grid, AfterText, { 2, kRightPlaces }, { "INSERTAFTER", "INSERTAFTERTIP" },
        { anchor(Settings::insertDeleteInsertAtAfterTextKey), occurrenceWord(),
            occurrence(Settings::insertDeleteInsertAtAfterOccurrenceKey) });

    grid->setColumnMinimumWidth(kRightPlaces - 1, kColumnGap);
    grid->setColumnStretch(kRightPlaces + 1, 1);
    grid->setRowStretch(4, 1);
    return m_insertGroup;
}

void InsertDeleteTab::addPlace(
    QGridLayout* grid, int place, GridCell cell, const ChoiceText& text, const QList<QWidget*>& inputs)
{
    QRadioButton* button
        = m_binder->radioButton(m_places, place, QStringLiteral("insertPlace%1").arg(place), text.labelKey);
    OptionBinder::describeRow(QList<QWidget*> { button } + inputs, localized(text.toolTipKey));
    grid->addWidget(button, cell.row, cell.column);
    // An anchor text takes the room the row has; numbers are as wide as their digits anyway.
    auto* inputRow = new QHBoxLayout;
    inputRow->setSpacing(6);
    for (QWidget* input : inputs)
        inputRow->addWidget(input, qobject_cast<QLineEdit*>(input) ? 1 : 0);
    grid->addLayout(inputRow, cell.row, cell.column + 1);
    m_inputsOfPlace.insert(place, inputs);
}

QGroupBox* InsertDeleteTab::makeDeleteGroup()
{
    m_deleteGroup = new QGroupBox(localized("DELETEGROUP"));
    m_deleteGroup->setObjectName(QStringLiteral("deleteGroup"));
    QGridLayout* grid = groupGrid(m_deleteGroup);

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
    const int place = m_settings.insertDeleteInsertOptionIndex();
    for (auto it = m_inputsOfPlace.cbegin(); it != m_inputsOfPlace.cend(); ++it) {
        for (QWidget* input : it.value())
            input->setEnabled(it.key() == place);
    }
}

} // namespace tavrin
