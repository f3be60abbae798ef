#include "core/metadata/MetaDataField.h"

#include "core/formats/KeyedArchive.h"

#include <QVariantList>
#include <QVariantMap>

namespace tavrin {

MetaDataField::MetaDataField(const QString& prefix, const QString& label, const QString& tagCode,
                             const QString& metadataCode)
    : m_prefix(prefix)
    , m_label(label)
    , m_tagCode(tagCode)
    , m_metadataCode(metadataCode)
{
}

QStringList MetaDataField::getTagsList(const QList<MetaDataField>& fields)
{
    QStringList tags;
    tags.reserve(fields.size());
    for (const MetaDataField& field : fields)
        tags.append(field.tagCode());
    return tags;
}

QByteArray archiveMetaDataFields(const QList<MetaDataField>& fields)
{
    QVariantList objects;
    for (const MetaDataField& field : fields) {
        const QVariantMap keys{
            {QLatin1String(MetaDataField::PrefixKey), field.prefix()},
            {QLatin1String(MetaDataField::LabelKey), field.label()},
            {QLatin1String(MetaDataField::TagCodeKey), field.tagCode()},
            {QLatin1String(MetaDataField::MetadataCodeKey), field.metadataCode()},
        };
        objects.append(QVariant::fromValue(ArchivedObject{MetaDataField::ClassName, keys}));
    }
    return keyedArchive(objects);
}

namespace {

std::optional<QString> textOf(const QVariantMap& keys, const char* key, bool required)
{
    const QVariant value = keys.value(QLatin1String(key));
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    if (required || value.isValid())
        return std::nullopt;
    return QString();
}

std::optional<MetaDataField> fieldOf(const QVariant& item)
{
    if (item.metaType() != QMetaType::fromType<ArchivedObject>())
        return std::nullopt;
    const QVariantMap keys = item.value<ArchivedObject>().keys;
    const auto prefix = textOf(keys, MetaDataField::PrefixKey, false);
    const auto label = textOf(keys, MetaDataField::LabelKey, false);
    const auto tagCode = textOf(keys, MetaDataField::TagCodeKey, true);
    const auto metadataCode = textOf(keys, MetaDataField::MetadataCodeKey, false);
    if (!prefix || !label || !tagCode || !metadataCode)
        return std::nullopt;
    return MetaDataField(*prefix, *label, *tagCode, *metadataCode);
}

}  // namespace

std::optional<QList<MetaDataField>> unarchiveMetaDataFields(const QByteArray& archive)
{
    const std::optional<QVariant> root = keyedUnarchive(archive, {MetaDataField::ClassName});
    if (!root || root->typeId() != QMetaType::QVariantList)
        return std::nullopt;
    QList<MetaDataField> fields;
    for (const QVariant& item : root->toList()) {
        const std::optional<MetaDataField> field = fieldOf(item);
        if (!field)
            return std::nullopt;
        fields.append(*field);
    }
    return fields;
}

}  // namespace tavrin
