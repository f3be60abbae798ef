#include "core/rules/StepRecord.h"

#include "core/engine/ActionRegistry.h"
#include "core/metadata/MetaDataCatalogue.h"
#include "core/profiles/Settings.h"
#include "core/profiles/SettingsRecord.h"
#include "core/profiles/Tabs.h"
#include "core/text/StringUtilities.h"

#include <QMetaProperty>

namespace tavrin {

namespace {

constexpr char kPrefixSuffixRule[] = "PrefixSuffix";

QMetaProperty optionProperty(const char* key)
{
    const QMetaObject& meta = Settings::staticMetaObject;
    return meta.property(meta.indexOfProperty(key));
}

// A step stores what the tab runs with; the general tab's occurrence counts start at 1.
void normaliseForStep(Settings& settings, int tab)
{
    if (tab != tabs::General)
        return;
    for (const char* key : {Settings::generalRemoveAfterStringOccurrenceKey, Settings::generalRemoveFromStringOccurrenceKey}) {
        if (settings.textValue(key).isEmpty())
            settings.setOptionFromString(QString::fromLatin1(key), QStringLiteral("1"));
    }
}

const StepForm* chosenForm(const Settings& settings, const ActionEntry& action)
{
    for (const StepForm& form : action.stepForms) {
        if (!form.modeKey || settings.booleanValue(form.modeKey))
            return &form;
    }
    return nullptr;
}

// Booleans and indexes as "%d", texts as typed, the date as records describe it, lists as
// arrays; the counter of a sequence is the number -1 until a preview runs it, and the photo
// fields are also kept archived, as the other platform's program reads them.
QVariant stepValue(const Settings& settings, const char* key)
{
    if (qstrcmp(key, stepkeys::Sequence) == 0)
        return -1;
    if (qstrcmp(key, stepkeys::MetaDataList) == 0) {
        MetaDataCatalogue catalogue;
        catalogue.InitializeMetaDataList();
        return archiveMetaDataFields(catalogue.fieldsForTags(settings.photoMetaDataList()));
    }
    const QMetaProperty property = optionProperty(key);
    const QVariant value = property.read(&settings);
    switch (property.metaType().id()) {
    case QMetaType::QStringList:
        return QVariant(value.toStringList()).toList();
    case QMetaType::QDateTime:
        return recordDateText(value.toDateTime());
    default:
        return settings.textValue(key);
    }
}

RuleStep buildStep(const Settings& settings, const ActionEntry& action, const StepForm& form)
{
    RuleStep step;
    step.insert(QString::fromLatin1(stepkeys::Rule), QString::fromLatin1(action.ruleName));
    step.insert(QString::fromLatin1(stepkeys::Type), QString::fromLatin1(form.type));
    setStepActive(step, true);
    for (const char* key : form.keys)
        step.insert(QString::fromLatin1(key), stepValue(settings, key));
    return step;
}

QStringList textsOf(const QVariant& value)
{
    QStringList texts;
    for (const QVariant& item : value.toList())
        texts.append(item.toString());
    return texts;
}

void loadValue(Settings& settings, const char* key, const QVariant& value)
{
    const QMetaProperty property = optionProperty(key);
    if (!property.isValid())
        return;
    const QString text = value.toString();
    switch (property.metaType().id()) {
    case QMetaType::Bool:
        property.write(&settings, toInteger(text) != 0);
        break;
    case QMetaType::Int:
        if (!settings.chooseRadioOption(QString::fromLatin1(key), toInteger(text)))
            property.write(&settings, toInteger(text));
        break;
    case QMetaType::QStringList:
        property.write(&settings, textsOf(value));
        break;
    case QMetaType::QDateTime:
        if (const std::optional<QDateTime> date = recordDateFromText(text))
            property.write(&settings, *date);
        break;
    default:
        property.write(&settings, text);
        break;
    }
}

}  // namespace

StepOutcome getRule(Settings& settings)
{
    StepOutcome outcome;
    const int tab = settings.selectedTab();
    outcome.failure = validateAndNormalise(settings, tab);
    if (outcome.failure) {
        if (tab == tabs::Audio || tab == tabs::Photo)
            outcome.error = outcome.failure->message();
        return outcome;
    }
    normaliseForStep(settings, tab);
    const ActionEntry* action = actionForTab(tab);
    if (const StepForm* form = action ? chosenForm(settings, *action) : nullptr)
        outcome.step = buildStep(settings, *action, *form);
    return outcome;
}

bool addRule(RuleChain& rules, const StepOutcome& built)
{
    if (built.step) {
        rules.append(*built.step);
        return true;
    }
    return !built.error.isEmpty();
}

bool setRule(Settings& settings, const RuleStep& step)
{
    const QString rule = stepRule(step);
    const ActionEntry* action = actionForRule(rule);
    if (!action || rule == QLatin1String(kPrefixSuffixRule))
        return false;
    const Settings::ChangeBatch batch(settings);
    const StepForm* form = stepFormOf(*action, stepType(step));
    if (form) {
        if (form->radioKey)
            settings.chooseRadioOption(QString::fromLatin1(form->radioKey), form->radioIndex);
        for (const char* key : form->keys) {
            const auto value = step.constFind(QString::fromLatin1(key));
            if (value != step.cend())
                loadValue(settings, key, *value);
        }
        // The step keeps the direction's switches; the radio group follows them.
        if (action->tab == tabs::AlphaNumeric)
            settings.setAlphaNumericIncrementDecrementIndex(settings.isAlphaNumericIncrement() ? 0 : 1);
    }
    settings.setSelectedTab(action->tab);
    return form != nullptr;
}

}  // namespace tavrin
