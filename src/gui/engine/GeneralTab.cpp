#include "gui/engine/GeneralTab.h"

#include "core/engine/actions/general.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>

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

// Enough for any 1-based position or occurrence in a name of at most 255 bytes.
constexpr int kLargestNumber = 999;

} // namespace

GeneralTab::GeneralTab(Settings& settings, QWidget* parent)
    : ActionTab(parent)
    , m_settings(settings)
    , m_options(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("generalTab"));
    buildLayout();
    connect(m_options, &QButtonGroup::idClicked, this,
        [this](int index) { m_settings.chooseGeneralOption(index); });
    connect(&m_settings, &Settings::settingsChanged, this, &GeneralTab::refreshFromSettings);
    refreshFromSettings();
}

QWidget* GeneralTab::fieldForOption(const QString& optionKey) const
{
    return m_fields.value(optionKey);
}

QComboBox* GeneralTab::makeCaseChooser(const char* optionKey)
{
    auto* chooser = new QComboBox;
    chooser->setObjectName(QString::fromLatin1(optionKey));
    chooser->addItem(localized("UPPERCASE"), lettercase::Upper);
    chooser->addItem(localized("LOWERCASE"), lettercase::Lower);
    chooser->addItem(localized("PROPERCASE"), lettercase::Proper);
    connect(chooser, &QComboBox::activated, this, [this, chooser, optionKey](int) {
        m_settings.setProperty(optionKey, chooser->currentData().toInt());
    });
    m_fields.insert(QString::fromLatin1(optionKey), chooser);
    return chooser;
}

QLineEdit* GeneralTab::makeTextField(const char* optionKey, const char* placeholderKey, int width)
{
    auto* field = new QLineEdit;
    field->setObjectName(QString::fromLatin1(optionKey));
    field->setFixedWidth(width);
    if (placeholderKey)
        field->setPlaceholderText(localized(placeholderKey));
    connect(field, &QLineEdit::textEdited, this,
        [this, optionKey](const QString& text) { m_settings.setProperty(optionKey, text); });
    m_fields.insert(QString::fromLatin1(optionKey), field);
    return field;
}

// The option holds the typed text (a profile may hold any), so the field shows exactly what
// the action will use; the validator only keeps what is typed to digits.
QLineEdit* GeneralTab::makeNumberField(const char* optionKey)
{
    QLineEdit* field = makeTextField(optionKey, nullptr, kNarrowField);
    field->setValidator(new QIntValidator(1, kLargestNumber, field));
    field->setAlignment(Qt::AlignRight);
    return field;
}

void GeneralTab::addOption(
    int index, const char* labelKey, const char* toolTipKey, const QList<QWidget*>& inputs)
{
    const QString label = localized(labelKey);
    const QString toolTip = localized(toolTipKey);
    auto* button = new QRadioButton(label);
    button->setObjectName(QStringLiteral("generalOption%1").arg(index));
    button->setToolTip(toolTip);
    m_options->addButton(button, index);

    // Screen readers name an input after the words before it: the option's label, or the
    // word between two inputs ("occurrence").
    auto* inputRow = new QHBoxLayout;
    inputRow->setSpacing(6);
    QString name = label;
    for (QWidget* input : inputs) {
        input->setToolTip(toolTip);
        if (const auto* word = qobject_cast<QLabel*>(input))
            name = word->text();
        else
            input->setAccessibleName(name);
        inputRow->addWidget(input);
    }
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

    addOption(ConvertFilenameCase, "GENERALCONVERTNAME", "GENERALCONVERTNAMETIP",
        { makeCaseChooser("generalFileNameCase") });
    addOption(ConvertExtensionCase, "GENERALCONVERTEXTENSION", "GENERALCONVERTEXTENSIONTIP",
        { makeCaseChooser("generalExtensionCase") });
    addOption(RemoveExtension, "GENERALREMOVEEXTENSION", "GENERALREMOVEEXTENSIONTIP", {});
    addOption(ChangeExtension, "GENERALCHANGEEXTENSION", "GENERALCHANGEEXTENSIONTIP",
        { makeTextField("generalChangeExtension", "GENERALEXTENSIONPLACEHOLDER", kTextField) });
    addOption(ReverseFilename, "GENERALREVERSE", "GENERALREVERSETIP", {});
    addOption(RemoveSpaces, "GENERALREMOVESPACES", "GENERALREMOVESPACESTIP", {});
    addOption(SwapBySeperator, "GENERALSWAPSEPARATOR", "GENERALSWAPSEPARATORTIP",
        { makeTextField("generalSwapSeperator", "GENERALSEPARATORPLACEHOLDER", kNarrowField) });
    addOption(SwapByPosition, "GENERALSWAPPOSITION", "GENERALSWAPPOSITIONTIP",
        { makeNumberField("generalSwapPosition") });
    addOption(RemoveAfterString, "GENERALREMOVEAFTER", "GENERALREMOVEAFTERTIP",
        { makeTextField("generalRemoveAfterString", "GENERALTEXTPLACEHOLDER", kTextField), occurrenceLabel(),
            makeNumberField("generalRemoveAfterStringOccurrence") });
    addOption(RemoveFromString, "GENERALREMOVEFROM", "GENERALREMOVEFROMTIP",
        { makeTextField("generalRemoveFromString", "GENERALTEXTPLACEHOLDER", kTextField), occurrenceLabel(),
            makeNumberField("generalRemoveFromStringOccurrence") });
    addOption(FilenameMask, "GENERALMASK", "GENERALMASKTIP",
        { makeTextField("generalFilenameMask", "GENERALMASKPLACEHOLDER", kTextField) });
    addOption(ConvertWindowsCompatible, "GENERALWINDOWS", "GENERALWINDOWSTIP",
        { makeTextField(
            "generalConvertWindowsCompatibleString", "GENERALWINDOWSPLACEHOLDER", kNarrowField) });

    m_grid->setColumnMinimumWidth(kColumnsPerOption, kColumnGap);
    m_grid->setColumnStretch(1, 1);
    m_grid->setColumnStretch(kColumnsPerOption + 2, 1);
    m_grid->setRowStretch(kOptionsPerColumn, 1);
}

void GeneralTab::refreshFromSettings()
{
    const int chosen = m_settings.generalOptionIndex();
    if (QAbstractButton* button = m_options->button(chosen)) {
        const QSignalBlocker blocker(m_options);
        button->setChecked(true);
    }
    for (auto it = m_inputsOfOption.cbegin(); it != m_inputsOfOption.cend(); ++it) {
        for (QWidget* input : it.value())
            input->setEnabled(it.key() == chosen);
    }
    for (auto it = m_fields.cbegin(); it != m_fields.cend(); ++it)
        refreshField(it.key(), it.value());
}

// A case code the chooser does not offer shows as no choice rather than as a wrong one.
void GeneralTab::refreshField(const QString& optionKey, QWidget* field)
{
    const QVariant value = m_settings.property(optionKey.toLatin1().constData());
    const QSignalBlocker blocker(field);
    if (auto* chooser = qobject_cast<QComboBox*>(field))
        chooser->setCurrentIndex(chooser->findData(value.toInt()));
    else if (auto* line = qobject_cast<QLineEdit*>(field); line && line->text() != value.toString())
        line->setText(value.toString());
}

} // namespace tavrin
