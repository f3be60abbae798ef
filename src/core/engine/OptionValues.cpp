#include "core/engine/OptionValues.h"

#include "core/text/StringUtilities.h"

#include <QObject>

namespace tavrin {

QVariant PropertyOptionValues::value(const char* key) const
{
    const QVariant found = m_object.property(key);
    if (!found.isValid())
        qWarning("Unknown option key %s", key);
    return found;
}

QString PropertyOptionValues::text(const char* key) const
{
    return value(key).toString();
}

int PropertyOptionValues::integer(const char* key) const
{
    const QVariant found = value(key);
    if (found.typeId() == QMetaType::QString)
        return toInteger(found.toString());
    return found.toInt();
}

bool PropertyOptionValues::boolean(const char* key) const
{
    const QVariant found = value(key);
    if (found.typeId() == QMetaType::QString)
        return toInteger(found.toString()) != 0;
    return found.toBool();
}

}  // namespace tavrin
