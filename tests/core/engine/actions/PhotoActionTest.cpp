#include "ActionTestSupport.h"
#include "core/engine/actions/photo.h"
#include "core/formats/KeyedArchive.h"
#include "core/metadata/MetaDataCatalogue.h"
#include "core/metadata/PhotoFiles.h"
#include "core/profiles/SettingsRecord.h"

#include <gtest/gtest.h>

using namespace tavrin;
using test::PhotoTags;
using test::q;

namespace {

const QStringList kPhotoExtensions { ".JPG", ".JPEG", ".EXIF", ".TIF", ".TIFF" };

// The date mask of the photo tab's example: 2010-05-01_001.
PhotoOptions dateAndNumber()
{
    return { .mask = "<EXIF_Date>_<SEQUENCES_Number_Sequence>", .datePart1 = "yyyy", .dateSeparator1 = "-",
        .datePart2 = "MM", .dateSeparator2 = "-", .datePart3 = "dd", .timePart1 = "HH", .timeSeparator1 = ":",
        .timePart2 = "mm", .timePart3 = "None", .paddingMask = "000", .allowedExtensions = kPhotoExtensions };
}

PhotoOptions masked(const QString& mask)
{
    PhotoOptions options = dateAndNumber();
    options.mask = mask;
    return options;
}

PhotoOptions joined(const QStringList& tags, const QString& separator)
{
    PhotoOptions options = masked(tags.join(separator));
    options.isSeparator = true;
    options.separator = separator;
    options.tags = tags;
    return options;
}

PhotoOptions withColonsReplaced(PhotoOptions options, const QString& replacement)
{
    options.isColonReplace = true;
    options.colonReplace = replacement;
    return options;
}

const PhotoTags kMayDay { .exif = { { q("Exif.Photo.DateTimeOriginal"), q("2010:05:01 10:20:30") },
                              { q("Exif.Image.Make"), q("  Canon ") }, { q("Exif.Image.Model"), q("EOS 5D") } },
    .iptc = { { q("Iptc.Application2.City"), { q("Brest") } },
        { q("Iptc.Application2.Keywords"), { q("sea"), q("a/b") } } } };
const PhotoTags kNoDate { .exif = { { q("Exif.Image.Model"), q("X100") } } };

struct Row {
    const char* name;
    const char* onDisk;
    PhotoTags tags;
    PhotoOptions options;
    const char* expected;
    int numberAfter;
    int numberBefore = 1;
};

class PhotoAction : public ::testing::Test {
protected:
    PhotoAction() { catalogue.InitializeMetaDataList(); }

    FileSystemItem photo(const char* onDisk, const PhotoTags& tags)
    {
        const QString relative = QStringLiteral("row%1/").arg(++m_rows) + q(onDisk);
        const test::PhotoFormat format = relative.endsWith(QLatin1String(".tif"))
            ? test::PhotoFormat::Tiff
            : test::PhotoFormat::Jpeg;
        return FileSystemItem::initWithPath(test::writeTaggedPhoto(tree, relative, tags, format)).value();
    }

    void expectRows(std::initializer_list<Row> rows)
    {
        for (const Row& row : rows) {
            SCOPED_TRACE(row.name);
            FileSystemItem record = photo(row.onDisk, row.tags);
            int number = row.numberBefore;
            QString error;
            EXPECT_TRUE(renameByPhotoEXIFTags(record, row.options, catalogue, number, error));
            EXPECT_EQ(error, QString());
            EXPECT_EQ(record.newFilename(), q(row.expected));
            EXPECT_EQ(number, row.numberAfter);
        }
    }

    test::TempTree tree;
    MetaDataCatalogue catalogue;

private:
    int m_rows = 0;
};

TEST_F(PhotoAction, FillsTheMaskAndCountsEligibleFilesOnly)
{
    expectRows({
        { "first photo", "IMG_1.JPG", kMayDay, dateAndNumber(), "2010-05-01_001.JPG", 2 },
        { "next photo", "IMG_2.JPG", kMayDay, dateAndNumber(), "2010-05-01_002.JPG", 3, 2 },
        { "lower-case extension", "a.jpg", kMayDay, dateAndNumber(), "2010-05-01_001.jpg", 2 },
        { "a TIFF", "a.tif", kMayDay, dateAndNumber(), "2010-05-01_001.tif", 2 },
        { "a PNG keeps its name and the number", "a.png", kMayDay, dateAndNumber(), "a.png", 1 },
        { "an empty mask changes nothing", "a.jpg", kMayDay, masked(""), "a.jpg", 1 },
        { "no date: only the number", "a.jpg", kNoDate, dateAndNumber(), "_001.jpg", 2 },
        { "a number longer than its mask", "a.jpg", kMayDay, dateAndNumber(), "2010-05-01_1234.jpg", 1235, 1234 },
        { "an unknown token stays", "a.jpg", kMayDay, masked("<EXIF_Lens> <EXIF_Device_Model>"),
            "<EXIF_Lens> EOS 5D.jpg", 2 },
        { "name, size, make and IPTC", "a.jpg", kMayDay,
            masked("<FILEINFO_Filename> <EXIF_Dimensions> <EXIF_Device_Make> <IPTC_Origin_City> <IPTC_Keywords>"),
            "a 8x6 Canon Brest sea,a:b.jpg", 2 },
        { "no token with a value: the name stays", "a.jpg", kNoDate, masked("<EXIF_Date><EXIF_Device_Make>"),
            "a.jpg", 2 },
    });
}

TEST_F(PhotoAction, SeparatorModeSkipsMissingValues)
{
    const QStringList dateMakeModel { "<EXIF_Date>", "<EXIF_Device_Make>", "<EXIF_Device_Model>" };
    PhotoTags noMake = kMayDay;
    noMake.exif.remove(q("Exif.Image.Make"));
    expectRows({
        { "make missing: one blank", "a.jpg", noMake, joined(dateMakeModel, " "), "2010-05-01 EOS 5D.jpg", 2 },
        { "no date: no leading separator", "a.jpg", kNoDate, joined(dateMakeModel, "_"), "X100.jpg", 2 },
        { "IPTC and number tokens", "a.jpg", kMayDay,
            joined({ "<IPTC_Origin_City>", "<IPTC_Origin_Headline>", "<SEQUENCES_Number_Sequence>" }, "-"),
            "Brest-001.jpg", 2 },
        { "a typed slash separator is kept as a colon", "a.jpg", kMayDay,
            joined({ "<EXIF_Device_Model>", "<IPTC_Origin_City>" }, "/"), "EOS 5D:Brest.jpg", 2 },
    });
}

TEST_F(PhotoAction, PatternsAndColonsFollowTheOptions)
{
    PhotoOptions slashDate = dateAndNumber();
    slashDate.dateSeparator1 = slashDate.dateSeparator2 = "/";
    slashDate.mask = "<EXIF_Date>";
    PhotoOptions defaults = masked("<EXIF_Date> <EXIF_Time>");
    defaults.datePart1 = defaults.datePart2 = defaults.datePart3 = "None";
    defaults.dateSeparator1 = defaults.dateSeparator2 = "";
    defaults.timePart1 = defaults.timePart2 = defaults.timePart3 = "None";
    defaults.timeSeparator1 = "";
    PhotoOptions noneBeside = masked("<EXIF_Date>");
    noneBeside.datePart2 = "None";
    PhotoTags timeInIptc = kMayDay;
    timeInIptc.iptc.insert(q("Iptc.Application2.TimeCreated"), { q("10:20:00") });
    expectRows({
        { "a slash date separator becomes a colon", "a.jpg", kMayDay, slashDate, "2010:05:01.jpg", 2 },
        { "the default patterns keep their slashes as colons", "a.jpg", kMayDay, defaults,
            "05:01:2010 10 20 30 AM.jpg", 2 },
        { "a separator stays beside a None part", "a.jpg", kMayDay, noneBeside, "2010--01.jpg", 2 },
        { "time with colons replaced", "a.jpg", kMayDay, withColonsReplaced(masked("<EXIF_Time>"), "-"),
            "10-20.jpg", 2 },
        { "time with colons kept", "a.jpg", kMayDay, masked("<EXIF_Time>"), "10:20.jpg", 2 },
        { "IPTC values replaced too", "a.jpg", timeInIptc,
            withColonsReplaced(masked("<IPTC_Origin_Time_Created>"), "."), "10.20.00+00.00.jpg", 2 },
    });
}

TEST_F(PhotoAction, XmpTextFeedsTheCopyrightAndCreationFields)
{
    PhotoTags xmp;
    xmp.xmpPacket = test::xmpPacket(q("<xmpRights:Marked>True</xmpRights:Marked>"
                                      "<photoshop:DateCreated>2021-03-05</photoshop:DateCreated>"));
    xmp.iptc.insert(q("Iptc.Application2.City"), { q("Nice") });
    expectRows({
        { "status and raw date", "a.jpg", xmp,
            masked("<IPTC_Description_Copyright_Status> <IPTC_Origin_Date_Created>"), "Copyrighted 2021-03-05.jpg", 2 },
    });
}

TEST_F(PhotoAction, ADamagedPhotoKeepsItsName)
{
    const QString path = tree.file(q("broken.jpg"), QByteArray::fromHex("FFD8FFE1FFFF") + "Exif");
    FileSystemItem record = FileSystemItem::initWithPath(path).value();
    int number = 1;
    QString error;
    EXPECT_TRUE(renameByPhotoEXIFTags(record, masked("<EXIF_Date><IPTC_Origin_City>"), catalogue, number, error));
    EXPECT_EQ(record.newFilename(), q("broken.jpg"));
    EXPECT_EQ(number, 2);
}

TEST(PhotoOptionsFrom, EveryOptionIsReadByKey)
{
    Settings settings;
    settings.setPhotoMetaDataList({ "<EXIF_Date>", "<EXIF_Time>" });
    settings.setIsPhotoRenamingColonReplace(true);
    settings.setPhotoRenamingColonReplace(q("-"));
    settings.setPhotoPaddingMask(q("00"));
    settings.setPhotoExtensions({ ".JPG" });
    settings.resetPhotoMask();
    const auto options = test::optionsFrom<PhotoOptions>(settings);
    EXPECT_EQ(options.mask, q("<EXIF_Date><EXIF_Time>"));
    EXPECT_EQ(options.tags, settings.photoMetaDataList());
    EXPECT_EQ(options.colonReplace + options.paddingMask + options.allowedExtensions.join(','), q("-00.JPG"));
    EXPECT_EQ(options.datePattern() + options.timePattern(), q("ddMMyyyyHHmmss"));
}

TEST(PhotoFieldList, IsKeptInTheRecordAsArchivedFields)
{
    Settings settings;
    settings.setPhotoMetaDataList({ "<EXIF_Date>", "<IPTC_Keywords>" });
    const QVariantMap record = getCurrentSettings(settings);
    const auto fields = unarchiveMetaDataFields(record.value(q("photoMetaDataList")).toByteArray());
    ASSERT_TRUE(fields.has_value());
    ASSERT_EQ(fields->size(), 2);
    EXPECT_EQ(fields->at(1).label(), q("Keywords"));
    EXPECT_EQ(fields->at(1).metadataCode(), q("Keywords"));

    Settings loaded;
    ASSERT_TRUE(setSettings(loaded, record));
    EXPECT_EQ(loaded.photoMetaDataList(), settings.photoMetaDataList());
    const QVariantMap tokens { { q("photoMetaDataList"), keyedArchive(QStringList { q("<EXIF_Time>") }) } };
    ASSERT_TRUE(setSettings(loaded, tokens)) << "a list of tokens, as earlier versions kept it";
    EXPECT_EQ(loaded.photoMetaDataList(), QStringList({ "<EXIF_Time>" }));
}

} // namespace
