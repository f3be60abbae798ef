#include "gui/engine/ReplaceRemoveTab.h"

#include "core/engine/actions/patternreplace.h"
#include "core/engine/actions/replaceremove.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/OptionBinder.h"

#include <QButtonGroup>
#include <QCheckBox>
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

// The ids of the mode buttons: the indexes Settings::chooseReplaceRemoveMode takes.
constexpr int kReplace = 0;
constexpr int kRemove = 1;
constexpr int kRemoveCharacters = 2;
constexpr int kNoMode = -1;

// The mode as the action sees it, which asks its switches in this order.
int chosenMode(const Settings& settings)
{
    if (settings.isReplaceRemoveReplace())
        return kReplace;
    if (settings.isReplaceRemoveRemoveCharacters())
        return kRemoveCharacters;
    return settings.isReplaceRemoveRemove() ? kRemove : kNoMode;
}

} // namespace

ReplaceRemoveTab::ReplaceRemoveTab(Settings& settings, QWidget* parent)
    : ActionTab(parent)
    , m_settings(settings)
    , m_binder(new OptionBinder(settings, this))
{
    setObjectName(QStringLiteral("replaceRemoveTab"));
    auto* groups = new QHBoxLayout;
    groups->addWidget(makeTextGroup(), 1);
    groups->addWidget(makeWhereGroup(), 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeModeRow());
    layout->addLayout(groups, 1);
    connect(&m_settings, &Settings::settingsChanged, this, &ReplaceRemoveTab::refreshFromSettings);
    refreshFromSettings();
}

QWidget* ReplaceRemoveTab::fieldForOption(const QString& optionKey) const
{
    return m_binder->field(optionKey);
}

QLayout* ReplaceRemoveTab::makeModeRow()
{
    QButtonGroup* modes = m_binder->radioGroup(&Settings::chooseReplaceRemoveMode, chosenMode);
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    const auto addMode = [&](int mode, const char* name, const ChoiceText& text) {
        QRadioButton* button = m_binder->radioButton(modes, mode, QString::fromLatin1(name), text.labelKey);
        button->setToolTip(localized(text.toolTipKey));
        row->addWidget(button);
    };
    addMode(kReplace, "replaceMode", { "REPLACEMODE", "REPLACEMODETIP" });
    addMode(kRemove, "removeMode", { "REMOVEMODE", "REMOVEMODETIP" });
    addMode(kRemoveCharacters, "removeCharactersMode", { "REMOVECHARACTERSMODE", "REMOVECHARACTERSMODETIP" });
    row->addStretch();
    return row;
}

QGroupBox* ReplaceRemoveTab::makeTextGroup()
{
    auto* group = new QGroupBox(localized("REPLACETEXTGROUP"));
    QGridLayout* grid = OptionBinder::groupGrid(group);

    m_findLabel = new QLabel;
    QLineEdit* find = m_binder->textField({ Settings::replaceRemoveThisKey });
    m_findLabel->setBuddy(find);
    grid->addWidget(m_findLabel, 0, 0);
    grid->addWidget(find, 0, 1);

    auto* withLabel = new QLabel(localized("REPLACEWITH"));
    QLineEdit* with = m_binder->textField({ Settings::replaceRemoveWithKey, "REPLACEWITHPLACEHOLDER" });
    withLabel->setBuddy(with);
    m_replacementInputs = { withLabel, with };
    OptionBinder::describeRow(m_replacementInputs, localized("REPLACEWITHTIP"));
    grid->addWidget(withLabel, 1, 0);
    grid->addWidget(with, 1, 1);

    QCheckBox* matchCase = m_binder->checkBox({ Settings::isReplaceRemoveCaseSensitiveKey, "REPLACECASE" });
    matchCase->setToolTip(localized("REPLACECASETIP"));
    grid->addWidget(matchCase, 2, 1);
    QCheckBox* pattern
        = m_binder->checkBox({ Settings::isReplaceRemoveRegularExpressionKey, "REPLACEREGULAREXPRESSION" });
    pattern->setToolTip(localized("REPLACEREGULAREXPRESSIONTIP"));
    grid->addWidget(pattern, 3, 1);

    // A pattern's problem shows as it is typed, before any preview.
    m_patternProblem = new QLabel;
    m_patternProblem->setObjectName(QStringLiteral("patternProblemLabel"));
    m_patternProblem->setWordWrap(true);
    m_patternProblem->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(m_patternProblem, 4, 1);
    connect(find, &QLineEdit::textChanged, this, &ReplaceRemoveTab::showPatternProblem);

    grid->setColumnStretch(1, 1);
    grid->setRowStretch(5, 1);
    return group;
}

QGroupBox* ReplaceRemoveTab::makeWhereGroup()
{
    auto* group = new QGroupBox(localized("REPLACEWHEREGROUP"));
    QGridLayout* grid = OptionBinder::groupGrid(group);

    auto* startLabel = new QLabel(localized("REPLACESTARTFROM"));
    QLineEdit* start
        = m_binder->numberField(Settings::replaceRemoveStartFromCharacterKey, Kind::PositiveNumber);
    startLabel->setBuddy(start);
    QComboBox* direction = m_binder->directionChoice(Settings::replaceRemovePositionDirectionKey,
        replaceremovedirection::FromStart, replaceremovedirection::FromEnd);
    OptionBinder::describeRow({ startLabel, start, direction }, localized("REPLACESTARTFROMTIP"));
    grid->addWidget(startLabel, 0, 0);
    grid->addWidget(start, 0, 1);
    grid->addWidget(direction, 0, 2, Qt::AlignLeft);

    QCheckBox* all = m_binder->checkBox({ Settings::isReplaceRemoveAllOccurrenceKey, "REPLACEALL" });
    all->setToolTip(localized("REPLACEALLTIP"));
    grid->addWidget(all, 1, 0, 1, 3);

    addMatchChoice(grid, 2, Settings::replaceRemoveStartOnOccurrenceKey,
        { "REPLACEFROMOCCURRENCE", "REPLACEFROMOCCURRENCETIP" });
    addMatchChoice(grid, 3, Settings::replaceRemoveOccuranceCountKey, { "REPLACECOUNT", "REPLACECOUNTTIP" });

    grid->setColumnStretch(2, 1);
    grid->setRowStretch(4, 1);
    return group;
}

void ReplaceRemoveTab::addMatchChoice(
    QGridLayout* grid, int row, const char* optionKey, const ChoiceText& text)
{
    auto* label = new QLabel(localized(text.labelKey));
    QLineEdit* number = m_binder->numberField(optionKey, Kind::PositiveNumber);
    label->setBuddy(number);
    OptionBinder::describeRow({ label, number }, localized(text.toolTipKey));
    grid->addWidget(label, row, 0);
    grid->addWidget(number, row, 1);
    m_matchChoiceInputs << label << number;
}

void ReplaceRemoveTab::refreshFromSettings()
{
    m_binder->refresh();
    enableChosenInputs();
    showPatternProblem();
}

void ReplaceRemoveTab::showPatternProblem()
{
    const QString typed = static_cast<QLineEdit*>(m_binder->field(Settings::replaceRemoveThisKey))->text();
    const std::optional<PatternProblem> problem
        = m_settings.isReplaceRemoveRegularExpression() ? patternProblem(typed) : std::nullopt;
    m_patternProblem->setText(
        problem ? localized("PATTERNPROBLEM").arg(problem->description).arg(problem->column) : QString());
    m_patternProblem->setVisible(problem.has_value());
}

void ReplaceRemoveTab::enableChosenInputs()
{
    const int mode = chosenMode(m_settings);
    const bool characters = mode == kRemoveCharacters;
    nameFindField(characters);

    for (QWidget* input : std::as_const(m_replacementInputs))
        input->setEnabled(mode == kReplace);

    // Single characters are always removed wherever they stand.
    m_binder->field(Settings::isReplaceRemoveAllOccurrenceKey)->setEnabled(!characters);
    const bool chooseMatches = !characters && !m_settings.isReplaceRemoveAllOccurrence();
    for (QWidget* input : std::as_const(m_matchChoiceInputs))
        input->setEnabled(chooseMatches);
}

// The find field holds a set of characters in the third mode, and says so.
void ReplaceRemoveTab::nameFindField(bool characters)
{
    auto* find = static_cast<QLineEdit*>(m_binder->field(Settings::replaceRemoveThisKey));
    m_findLabel->setText(localized(characters ? "REPLACECHARACTERS" : "REPLACEFIND"));
    find->setPlaceholderText(
        localized(characters ? "REPLACECHARACTERSPLACEHOLDER" : "REPLACEFINDPLACEHOLDER"));
    OptionBinder::describeRow(
        { m_findLabel, find }, localized(characters ? "REPLACECHARACTERSTIP" : "REPLACEFINDTIP"));
}

} // namespace tavrin
