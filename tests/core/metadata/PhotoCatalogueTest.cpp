#include "core/formats/KeyedArchive.h"
#include "core/metadata/IptcValues.h"
#include "core/metadata/MetaDataCatalogue.h"

#include <QTimeZone>
#include <gtest/gtest.h>

using namespace tavrin;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

MetaDataCatalogue initialized()
{
    MetaDataCatalogue catalogue;
    catalogue.InitializeMetaDataList();
    return catalogue;
}

TEST(MetaDataCatalogue, HoldsTheFieldsInTheirCategoriesWithTheIrregularitiesKept)
{
    const MetaDataCatalogue catalogue = initialized();
    QStringList names;
    int fields = 0;
    for (const MetaDataCategory& category : catalogue.metaDataList()) {
        names.append(category.name);
        fields += int(category.fields.size());
    }
    EXPECT_EQ(names, QStringList({ "File Details", "Numerical Sequences", "EXIF", "IPTC - Description",
                         "IPTC - Keywords", "IPTC - Supplemental Categories", "IPTC - Contact", "IPTC - Origin",
                         "IPTC - Image" }));
    EXPECT_EQ(fields, 43);
    const MetaDataField categories = catalogue.fieldForTag(q("<IPTC_Categories>")).value();
    EXPECT_EQ(categories.prefix(), q("IPTC - Categories"));
    EXPECT_EQ(catalogue.fieldForTag(q("<IPTC_Origin_Date_Created>"))->metadataCode(), q("Date_Created"));
    EXPECT_EQ(catalogue.metaDataList().last().fields.last().tagCode(), q("<IPTC_Image_Subject_Code>"));
}

TEST(MetaDataCatalogue, ReplacesTheIptcTokensOfAMaskAndKeepsTheValues)
{
    MetaDataCatalogue catalogue = initialized();
    const QVariantMap iptc { { q("City"), q("Paris") }, { q("TimeCreated"), q("10:20:00") } };
    QString mask = q("<IPTC_Origin_City>_<IPTC_Origin_Time_Created>_<EXIF_Date>_<IPTC_Keywords>");
    catalogue.resetMetaDataList(&iptc, &mask, {}, q("-"));
    EXPECT_EQ(mask, q("Paris_10-20-00_<EXIF_Date>_"));
    catalogue.InitializeMetaDataList();
    EXPECT_EQ(catalogue.getTagValue(q("<IPTC_Origin_Time_Created>")), q("10:20:00")) << "kept, colons and all";
    EXPECT_EQ(catalogue.getTagValue(q("<IPTC_Lens>")), QString());
    EXPECT_EQ(catalogue.getTagValue(q("<iptc_origin_city>")), QString()) << "tokens match case exactly";
    catalogue.resetMetaDataList(nullptr, nullptr, {}, QString());
    EXPECT_EQ(catalogue.getTagValue(q("<IPTC_Origin_City>")), QString()) << "no dictionary clears the values";
}

TEST(IptcValues, UrgencyNamesItsLevels)
{
    const struct {
        const char* raw;
        const char* text;
    } rows[] = { { "0", "None" }, { "1", "High" }, { "2", "Normal + 3" }, { "5", "Normal" }, { "7", "Normal - 2" },
        { "8", "Low" }, { "9", "9" }, { "12", "12" }, { "-1", "-1" }, { "x", "None" }, { "", "None" } };
    for (const auto& row : rows)
        EXPECT_EQ(getUrgency(q(row.raw)), q(row.text)) << row.raw;
}

TEST(IptcValues, CopyrightStatusAndUrlComeFromTheXmpText)
{
    const struct {
        const char* text;
        const char* status;
        const char* url;
    } rows[] = {
        { "<xmpRights:Marked> true \n</xmpRights:Marked>", "Copyrighted", "" },
        { "<XMPRIGHTS:MARKED>True</xmprights:marked>", "Copyrighted", "" },
        { "<xmpRights:Marked>False</xmpRights:Marked>", "Public Domain", "" },
        { "<xmpRights:Marked></xmpRights:Marked>", "Public Domain", "" },
        { "<xmpRights:Marked>True", "Unknown", "" },
        { "xmpRights:Marked=\"True\"", "Unknown", "" },
        { "<xmpRights:WebStatement> http://a.example/c </xmpRights:WebStatement>", "Unknown", " http://a.example/c " },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(getCopyrightStatus(q(row.text)), q(row.status)) << row.text;
        EXPECT_EQ(getCopyrightInfoURL(q(row.text)), q(row.url)) << row.text;
    }
}

TEST(IptcValues, CodesAreNamedUpToTheFirstUnknownOne)
{
    const struct {
        const char* name;
        QStringList codes;
        QString (*lookup)(const QStringList&);
        const char* text;
    } rows[] = {
        { "scenes", { "010100", "011900" }, getScene, "headshot,action" },
        { "an unknown scene stops the naming", { "010100", "999999", "010200" }, getScene,
            "headshot,999999,010200" },
        { "no scenes", {}, getScene, "" },
        { "subject", { "15000000" }, getSubjectCode, "sport" },
        { "subject reference with the code inside", { "IPTC:16009000:unrest:war" }, getSubjectCode, "war" },
        { "unknown subject", { "04000000", "00000001" }, getSubjectCode, "economy, business and finance,00000001" },
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.lookup(row.codes), q(row.text)) << row.name;
}

TEST(IptcValues, XmpCreationDateIsFormattedWhenItParses)
{
    const QString pattern = q("yyyy.MM.dd HH-mm");
    const QString withOffset = q("<photoshop:DateCreated>2021-03-05T14:30:00+01:00</photoshop:DateCreated>");
    const QDateTime moment(QDate(2021, 3, 5), QTime(14, 30), QTimeZone(3600));
    EXPECT_EQ(getDateCreated(withOffset, pattern), moment.toLocalTime().toString(q("yyyy.MM.dd HH-mm")));
    EXPECT_EQ(getTimeCreated(withOffset, q("yyyy")), q("2021"));
    EXPECT_EQ(getDateCreated(q("<photoshop:DateCreated>2021-03-05</photoshop:DateCreated>"), pattern),
        q("2021-03-05"));
    EXPECT_EQ(getDateCreated(q("no element"), pattern), QString());
}

TEST(IptcValues, AFieldResolvesByItsMetadataCode)
{
    const QVariantMap iptc {
        { q("Keywords"), QStringList { q("sea"), q("boat") } },
        { q("Urgency"), q("1") },
        { q("Scene"), QStringList { q("010300") } },
        { q("CreatorContactInfo"), QVariantMap { { q("CiAdrCity"), q("Lyon") } } },
        { q("Credit"), 7 },
    };
    const IptcContext context { q("<xmpRights:Marked>True</xmpRights:Marked>"), q("yyyy"), q("HH") };
    const struct {
        const char* code;
        const char* value;
        bool withDictionary = true;
    } rows[] = {
        { "Keywords", "sea,boat" },
        { "Urgency", "High" },
        { "Scene", "full-length" },
        { "CreatorContactInfo@CiAdrCity", "Lyon" },
        { "CreatorContactInfo@CiAdrCtry", "" },
        { "CreatorContactInfo", "" },
        { "CreatorContactInfo@CiAdrCity@x", "" },
        { "Credit", "" },
        { "Headline", "" },
        { "CopyrightStatus", "Copyrighted" },
        { "CopyrightStatus", "", false },
        { "Date_Created", "" },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(resolveIptcValue(row.withDictionary ? &iptc : nullptr, q(row.code), context), q(row.value))
            << row.code;
    }
    const QVariantMap noContact { { q("City"), q("Nice") } };
    EXPECT_EQ(resolveIptcValue(&noContact, q("CreatorContactInfo@CiAdrCity"), context), QString());
}

TEST(MetaDataField, ArchivesItsFourKeys)
{
    const MetaDataCatalogue catalogue = initialized();
    QList<MetaDataField> fields = catalogue.fieldsForTags({ q("<EXIF_Date>"), q("<IPTC_Keywords>"), q("<Lens>") });
    fields.first().setMetadataValue(q("never archived"));
    const QByteArray archive = archiveMetaDataFields(fields);
    const auto root = keyedUnarchive(archive, { MetaDataField::ClassName });
    ASSERT_TRUE(root.has_value());
    const auto first = root->toList().value(0).value<ArchivedObject>();
    EXPECT_EQ(first.className, QByteArray("MetaDataField"));
    EXPECT_EQ(first.keys.keys(), QStringList({ "label", "metadataCode", "prefix", "tagCode" }));

    const auto back = unarchiveMetaDataFields(archive);
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(MetaDataField::getTagsList(*back), QStringList({ "<EXIF_Date>", "<IPTC_Keywords>", "<Lens>" }));
    EXPECT_EQ(back->at(1).prefix(), q("IPTC - Keywords"));
    EXPECT_EQ(back->at(0).metadataValue(), QString());
    EXPECT_EQ(back->at(2).label(), q("<Lens>"));
    EXPECT_FALSE(unarchiveMetaDataFields(keyedArchive(QStringList { q("<EXIF_Date>") })).has_value());
    EXPECT_FALSE(keyedUnarchive(archive).has_value()) << "an object class must be asked for";
    EXPECT_TRUE(MetaDataField::getTagsList({}).isEmpty());
}

} // namespace
