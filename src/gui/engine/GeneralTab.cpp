#include "gui/engine/GeneralTab.h"

#include "core/engine/actions/general.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/OptionBinder.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace tavrin {

namespace {

constexpr int kNarrowField = 56;
constexpr int kTextField = 150;
// Options 0 to 5 change the case or the extension and fill the left column; the cuts,
// swaps and masks fill the right one.
constexpr int kOptionsPerColumn = 6;
// Each column holds a radio button and the inputs beside it; an empty one keeps the two
// columns apart.
constexpr int kColumnsPerOption = 2;
constexpr int kColumnGap = 24;

} // namespace

GeneralTab::GeneralTab(Settings& settings, QWidget* parent)
    : ActionTab(parent)
    , m_settings(settings)
    , m_binder(new OptionBinder(settings, this))
{
    setObjectName(QStringLiteral("generalTab"));
    m_options = m_binder->radioGroup(
        &Settings::chooseGeneralOption, [](const Settings& current) { return current.generalOptionIndex(); });
    buildLayout();
    connect(&m_settings, &Settings::settingsChanged, this, &GeneralTab::refreshFromSettings);
    refreshFromSettings();
}

QWidget* GeneralTab::fieldForOption(const QString& optionKey) const
{
    return m_binder->field(optionKey);
}

QComboBox* GeneralTab::makeCaseChooser(const char* optionKey)
{
    return m_binder->choice(optionKey,
        { { "UPPERCASE", lettercase::Upper }, { "LOWERCASE", lettercase::Lower },
            { "PROPERCASE", lettercase::Proper } });
}

QLineEdit* GeneralTab::makeTextField(const KeyedInput& input, int width, TextFieldFormatter::Kind kind)
{
    QLineEdit* field = m_binder->textField(input, kind);
    field->setFixedWidth(width);
    return field;
}

void GeneralTab::addOption(int index, const ChoiceText& text, const QList<QWidget*>& inputs)
{
    QRadioButton* button = m_binder->radioButton(
        m_options, index, QStringLiteral("generalOption%1").arg(index), text.labelKey);
    // Screen readers name an input after the words before it: the option's label, or the
    // word between two inputs ("occurrence").
    OptionBinder::describeRow(QList<QWidget*> { button } + inputs, localized(text.toolTipKey));

    auto* inputRow = new QHBoxLayout;
    inputRow->setSpacing(6);
    for (QWidget* input : inputs)
        inputRow->addWidget(input);
    inputRow->addStretch();

    const int row = index % kOptionsPerColumn;
    const int column = (index / kOptionsPerColumn) * (kColumnsPerOption + 1);
    m_grid->addWidget(button, row, column);
    m_grid->addLayout(inputRow, row, column + 1);
    m_inputsOfOption.insert(index, inputs);
}

void GeneralTab::buildLayout()
{
    using namespace generaloption;
    m_grid = new QGridLayout(this);
    m_grid->setHorizontalSpacing(8);
    m_grid->setVerticalSpacing(6);

    const auto occurrenceLabel = [] { return new QLabel(localized("OCCURRENCE")); };
    const auto numberField = [this](const char* optionKey) {
        return m_binder->numberField(optionKey, TextFieldFormatter::Kind::PositiveNumber);
    };

    addOption(ConvertFilenameCase, { "GENERALCONVERTNAME", "GENERALCONVERTNAMETIP" },
        { makeCaseChooser("generalFileNameCase") });
    addOption(ConvertExtensionCase, { "GENERALCONVERTEXTENSION", "GENERALCONVERTEXTENSIONTIP" },
        { makeCaseChooser("generalExtensionCase") });
    addOption(RemoveExtension, { "GENERALREMOVEEXTENSION", "GENERALREMOVEEXTENSIONTIP" }, {});
    addOption(ChangeExtension, { "GENERALCHANGEEXTENSION", "GENERALCHANGEEXTENSIONTIP" },
        { makeTextField({ "generalChangeExtension", "GENERALEXTENSIONPLACEHOLDER" }, kTextField) });
    addOption(ReverseFilename, { "GENERALREVERSE", "GENERALREVERSETIP" }, {});
    addOption(RemoveSpaces, { "GENERALREMOVESPACES", "GENERALREMOVESPACESTIP" }, {});
    addOption(SwapBySeperator, { "GENERALSWAPSEPARATOR", "GENERALSWAPSEPARATORTIP" },
        { makeTextField({ "generalSwapSeperator", "GENERALSEPARATORPLACEHOLDER" }, kNarrowField) });
    addOption(SwapByPosition, { "GENERALSWAPPOSITION", "GENERALSWAPPOSITIONTIP" },
        { numberField("generalSwapPosition") });
    addOption(RemoveAfterString, { "GENERALREMOVEAFTER", "GENERALREMOVEAFTERTIP" },
        { makeTextField({ "generalRemoveAfterString", "GENERALTEXTPLACEHOLDER" }, kTextField),
            occurrenceLabel(), numberField("generalRemoveAfterStringOccurrence") });
    addOption(RemoveFromString, { "GENERALREMOVEFROM", "GENERALREMOVEFROMTIP" },
        { makeTextField({ "generalRemoveFromString", "GENERALTEXTPLACEHOLDER" }, kTextField),
            occurrenceLabel(), numberField("generalRemoveFromStringOccurrence") });
    addOption(FilenameMask, { "GENERALMASK", "GENERALMASKTIP" },
        { makeTextField({ "generalFilenameMask", "GENERALMASKPLACEHOLDER" }, kTextField) });
    addOption(ConvertWindowsCompatible, { "GENERALWINDOWS", "GENERALWINDOWSTIP" },
        { makeTextField({ "generalConvertWindowsCompatibleString", "GENERALWINDOWSPLACEHOLDER" },
            kNarrowField, TextFieldFormatter::Kind::SafeCharacters) });

    m_grid->setColumnMinimumWidth(kColumnsPerOption, kColumnGap);
    m_grid->setColumnStretch(1, 1);
    m_grid->setColumnStretch(kColumnsPerOption + 2, 1);
    m_grid->setRowStretch(kOptionsPerColumn, 1);
}

void GeneralTab::refreshFromSettings()
{
    m_binder->refresh();
    const int chosen = m_settings.generalOptionIndex();
    for (auto it = m_inputsOfOption.cbegin(); it != m_inputsOfOption.cend(); ++it) {
        for (QWidget* input : it.value())
            input->setEnabled(it.key() == chosen);
    }
}

} // namespace tavrin
