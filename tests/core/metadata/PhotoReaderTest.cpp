#include "core/metadata/ImageMetadataReader.h"
#include "core/metadata/PhotoFiles.h"
#include "support/TempTree.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace tavrin;
using test::PhotoTags;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

const PhotoTags kTagged {
    .exif = { { q("Exif.Photo.DateTimeOriginal"), q("2010:05:01 10:20:30") }, { q("Exif.Image.Make"), q("Canon") },
        { q("Exif.Image.Model"), q("EOS 5D") }, { q("Exif.Photo.UserComment"), q("charset=Ascii At the lake") } },
    .iptc = { { q("Iptc.Application2.Keywords"), { q("sea"), q("boat") } },
        { q("Iptc.Application2.City"), { q("Brest") } }, { q("Iptc.Application2.Urgency"), { q("2") } } },
    .xmp = { { q("Xmp.iptc.Scene"), { q("010100"), q("011900") } },
        { q("Xmp.iptc.SubjectCode"), { q("15000000") } },
        { q("Xmp.iptc.CreatorContactInfo/Iptc4xmpCore:CiAdrCity"), { q("Lyon") } },
        { q("Xmp.xmpRights.UsageTerms"), { q("No reuse") } } },
};

TEST(ImageMetadataReader, DeliversTheDictionariesUnderThePlatformKeys)
{
    test::TempTree tree;
    const ImageProperties image = ImageMetadataReader::read(test::writeTaggedPhoto(tree, q("a.jpg"), kTagged));
    EXPECT_EQ(image.pixelWidth, q("8"));
    EXPECT_EQ(image.pixelHeight, q("6"));
    ASSERT_TRUE(image.exif && image.tiff && image.iptc);
    EXPECT_EQ(image.exif->value(q("DateTimeOriginal")), q("2010:05:01 10:20:30"));
    EXPECT_EQ(image.exif->value(q("UserComment")), q("At the lake"));
    EXPECT_EQ(image.tiff->value(q("Make")), q("Canon"));
    EXPECT_EQ(image.tiff->value(q("Model")), q("EOS 5D"));
    const QVariantMap& iptc = *image.iptc;
    EXPECT_EQ(iptc.value(q("Keywords")), QStringList({ "sea", "boat" }));
    EXPECT_EQ(iptc.value(q("City")), q("Brest"));
    EXPECT_EQ(iptc.value(q("Urgency")), q("2"));
    EXPECT_EQ(iptc.value(q("Scene")), QStringList({ "010100", "011900" }));
    EXPECT_EQ(iptc.value(q("SubjectReference")), QStringList({ "15000000" }));
    EXPECT_EQ(iptc.value(q("UsageTerms")), q("No reuse"));
    EXPECT_EQ(iptc.value(q("CreatorContactInfo")).toMap().value(q("CiAdrCity")), q("Lyon"));
    EXPECT_FALSE(iptc.contains(q("Headline"))) << "an absent value is absent, not empty";
}

TEST(ImageMetadataReader, AbsentDictionariesStayAbsent)
{
    test::TempTree tree;
    const ImageProperties bare = ImageMetadataReader::read(test::writeTaggedPhoto(tree, q("bare.jpg"), {}));
    EXPECT_FALSE(bare.exif || bare.tiff || bare.iptc);
    EXPECT_EQ(bare.pixelWidth + bare.pixelHeight, q("86"));
    const PhotoTags model { .exif = { { q("Exif.Image.Model"), q("X100") } } };
    const ImageProperties tiff
        = ImageMetadataReader::read(test::writeTaggedPhoto(tree, q("a.tif"), model, test::PhotoFormat::Tiff));
    EXPECT_EQ(tiff.tiff.value_or(QVariantMap()), QVariantMap({ { q("Model"), q("X100") } }));
    EXPECT_FALSE(tiff.iptc.has_value());
}

TEST(ImageMetadataReader, DamagedOrForeignFilesGiveNothing)
{
    test::TempTree tree;
    const QByteArray whole = [&] {
        QFile file(test::writeTaggedPhoto(tree, q("whole.jpg"), kTagged));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }();
    ASSERT_GT(whole.size(), 200);
    QByteArray scrambled = whole;
    for (qsizetype index = 20; index < scrambled.size(); index += 7)
        scrambled[index] = char(scrambled[index] ^ 0x5A);
    const struct {
        const char* name;
        QString path;
    } rows[] = {
        { "truncated in its metadata", tree.file(q("cut.jpg"), whole.left(120)) },
        { "scrambled", tree.file(q("scrambled.jpg"), scrambled) },
        { "only the JPEG marker", tree.file(q("marker.jpg"), QByteArray::fromHex("FFD8FFE1FFFF")) },
        { "text", tree.file(q("notes.jpg"), "not an image\n") },
        { "empty", tree.file(q("empty.jpg")) },
        { "a folder", tree.folder(q("folder.jpg")) },
        { "missing", tree.path(q("missing.jpg")) },
    };
    for (const auto& row : rows) {
        const ImageProperties image = ImageMetadataReader::read(row.path);
        const bool hasDate = image.exif && image.exif->contains(q("DateTimeOriginal"));
        EXPECT_FALSE(hasDate) << row.name;
        EXPECT_FALSE(image.iptc && image.iptc->contains(q("City"))) << row.name;
    }
}

} // namespace
