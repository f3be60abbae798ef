#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace tavrin {

// One photo metadata field: its group, its label, the token masks are written with (its
// identity) and where its value is read from. The value is the one resolved for the image
// being renamed and is never archived.
class MetaDataField {
public:
    // The class name and the four keys of an archived field.
    static constexpr char ClassName[] = "MetaDataField";
    static constexpr char PrefixKey[] = "prefix";
    static constexpr char LabelKey[] = "label";
    static constexpr char TagCodeKey[] = "tagCode";
    static constexpr char MetadataCodeKey[] = "metadataCode";

    MetaDataField() = default;
    // initWithLabelAndTagCode: the group, the label, the token and the metadata code.
    MetaDataField(const QString& prefix, const QString& label, const QString& tagCode, const QString& metadataCode);

    const QString& prefix() const { return m_prefix; }
    void setPrefix(const QString& prefix) { m_prefix = prefix; }
    const QString& label() const { return m_label; }
    void setLabel(const QString& label) { m_label = label; }
    const QString& tagCode() const { return m_tagCode; }
    void setTagCode(const QString& tagCode) { m_tagCode = tagCode; }
    const QString& metadataCode() const { return m_metadataCode; }
    void setMetadataCode(const QString& metadataCode) { m_metadataCode = metadataCode; }
    const QString& metadataValue() const { return m_metadataValue; }
    void setMetadataValue(const QString& value) { m_metadataValue = value; }

    // The tokens of the fields, in their order.
    static QStringList getTagsList(const QList<MetaDataField>& fields);

private:
    QString m_prefix;
    QString m_label;
    QString m_tagCode;
    QString m_metadataCode;
    QString m_metadataValue;
};

// A keyed archive of the fields, each under its four keys.
QByteArray archiveMetaDataFields(const QList<MetaDataField>& fields);

// The fields of such an archive; nothing when it is no archive of an array of fields, or a
// field lacks its token. Missing texts other than the token are taken as empty.
std::optional<QList<MetaDataField>> unarchiveMetaDataFields(const QByteArray& archive);

}  // namespace tavrin
