#include "core/engine/Validation.h"

#include "core/engine/OptionValues.h"
#include "core/profiles/Tabs.h"
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

const RequiredInput kRequiredInputs[] = {
    {tabs::InsertDelete, "isInsertDeleteInsert", nullptr, 0, "insertDeleteInsert", "INSERTINVALIDINPUT", "ENTERVALIDVALUE"},
    {tabs::InsertDelete, "isInsertDeleteInsert", "insertDeleteInsertOptionIndex", 3, "insertDeleteInsertAtBeforeText",
     "INSERTTEXTATBEFORETEXT", "ENTERSOMETEXT"},
    {tabs::InsertDelete, "isInsertDeleteInsert", "insertDeleteInsertOptionIndex", 4, "insertDeleteInsertAtAfterText",
     "INSERTTEXTATAFTERTEXT", "ENTERSOMETEXT"},
    {tabs::ReplaceRemove, nullptr, nullptr, 0, "replaceRemoveThis", "REPLACEREMOVEINVALIDINPUT", "ENTERVALIDVALUE"},
    {tabs::DateTime, nullptr, "dateTimeOptionsIndex", 3, "dateTimeAtBeforeText", "DATETIMEATBEFORETEXTINVALIDINPUT",
     "ENTERSOMETEXT"},
    {tabs::DateTime, nullptr, "dateTimeOptionsIndex", 4, "dateTimeAtAfterText", "DATETIMEATAFTERTEXTINVALIDINPUT",
     "ENTERSOMETEXT"},
    {tabs::General, nullptr, "generalOptionIndex", 8, "generalRemoveAfterString", "GENERALINVALIDINPUT", "ENTERVALIDVALUE"},
    {tabs::General, nullptr, "generalOptionIndex", 9, "generalRemoveFromString", "GENERALINVALIDINPUT", "ENTERVALIDVALUE"},
    {tabs::General, nullptr, "generalOptionIndex", 10, "generalFilenameMask", "GENERALINVALIDINPUT", "ENTERVALIDVALUE"},
    {tabs::Audio, nullptr, nullptr, 0, "id3RenamingMask", "ID3INVALIDINPUT", "INVALIDID3RENAMINGMASK"},
    {tabs::Photo, nullptr, nullptr, 0, "photoRenamingMask", "PHOTOINVALIDINPUT", "INVALIDPHOTORENAMINGMASK"},
    {tabs::PathComponents, nullptr, "pathComponentsOptionsIndex", 3, "pathComponentsAtBeforeText", "PATHTEXTATBEFORETEXT",
     "ENTERSOMETEXT"},
    {tabs::PathComponents, nullptr, "pathComponentsOptionsIndex", 4, "pathComponentsAtAfterText", "PATHTEXTATAFTERTEXT",
     "ENTERSOMETEXT"},
};

void setText(QObject& settings, const char* key, const QString& value)
{
    settings.setProperty(key, value);
}

// A step of a sequence, clamped into [low, high].
void clampStep(QObject& settings, const char* key, int low, int high)
{
    const int value = toInteger(settings.property(key).toString());
    if (value < low)
        setText(settings, key, QString::number(low));
    else if (value > high)
        setText(settings, key, QString::number(high));
}

void normaliseSequence(QObject& settings)
{
    const PropertyOptionValues options(settings);
    if (options.boolean("isAlphaNumericNumeric")) {
        clampStep(settings, "alphaNumericIncrementBy", 1, INT_MAX);
        clampStep(settings, "alphaNumericDecrementBy", 1, INT_MAX);
        return;
    }
    clampStep(settings, "alphaNumericIncrementBy", 1, 26);
    clampStep(settings, "alphaNumericDecrementBy", 1, 26);
    if (options.text("alphaNumericAlphabeticStartWith").isEmpty())
        setText(settings, "alphaNumericAlphabeticStartWith", QStringLiteral("a"));
}

void normalise(QObject& settings, int tab)
{
    if (tab == tabs::AlphaNumeric)
        normaliseSequence(settings);
    if (tab == tabs::General && settings.property("generalSwapPosition").toString().isEmpty())
        setText(settings, "generalSwapPosition", QStringLiteral("1"));
}

bool applies(const OptionValues& options, const RequiredInput& input)
{
    if (input.modeKey && !options.boolean(input.modeKey))
        return false;
    return !input.conditionKey || options.integer(input.conditionKey) == input.conditionValue;
}

}  // namespace

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
    return std::nullopt;
}

}  // namespace tavrin
