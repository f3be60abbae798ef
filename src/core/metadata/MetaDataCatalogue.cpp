#include "core/metadata/MetaDataCatalogue.h"

#include "core/metadata/IptcValues.h"

namespace tavrin {

namespace {

struct FieldRow {
    const char* category;
    const char* prefix;
    const char* label;
    const char* tagCode;
    const char* metadataCode;
};

// The catalogue in display order. Two irregularities are kept on purpose, as saved masks and
// profiles expect them: the supplemental category's field has the prefix "IPTC - Categories",
// and "Date_Created" is never a key of the IPTC dictionary, so its value always comes from
// the XMP text.
const FieldRow kFields[] = {
    {"File Details", photogroup::FileInfo, "Filename", phototoken::Filename, "Filename"},
    {"Numerical Sequences", photogroup::Sequences, "Number Sequence", phototoken::NumberSequence, "Number Sequence"},
    {photogroup::Exif, photogroup::Exif, "Date", phototoken::Date, "Date"},
    {photogroup::Exif, photogroup::Exif, "Time", phototoken::Time, "Time"},
    {photogroup::Exif, photogroup::Exif, "Device Make", phototoken::DeviceMake, "Device Make"},
    {photogroup::Exif, photogroup::Exif, "Device Model", phototoken::DeviceModel, "Device Model"},
    {photogroup::Exif, photogroup::Exif, "Dimensions", phototoken::Dimensions, "Dimensions"},
    {photogroup::Exif, photogroup::Exif, "Comments", phototoken::Comments, "UserComment"},
    {"IPTC - Description", "IPTC - Description", "Document Title", "<IPTC_Description_Document_Title>", "ObjectName"},
    {"IPTC - Description", "IPTC - Description", "Author", "<IPTC_Description_Author>", "Byline"},
    {"IPTC - Description", "IPTC - Description", "Author Title", "<IPTC_Description_Author_Title>", "BylineTitle"},
    {"IPTC - Description", "IPTC - Description", "Description", "<IPTC_Description_Description>", "Caption/Abstract"},
    {"IPTC - Description", "IPTC - Description", "Description Writer", "<IPTC_Description_Description_Writer>",
     "Writer/Editor"},
    {"IPTC - Description", "IPTC - Description", "Copyright Status", "<IPTC_Description_Copyright_Status>",
     "CopyrightStatus"},
    {"IPTC - Description", "IPTC - Description", "Copyright Notice", "<IPTC_Description_Copyright_Notice>",
     "CopyrightNotice"},
    {"IPTC - Description", "IPTC - Description", "Copyright Info URL", "<IPTC_Description_Copyright_Info_URL>",
     "CopyrightInfoURL"},
    {"IPTC - Description", "IPTC - Description", "Urgency", "<IPTC_Description_Urgency>", "Urgency"},
    {"IPTC - Keywords", "IPTC - Keywords", "Keywords", "<IPTC_Keywords>", "Keywords"},
    {"IPTC - Supplemental Categories", "IPTC - Categories", "Categories", "<IPTC_Categories>", "SupplementalCategory"},
    {"IPTC - Contact", "IPTC - Contact", "Address", "<IPTC_Contact_Address>", "CreatorContactInfo@CiAdrExtadr"},
    {"IPTC - Contact", "IPTC - Contact", "City", "<IPTC_Contact_City>", "CreatorContactInfo@CiAdrCity"},
    {"IPTC - Contact", "IPTC - Contact", "State/Province", "<IPTC_Contact_State>", "CreatorContactInfo@CiAdrRegion"},
    {"IPTC - Contact", "IPTC - Contact", "Postal Code", "<IPTC_Contact_Postal_Code>", "CreatorContactInfo@CiAdrPcode"},
    {"IPTC - Contact", "IPTC - Contact", "Country", "<IPTC_Contact_Country>", "CreatorContactInfo@CiAdrCtry"},
    {"IPTC - Contact", "IPTC - Contact", "Phone", "<IPTC_Contact_Phone>", "CreatorContactInfo@CiTelWork"},
    {"IPTC - Contact", "IPTC - Contact", "Email", "<IPTC_Contact_Email>", "CreatorContactInfo@CiEmailWork"},
    {"IPTC - Contact", "IPTC - Contact", "Website", "<IPTC_Contact_Website>", "CreatorContactInfo@CiUrlWork"},
    {"IPTC - Origin", "IPTC - Origin", "Date Created", "<IPTC_Origin_Date_Created>", "Date_Created"},
    {"IPTC - Origin", "IPTC - Origin", "Time Created", "<IPTC_Origin_Time_Created>", "TimeCreated"},
    {"IPTC - Origin", "IPTC - Origin", "City", "<IPTC_Origin_City>", "City"},
    {"IPTC - Origin", "IPTC - Origin", "Location", "<IPTC_Origin_Location>", "SubLocation"},
    {"IPTC - Origin", "IPTC - Origin", "State/Province", "<IPTC_Origin_State>", "Province/State"},
    {"IPTC - Origin", "IPTC - Origin", "Country", "<IPTC_Origin_Country>", "Country/PrimaryLocationName"},
    {"IPTC - Origin", "IPTC - Origin", "Country Code", "<IPTC_Origin_Country_Code>", "Country/PrimaryLocationCode"},
    {"IPTC - Origin", "IPTC - Origin", "Credit", "<IPTC_Origin_Credit>", "Credit"},
    {"IPTC - Origin", "IPTC - Origin", "Source", "<IPTC_Origin_Source>", "Source"},
    {"IPTC - Origin", "IPTC - Origin", "Headline", "<IPTC_Origin_Headline>", "Headline"},
    {"IPTC - Origin", "IPTC - Origin", "Instructions", "<IPTC_Origin_Instructions>", "SpecialInstructions"},
    {"IPTC - Origin", "IPTC - Origin", "Transmission Ref", "<IPTC_Origin_Transmission_Ref>",
     "OriginalTransmissionReference"},
    {"IPTC - Image", "IPTC - Image", "Rights Usage Terms", "<IPTC_Image_Rights_Usage_Terms>", "UsageTerms"},
    {"IPTC - Image", "IPTC - Image", "Intellectual Genre", "<IPTC_Image_Intellectual_Genre>",
     "ObjectAttributeReference"},
    {"IPTC - Image", "IPTC - Image", "Scene", "<IPTC_Image_Scene>", "Scene"},
    {"IPTC - Image", "IPTC - Image", "Subject Code", "<IPTC_Image_Subject_Code>", "SubjectReference"},
};

// The tokens whose values the photo action computes; they are never looked up here.
bool isComputedToken(const QString& tagCode)
{
    for (const char* group : {photogroup::Exif, photogroup::FileInfo, photogroup::Sequences}) {
        if (containsGroupToken(tagCode, group))
            return true;
    }
    return false;
}

}  // namespace

bool containsGroupToken(const QString& text, const char* group)
{
    return text.contains(QLatin1String(group) + QLatin1Char('_'), Qt::CaseInsensitive);
}

void MetaDataCatalogue::InitializeMetaDataList()
{
    if (!m_categories.isEmpty())
        return;
    for (const FieldRow& row : kFields) {
        const QString category = QString::fromLatin1(row.category);
        if (m_categories.isEmpty() || m_categories.last().name != category)
            m_categories.append({category, {}});
        m_categories.last().fields.append(MetaDataField(QString::fromLatin1(row.prefix), QString::fromLatin1(row.label),
                                                        QString::fromLatin1(row.tagCode),
                                                        QString::fromLatin1(row.metadataCode)));
    }
}

QString MetaDataCatalogue::getTagValue(const QString& tagCode) const
{
    for (const MetaDataCategory& category : m_categories) {
        for (auto field = category.fields.crbegin(); field != category.fields.crend(); ++field) {
            if (field->tagCode() == tagCode)
                return field->metadataValue();
        }
    }
    return QString();
}

std::optional<MetaDataField> MetaDataCatalogue::fieldForTag(const QString& tagCode) const
{
    for (const MetaDataCategory& category : m_categories) {
        for (const MetaDataField& field : category.fields) {
            if (field.tagCode() == tagCode)
                return field;
        }
    }
    return std::nullopt;
}

QList<MetaDataField> MetaDataCatalogue::fieldsForTags(const QStringList& tagCodes) const
{
    QList<MetaDataField> fields;
    for (const QString& tagCode : tagCodes)
        fields.append(fieldForTag(tagCode).value_or(MetaDataField(QString(), tagCode, tagCode, QString())));
    return fields;
}

void MetaDataCatalogue::resetMetaDataList(const QVariantMap* iptc, QString* mask, const IptcContext& context,
                                          const QString& colonReplace)
{
    for (MetaDataCategory& category : m_categories) {
        for (MetaDataField& field : category.fields) {
            field.setMetadataValue(QString());
            if (isComputedToken(field.tagCode()))
                continue;
            field.setMetadataValue(resolveIptcValue(iptc, field.metadataCode(), context));
            if (!mask)
                continue;
            QString value = field.metadataValue();
            if (!colonReplace.isEmpty())
                value.replace(QLatin1Char(':'), colonReplace);
            mask->replace(field.tagCode(), value);
        }
    }
}

}  // namespace tavrin
