#include "core/engine/StepOptionValues.h"

#include "core/profiles/SettingsRecord.h"
#include "core/text/StringUtilities.h"

namespace tavrin {

StepOptionValues::StepOptionValues(const RuleStep& step, const ActionEntry& action)
    : m_step(step)
    , m_action(action)
{
}

QVariant StepOptionValues::value(const char* key) const
{
    return m_step.value(QString::fromLatin1(key));
}

QString StepOptionValues::text(const char* key) const
{
    return value(key).toString();
}

int StepOptionValues::integer(const char* key) const
{
    return toInteger(text(key));
}

bool StepOptionValues::boolean(const char* key) const
{
    for (const StepForm& form : m_action.stepForms) {
        if (form.modeKey && qstrcmp(form.modeKey, key) == 0)
            return stepType(m_step) == QLatin1String(form.type);
    }
    return integer(key) != 0;
}

QStringList StepOptionValues::list(const char* key) const
{
    const QVariant found = value(key);
    if (found.typeId() != QMetaType::QVariantList && found.typeId() != QMetaType::QStringList)
        return {};
    QStringList texts;
    for (const QVariant& item : found.toList())
        texts.append(item.toString());
    return texts;
}

QDateTime StepOptionValues::date(const char* key) const
{
    return recordDateFromText(text(key)).value_or(QDateTime());
}

}  // namespace tavrin
