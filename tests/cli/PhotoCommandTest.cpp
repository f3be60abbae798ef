#include "CliRunner.h"
#include "core/metadata/PhotoFiles.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace tavrin;
using test::CliRun;
using test::PhotoTags;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

PhotoTags takenOn(const char* exifDate)
{
    return { .exif = { { q("Exif.Photo.DateTimeOriginal"), q(exifDate) }, { q("Exif.Image.Model"), q("X100") } } };
}

// Photos of two days in two folders, and a note.
class PhotoCommandTest : public test::CliTest {
protected:
    PhotoCommandTest()
    {
        test::writeTaggedPhoto(tree, q("photos/IMG_1.JPG"), takenOn("2010:05:01 10:20:30"));
        test::writeTaggedPhoto(tree, q("photos/IMG_2.jpg"), takenOn("2010:05:02 08:00:00"));
        test::writeTaggedPhoto(tree, q("photos/trip/IMG_3.jpg"), takenOn("2011:07:14 12:00:00"));
        tree.file(q("photos/notes.txt"), "not a photo\n");
    }

    CliRun run(const char* command, const QStringList& options)
    {
        return CliTest::run(QStringList { q(command) } + test::args("--recursive --tab photo") + options
            + QStringList { tree.path(q("photos")) });
    }
};

// The date of the photo, an underscore and its number.
const QStringList kDateAndNumber
    = test::args("--set photoMetaDataList=<EXIF_Date>,<SEQUENCES_Number_Sequence> --set isPhotoRenamingSeperator=1 "
                 "--set photoRenamingSeperator=_ --set photoPaddingMask=000 --set photoDatePart1=yyyy "
                 "--set photoDateSeperator1=- --set photoDatePart2=MM --set photoDateSeperator2=- "
                 "--set photoDatePart3=dd");

TEST_F(PhotoCommandTest, AFolderOfPhotosPreviewsAndAppliesByDateAndNumber)
{
    const CliRun preview = run("preview", kDateAndNumber);
    EXPECT_EQ(preview.exitCode, 0) << preview.err.toStdString();
    EXPECT_EQ(preview.out,
        q("IMG_1.JPG\t2010-05-01_001.JPG\nIMG_2.jpg\t2010-05-02_002.jpg\nnotes.txt\tNo Changes\n"
          "IMG_3.jpg\t2011-07-14_003.jpg\nNew names: 3, No Changes: 1\n"));

    const CliRun apply = run("apply", kDateAndNumber + test::args("--set isPhotoResetSequenceOnEachFolder=1 --yes"));
    ASSERT_EQ(apply.exitCode, 0) << apply.err.toStdString();
    EXPECT_EQ(QDir(tree.path(q("photos"))).entryList(QDir::Files, QDir::Name),
        QStringList({ q("2010-05-01_001.JPG"), q("2010-05-02_002.jpg"), q("notes.txt") }));
    EXPECT_TRUE(tree.exists(q("photos/trip/2011-07-14_001.jpg"))) << "the number restarts in each folder";
}

TEST_F(PhotoCommandTest, ListsAndTheMaskAreSetByKey)
{
    const struct {
        const char* name;
        QStringList options;
        const char* firstLine;
    } rows[] = {
        { "the mask follows the list", test::args("--set photoMetaDataList=<EXIF_Device_Model>,<FILEINFO_Filename>"),
            "IMG_1.JPG\tX100IMG_1.JPG" },
        { "a mask set after the list",
            test::args("--set photoMetaDataList=<EXIF_Date> --set") << q("photoRenamingMask=<EXIF_Device_Model> #<SEQUENCES_Number_Sequence>"),
            "IMG_1.JPG\tX100 #1.JPG" },
        { "extensions that leave out JPEG", kDateAndNumber + test::args("--set photoExtensions=.TIF,.PNG"),
            "IMG_1.JPG\tNo Changes" },
    };
    for (const auto& row : rows) {
        const CliRun preview = run("preview", row.options);
        EXPECT_EQ(preview.exitCode, 0) << row.name << preview.err.toStdString();
        EXPECT_EQ(preview.out.section(QLatin1Char('\n'), 0, 0), q(row.firstLine)) << row.name;
    }
}

TEST_F(PhotoCommandTest, AnEmptyMaskIsRefused)
{
    const CliRun empty = run("preview", {});
    EXPECT_EQ(empty.exitCode, 2);
    EXPECT_EQ(empty.err, q("Empty Photo Mask: Choose at least one photo detail for the new names.\n"));
    EXPECT_TRUE(empty.out.isEmpty());
}

} // namespace
