#include "core/engine/OptionValues.h"

#include "core/text/StringUtilities.h"

#include <QMetaProperty>
#include <QObject>

namespace tavrin {

PropertyOptionValues::PropertyOptionValues(const QObject& object)
{
    const QMetaObject* meta = object.metaObject();
    for (int index = 0; index < meta->propertyCount(); ++index) {
        const QMetaProperty property = meta->property(index);
        m_values.insert(QByteArray(property.name()), property.read(&object));
    }
}

QVariant PropertyOptionValues::value(const char* key) const
{
    const auto found = m_values.constFind(QByteArray::fromRawData(key, static_cast<qsizetype>(qstrlen(key))));
    if (found == m_values.constEnd()) {
        qWarning("Unknown option key %s", key);
        return {};
    }
    return *found;
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

QStringList PropertyOptionValues::list(const char* key) const
{
    return value(key).toStringList();
}

QDateTime PropertyOptionValues::date(const char* key) const
{
    const QVariant found = value(key);
    return found.typeId() == QMetaType::QDateTime ? found.toDateTime() : QDateTime();
}

}  // namespace tavrin
