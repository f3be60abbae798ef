#include "gui/engine/PlaceChoices.h"

#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace tavrin {

namespace {

using Kind = TextFieldFormatter::Kind;

constexpr int kLeftPlaces = 0;
constexpr int kColumnGap = 16;
constexpr int kRightPlaces = 3;

// By place number. Their examples insert a text of the user's; a date or folder names go in alike.
constexpr ChoiceText kPlaceTexts[] = { { "INSERTATBEGINNING", "INSERTATBEGINNINGTIP" },
    { "INSERTATEND", "INSERTATENDTIP" }, { "INSERTATPOSITION", "INSERTATPOSITIONTIP" },
    { "INSERTBEFORE", "INSERTBEFORETIP" }, { "INSERTAFTER", "INSERTAFTERTIP" } };

} // namespace

PlaceChoices::PlaceChoices(OptionBinder& binder, const Group& group, QGridLayout* grid, int firstRow)
    : m_binder(binder)
    , m_placeKey(group.keys.place)
    , m_objectPrefix(group.objectPrefix)
    , m_grid(grid)
{
    using namespace insertoption;
    m_places = binder.radioGroup(
        group.choose,
        [placeKey = m_placeKey](const Settings& settings) { return settings.property(placeKey).toInt(); },
        group.preview);
    const PlacementKeys& keys = group.keys;
    const auto occurrenceWord = [] { return new QLabel(localized("OCCURRENCE")); };
    const auto occurrence = [&](const char* key) { return binder.numberField(key, Kind::PositiveNumber); };
    const auto anchor = [&](const char* key) { return binder.textField({ key, "ANCHORPLACEHOLDER" }); };

    const bool sideBySide = group.arrangement == Arrangement::SideBySide;
    const GridCell before = sideBySide ? GridCell { firstRow, kRightPlaces } : GridCell { firstRow + 3, kLeftPlaces };
    addPlace(AtBeginning, { firstRow, kLeftPlaces }, {});
    addPlace(AtEnd, { firstRow + 1, kLeftPlaces }, {});
    addPlace(AtPosition, { firstRow + 2, kLeftPlaces },
        { binder.numberField(keys.position, Kind::PositiveNumber),
            binder.directionChoice(keys.direction, insertdirection::FromStart, insertdirection::FromEnd) });
    addPlace(BeforeText, before, { anchor(keys.beforeText), occurrenceWord(), occurrence(keys.beforeOccurrence) });
    addPlace(AfterText, { before.row + 1, before.column },
        { anchor(keys.afterText), occurrenceWord(), occurrence(keys.afterOccurrence) });
    if (sideBySide)
        grid->setColumnMinimumWidth(kRightPlaces - 1, kColumnGap);
    grid->setColumnStretch(before.column + 1, 1);
}

void PlaceChoices::addPlace(int place, GridCell cell, const QList<QWidget*>& inputs)
{
    const ChoiceText& text = kPlaceTexts[place];
    QRadioButton* button = m_binder.radioButton(m_places, place, m_objectPrefix + QString::number(place), text.labelKey);
    OptionBinder::describeRow(QList<QWidget*> { button } + inputs, localized(text.toolTipKey));
    m_grid->addWidget(button, cell.row, cell.column);
    // An anchor text takes the room the row has; numbers are as wide as their digits anyway.
    auto* inputRow = new QHBoxLayout;
    inputRow->setSpacing(6);
    for (QWidget* input : inputs)
        inputRow->addWidget(input, qobject_cast<QLineEdit*>(input) ? 1 : 0);
    m_grid->addLayout(inputRow, cell.row, cell.column + 1);
    m_inputsOfPlace.insert(place, inputs);
}

void PlaceChoices::enableChosenInputs(const Settings& settings)
{
    const int chosen = settings.property(m_placeKey).toInt();
    for (auto it = m_inputsOfPlace.cbegin(); it != m_inputsOfPlace.cend(); ++it) {
        for (QWidget* input : it.value())
            input->setEnabled(it.key() == chosen);
    }
}

} // namespace tavrin
