#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace tavrin::test {

class TempTree;

// Metadata written into a test image, by the image library's keys: "Exif.Photo.DateTimeOriginal",
// "Iptc.Application2.Keywords" (each text one repetition), "Xmp.iptc.Scene" (each text one
// item of the bag). A raw XMP packet, when given, replaces the XMP properties.
struct PhotoTags {
    QMap<QString, QString> exif {};
    QMap<QString, QStringList> iptc {};
    QMap<QString, QStringList> xmp {};
    QString xmpPacket {};
};

enum class PhotoFormat {
    Jpeg,  // 8 x 6 pixels, written by Qt
    Tiff,  // 8 x 6 grey pixels, uncompressed
};

// A photo at `relative` in the tree, tagged through the image library; answers its path.
QString writeTaggedPhoto(TempTree& tree, const QString& relative, const PhotoTags& tags,
    PhotoFormat format = PhotoFormat::Jpeg);

// An XMP packet whose description holds the given elements ("<xmpRights:Marked>True</...>").
QString xmpPacket(const QString& elements);

} // namespace tavrin::test
