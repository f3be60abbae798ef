#include "gui/engine/SequenceTab.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/alphanumeric.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/OptionBinder.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace tavrin {

namespace {

using Kind = TextFieldFormatter::Kind;

// The ids of the radio buttons: the indexes Settings::chooseNumericOrAlphabetic and
// Settings::chooseIncrementOrDecrement take.
constexpr int kNumeric = 0;
constexpr int kAlphabetic = 1;
constexpr int kIncrement = 0;
constexpr int kDecrement = 1;
constexpr int kNoDirection = -1;

// The chosen direction as the action sees it: decrement wins when both are set.
int chosenDirection(const Settings& settings)
{
    if (settings.isAlphaNumericDecrement())
        return kDecrement;
    return settings.isAlphaNumericIncrement() ? kIncrement : kNoDirection;
}

} // namespace

SequenceTab::SequenceTab(Settings& settings, QWidget* parent)
    : ActionTab(parent)
    , m_settings(settings)
    , m_binder(new OptionBinder(settings, this))
{
    setObjectName(QStringLiteral("sequenceTab"));
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(makeKindGroup());
    layout->addWidget(makeCountingGroup());
    layout->addWidget(makePlacementGroup(), 1);
    connect(&m_settings, &Settings::settingsChanged, this, &SequenceTab::refreshFromSettings);
    refreshFromSettings();
}

QWidget* SequenceTab::fieldForOption(const QString& optionKey) const
{
    return m_binder->field(optionKey);
}

// A radio button with the field of its value beside it, one row of `group`'s grid: the
// button's id is also its row.
void SequenceTab::addChoiceRow(QGridLayout* grid, QButtonGroup* group, const ChoiceRow& choice)
{
    QRadioButton* button
        = m_binder->radioButton(group, choice.id, QString::fromLatin1(choice.objectName), choice.labelKey);
    OptionBinder::describeRow({ button, choice.field }, localized(choice.tipKey));
    grid->addWidget(button, choice.id, 0);
    grid->addWidget(choice.field, choice.id, 1);
}

QGroupBox* SequenceTab::makeKindGroup()
{
    auto* group = new QGroupBox(localized("SEQUENCEKINDGROUP"));
    QGridLayout* grid = OptionBinder::groupGrid(group);
    QButtonGroup* kinds = m_binder->radioGroup(&Settings::chooseNumericOrAlphabetic,
        [](const Settings& settings) { return settings.isAlphaNumericNumeric() ? kNumeric : kAlphabetic; });
    addChoiceRow(grid, kinds,
        { kNumeric, "sequenceNumeric", "SEQUENCENUMBERS",
            m_binder->numberField(
                Settings::alphaNumericNumericStartWithKey, Kind::Number, OptionBinder::SequenceDigits),
            "SEQUENCENUMBERSTIP" });
    addChoiceRow(grid, kinds,
        { kAlphabetic, "sequenceAlphabetic", "SEQUENCELETTERS",
            m_binder->lettersField(Settings::alphaNumericAlphabeticStartWithKey), "SEQUENCELETTERSTIP" });
    grid->setRowStretch(2, 1);
    return group;
}

QGroupBox* SequenceTab::makeCountingGroup()
{
    auto* group = new QGroupBox(localized("SEQUENCECOUNTGROUP"));
    QGridLayout* grid = OptionBinder::groupGrid(group);
    QButtonGroup* directions = m_binder->radioGroup(&Settings::chooseIncrementOrDecrement, chosenDirection);
    addChoiceRow(grid, directions,
        { kIncrement, "sequenceIncrement", "SEQUENCEUP",
            m_binder->numberField(
                Settings::alphaNumericIncrementByKey, Kind::PositiveNumber, OptionBinder::SequenceDigits),
            "SEQUENCEUPTIP" });
    addChoiceRow(grid, directions,
        { kDecrement, "sequenceDecrement", "SEQUENCEDOWN",
            m_binder->numberField(
                Settings::alphaNumericDecrementByKey, Kind::PositiveNumber, OptionBinder::SequenceDigits),
            "SEQUENCEDOWNTIP" });

    QCheckBox* reset
        = m_binder->checkBox({ Settings::isAlphaNumericResetSequenceOnEachFolderKey, "SEQUENCERESET" });
    reset->setToolTip(localized("SEQUENCERESETTIP"));
    grid->addWidget(reset, 2, 0, 1, 2);

    grid->setRowStretch(3, 1);
    return group;
}

QGroupBox* SequenceTab::makePlacementGroup()
{
    auto* group = new QGroupBox(localized("SEQUENCEPLACEGROUP"));
    QGridLayout* grid = OptionBinder::groupGrid(group);

    QCheckBox* prefix = m_binder->checkBox({ Settings::isAlphaNumericPrefixKey, "SEQUENCEPREFIX" });
    prefix->setToolTip(localized("SEQUENCEPREFIXTIP"));
    QCheckBox* suffix = m_binder->checkBox({ Settings::isAlphaNumericSufixKey, "SEQUENCESUFFIX" });
    suffix->setToolTip(localized("SEQUENCESUFFIXTIP"));
    auto* sides = new QHBoxLayout;
    sides->setSpacing(16);
    sides->addWidget(prefix);
    sides->addWidget(suffix);
    sides->addStretch();
    grid->addLayout(sides, 0, 0, 1, 2);

    auto* hint = new QLabel(localized("SEQUENCEREPLACESHINT"));
    hint->setObjectName(QStringLiteral("sequenceReplacesHint"));
    hint->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(hint, 1, 0, 1, 2);

    QCheckBox* separate = m_binder->checkBox({ Settings::isAlphaNumericSeperatorKey, "SEQUENCESEPARATOR" });
    QLineEdit* separator
        = m_binder->textField({ Settings::alphaNumericSeperatorKey, "SEQUENCESEPARATORPLACEHOLDER" });
    OptionBinder::describeRow({ separate, separator }, localized("SEQUENCESEPARATORTIP"));
    grid->addWidget(separate, 2, 0);
    grid->addWidget(separator, 2, 1, Qt::AlignLeft);

    auto* maskLabel = new QLabel(localized("SEQUENCEMASK"));
    QLineEdit* mask
        = m_binder->textField({ Settings::alphaNumericPaddingMaskKey, "SEQUENCEMASKPLACEHOLDER" });
    maskLabel->setBuddy(mask);
    OptionBinder::describeRow({ maskLabel, mask }, localized("SEQUENCEMASKTIP"));
    grid->addWidget(maskLabel, 3, 0);
    grid->addWidget(mask, 3, 1, Qt::AlignLeft);
    m_maskWarning = new QLabel;
    m_maskWarning->setObjectName(QStringLiteral("paddingMaskWarning"));
    m_maskWarning->setWordWrap(true);
    m_maskWarning->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(m_maskWarning, 4, 0, 1, 2);

    const int shortText = separator->fontMetrics().horizontalAdvance(QStringLiteral("ID-0000000"));
    separator->setFixedWidth(shortText);
    mask->setFixedWidth(shortText);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(5, 1);
    return group;
}

void SequenceTab::refreshFromSettings()
{
    m_binder->refresh();
    enableChosenInputs();
    showMaskWarning();
}

void SequenceTab::setListedCount(int count)
{
    m_listedCount = count;
    showMaskWarning();
}

void SequenceTab::showMaskWarning()
{
    const SequenceOptions options = SequenceOptions::from(PropertyOptionValues(m_settings));
    const bool cut = numbersOverflowMask(options, m_listedCount);
    m_maskWarning->setText(cut ? localized("SEQUENCEMASKCUTS") : QString());
    m_maskWarning->setVisible(cut);
}

void SequenceTab::enableChosenInputs()
{
    const bool numeric = m_settings.isAlphaNumericNumeric();
    m_binder->field(Settings::alphaNumericNumericStartWithKey)->setEnabled(numeric);
    m_binder->field(Settings::alphaNumericAlphabeticStartWithKey)->setEnabled(!numeric);

    const int direction = chosenDirection(m_settings);
    m_binder->field(Settings::alphaNumericIncrementByKey)->setEnabled(direction == kIncrement);
    m_binder->field(Settings::alphaNumericDecrementByKey)->setEnabled(direction == kDecrement);

    // In place of the name there is nothing to separate the value from.
    const bool besideName = m_settings.isAlphaNumericPrefix() || m_settings.isAlphaNumericSufix();
    m_binder->field(Settings::isAlphaNumericSeperatorKey)->setEnabled(besideName);
    m_binder->field(Settings::alphaNumericSeperatorKey)
        ->setEnabled(besideName && m_settings.isAlphaNumericSeperator());
}

} // namespace tavrin
