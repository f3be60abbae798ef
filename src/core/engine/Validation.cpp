#include "core/engine/Validation.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/alphanumeric.h"
#include "core/engine/actions/general.h"
#include "core/engine/actions/insertdelete.h"
#include "core/engine/actions/patternreplace.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/StringUtilities.h"

#include <QObject>

namespace tavrin {

namespace {

// A text option that must not be empty when the mode switch is on and the condition option
// holds the given value (a null key: no such requirement).
struct RequiredInput {
    int tab;
    const char* modeKey;
    const char* conditionKey;
    int conditionValue;
    const char* requiredKey;
    const char* titleKey;
    const char* messageKey;
};

// The date/time and path-components placements share the insert tab's numbering.
const RequiredInput kRequiredInputs[] = {
    {tabs::InsertDelete, Settings::isInsertDeleteInsertKey, nullptr, 0, Settings::insertDeleteInsertKey,
     "INSERTINVALIDINPUT", "ENTERVALIDVALUE"},
    {tabs::InsertDelete, Settings::isInsertDeleteInsertKey, Settings::insertDeleteInsertOptionIndexKey,
     insertoption::BeforeText, Settings::insertDeleteInsertAtBeforeTextKey, "INSERTTEXTATBEFORETEXT", "ENTERSOMETEXT"},
    {tabs::InsertDelete, Settings::isInsertDeleteInsertKey, Settings::insertDeleteInsertOptionIndexKey,
     insertoption::AfterText, Settings::insertDeleteInsertAtAfterTextKey, "INSERTTEXTATAFTERTEXT", "ENTERSOMETEXT"},
    {tabs::ReplaceRemove, nullptr, nullptr, 0, Settings::replaceRemoveThisKey, "REPLACEREMOVEINVALIDINPUT",
     "ENTERVALIDVALUE"},
    {tabs::DateTime, nullptr, Settings::dateTimeOptionsIndexKey, insertoption::BeforeText,
     Settings::dateTimeAtBeforeTextKey, "DATETIMEATBEFORETEXTINVALIDINPUT", "ENTERSOMETEXT"},
    {tabs::DateTime, nullptr, Settings::dateTimeOptionsIndexKey, insertoption::AfterText,
     Settings::dateTimeAtAfterTextKey, "DATETIMEATAFTERTEXTINVALIDINPUT", "ENTERSOMETEXT"},
    {tabs::General, nullptr, Settings::generalOptionIndexKey, generaloption::RemoveAfterString,
     Settings::generalRemoveAfterStringKey, "GENERALINVALIDINPUT", "ENTERVALIDVALUE"},
    {tabs::General, nullptr, Settings::generalOptionIndexKey, generaloption::RemoveFromString,
     Settings::generalRemoveFromStringKey, "GENERALINVALIDINPUT", "ENTERVALIDVALUE"},
    {tabs::General, nullptr, Settings::generalOptionIndexKey, generaloption::FilenameMask,
     Settings::generalFilenameMaskKey, "GENERALINVALIDINPUT", "ENTERVALIDVALUE"},
    {tabs::Audio, nullptr, nullptr, 0, Settings::id3RenamingMaskKey, "ID3INVALIDINPUT", "INVALIDID3RENAMINGMASK"},
    {tabs::Photo, nullptr, nullptr, 0, Settings::photoRenamingMaskKey, "PHOTOINVALIDINPUT",
     "INVALIDPHOTORENAMINGMASK"},
    {tabs::PathComponents, nullptr, Settings::pathComponentsOptionsIndexKey, insertoption::BeforeText,
     Settings::pathComponentsAtBeforeTextKey, "PATHTEXTATBEFORETEXT", "ENTERSOMETEXT"},
    {tabs::PathComponents, nullptr, Settings::pathComponentsOptionsIndexKey, insertoption::AfterText,
     Settings::pathComponentsAtAfterTextKey, "PATHTEXTATAFTERTEXT", "ENTERSOMETEXT"},
};

void setText(QObject& settings, const char* key, const QString& value)
{
    settings.setProperty(key, value);
}

// A step of a sequence is at least 1 and at most `largest`.
void clampStep(QObject& settings, const char* key, int largest)
{
    const int value = toInteger(settings.property(key).toString());
    if (value < 1)
        setText(settings, key, QStringLiteral("1"));
    else if (value > largest)
        setText(settings, key, QString::number(largest));
}

void normaliseSequence(QObject& settings)
{
    const PropertyOptionValues options(settings);
    const bool numeric = options.boolean(Settings::isAlphaNumericNumericKey);
    const int largest = numeric ? INT_MAX : alphabeticsequence::MaximumStep;
    clampStep(settings, Settings::alphaNumericIncrementByKey, largest);
    clampStep(settings, Settings::alphaNumericDecrementByKey, largest);
    if (!numeric && options.text(Settings::alphaNumericAlphabeticStartWithKey).isEmpty())
        setText(settings, Settings::alphaNumericAlphabeticStartWithKey,
                QString::fromLatin1(alphabeticsequence::StartValue));
}

void normalise(QObject& settings, int tab)
{
    if (tab == tabs::AlphaNumeric)
        normaliseSequence(settings);
    if (tab == tabs::General && settings.property(Settings::generalSwapPositionKey).toString().isEmpty())
        setText(settings, Settings::generalSwapPositionKey, QStringLiteral("1"));
}

bool applies(const OptionValues& options, const RequiredInput& input)
{
    if (input.modeKey && !options.boolean(input.modeKey))
        return false;
    return !input.conditionKey || options.integer(input.conditionKey) == input.conditionValue;
}

// A regular expression is checked before any item is: its problem, named where it lies.
std::optional<ValidationFailure> patternFailure(const OptionValues& options, int tab)
{
    if (tab != tabs::ReplaceRemove || !options.boolean(Settings::isReplaceRemoveRegularExpressionKey))
        return std::nullopt;
    const std::optional<PatternProblem> problem = patternProblem(options.text(Settings::replaceRemoveThisKey));
    if (!problem)
        return std::nullopt;
    return ValidationFailure{QStringLiteral("REPLACEREMOVEINVALIDPATTERN"), QStringLiteral("PATTERNPROBLEM"),
                             QString::fromLatin1(Settings::replaceRemoveThisKey),
                             {problem->description, QString::number(problem->column)}};
}

}  // namespace

QString ValidationFailure::title() const
{
    return LocalizedStrings::text(titleKey);
}

QString ValidationFailure::message() const
{
    QString text = LocalizedStrings::text(messageKey);
    for (const QString& argument : messageArguments)
        text = text.arg(argument);
    return text;
}

std::optional<ValidationFailure> validateAndNormalise(QObject& settings, int tab)
{
    normalise(settings, tab);
    const PropertyOptionValues options(settings);
    for (const RequiredInput& input : kRequiredInputs) {
        if (input.tab != tab || !applies(options, input))
            continue;
        if (options.text(input.requiredKey).isEmpty()) {
            return ValidationFailure{QString::fromLatin1(input.titleKey), QString::fromLatin1(input.messageKey),
                                     QString::fromLatin1(input.requiredKey)};
        }
    }
    return patternFailure(options, tab);
}

}  // namespace tavrin
