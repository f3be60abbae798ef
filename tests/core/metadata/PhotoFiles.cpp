#include "core/metadata/PhotoFiles.h"

#include "support/TempTree.h"

#include <QFile>
#include <QImage>
#include <QtEndian>

#include <exiv2/exiv2.hpp>

#include <gtest/gtest.h>

namespace tavrin::test {

namespace {

QByteArray littleEndian(quint32 value, int bytes)
{
    QByteArray data(4, '\0');
    qToLittleEndian(value, data.data());
    return data.left(bytes);
}

// An uncompressed 8 x 6 grey TIFF: the header, one directory of eight entries, the pixels.
QByteArray greyTiff()
{
    constexpr quint32 kPixelsAt = 8 + 2 + 8 * 12 + 4;
    const struct {
        quint16 tag;
        quint16 type; // 3 short, 4 long
        quint32 value;
    } entries[] = { { 256, 3, 8 }, { 257, 3, 6 }, { 258, 3, 8 }, { 259, 3, 1 }, { 262, 3, 1 },
        { 273, 4, kPixelsAt }, { 278, 3, 6 }, { 279, 4, 48 } };
    QByteArray tiff = QByteArray("II") + littleEndian(42, 2) + littleEndian(8, 4) + littleEndian(8, 2);
    for (const auto& entry : entries) {
        tiff += littleEndian(entry.tag, 2) + littleEndian(entry.type, 2) + littleEndian(1, 4)
            + littleEndian(entry.value, 4);
    }
    return tiff + littleEndian(0, 4) + QByteArray(48, char(0x80));
}

void tag(Exiv2::Image& image, const PhotoTags& tags)
{
    Exiv2::ExifData exif;
    for (auto entry = tags.exif.cbegin(); entry != tags.exif.cend(); ++entry)
        exif[entry.key().toStdString()] = entry.value().toStdString();
    image.setExifData(exif);
    Exiv2::IptcData iptc;
    for (auto entry = tags.iptc.cbegin(); entry != tags.iptc.cend(); ++entry) {
        for (const QString& text : entry.value()) {
            Exiv2::Iptcdatum datum { Exiv2::IptcKey(entry.key().toStdString()) };
            datum.setValue(text.toStdString());
            iptc.add(datum);
        }
    }
    image.setIptcData(iptc);
    if (!tags.xmpPacket.isEmpty()) {
        image.setXmpPacket(tags.xmpPacket.toStdString());
        image.writeXmpFromPacket(true);
    } else {
        Exiv2::XmpData xmp;
        for (auto entry = tags.xmp.cbegin(); entry != tags.xmp.cend(); ++entry) {
            const Exiv2::XmpKey key(entry.key().toStdString());
            if (entry.value().size() == 1 && !entry.key().endsWith(QLatin1String("Scene"))
                && !entry.key().endsWith(QLatin1String("SubjectCode"))) {
                xmp[key.key()] = entry.value().first().toStdString();
                continue;
            }
            Exiv2::XmpArrayValue bag(Exiv2::xmpBag);
            for (const QString& text : entry.value())
                bag.read(text.toStdString());
            xmp.add(key, &bag);
        }
        image.setXmpData(xmp);
    }
    image.writeMetadata();
}

} // namespace

QString writeTaggedPhoto(TempTree& tree, const QString& relative, const PhotoTags& tags, PhotoFormat format)
{
    const QString path = tree.file(relative, format == PhotoFormat::Tiff ? greyTiff() : QByteArray());
    if (format == PhotoFormat::Jpeg) {
        QImage pixels(8, 6, QImage::Format_RGB32);
        pixels.fill(Qt::darkCyan);
        EXPECT_TRUE(pixels.save(path, "JPG")) << qPrintable(path);
    }
    try {
        const auto image = Exiv2::ImageFactory::open(path.toStdString());
        image->readMetadata();
        tag(*image, tags);
    } catch (const Exiv2::AnyError& e) {
        ADD_FAILURE() << "tagging " << qPrintable(path) << ": " << e.what();
    }
    return path;
}

QString xmpPacket(const QString& elements)
{
    return QStringLiteral("<?xpacket begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>"
                          "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
                          "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
                          "<rdf:Description rdf:about=\"\" xmlns:xmpRights=\"http://ns.adobe.com/xap/1.0/rights/\" "
                          "xmlns:photoshop=\"http://ns.adobe.com/photoshop/1.0/\">")
        + elements + QStringLiteral("</rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end=\"w\"?>");
}

} // namespace tavrin::test
