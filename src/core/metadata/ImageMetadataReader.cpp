#include "core/metadata/ImageMetadataReader.h"

#include <QFile>
#include <QLoggingCategory>
#include <QStringList>

#include <exiv2/exiv2.hpp>

#include <exception>
#include <mutex>
#include <sys/stat.h>

Q_LOGGING_CATEGORY(lcImageMetadata, "tavrin.metadata.image")

namespace tavrin {

namespace {

// How an IPTC value is delivered: one text, every repetition as a list, or the XMP
// element's items as a list.
enum class Shape { Text, List };

struct IptcSource {
    const char* key;      // the image I/O name
    const char* dataset;  // the IPTC dataset, or null
    const char* xmp;      // the XMP property read when the dataset is absent, or null
    Shape shape;
};

const IptcSource kIptcSources[] = {
    {"ObjectName", "Iptc.Application2.ObjectName", nullptr, Shape::Text},
    {"Byline", "Iptc.Application2.Byline", nullptr, Shape::Text},
    {"BylineTitle", "Iptc.Application2.BylineTitle", nullptr, Shape::Text},
    {"Caption/Abstract", "Iptc.Application2.Caption", nullptr, Shape::Text},
    {"Writer/Editor", "Iptc.Application2.Writer", nullptr, Shape::Text},
    {"CopyrightNotice", "Iptc.Application2.Copyright", nullptr, Shape::Text},
    {"Urgency", "Iptc.Application2.Urgency", nullptr, Shape::Text},
    {"Keywords", "Iptc.Application2.Keywords", nullptr, Shape::List},
    {"SupplementalCategory", "Iptc.Application2.SuppCategory", nullptr, Shape::List},
    {"SubjectReference", "Iptc.Application2.Subject", "Xmp.iptc.SubjectCode", Shape::List},
    {"TimeCreated", "Iptc.Application2.TimeCreated", nullptr, Shape::Text},
    {"City", "Iptc.Application2.City", nullptr, Shape::Text},
    {"SubLocation", "Iptc.Application2.SubLocation", nullptr, Shape::Text},
    {"Province/State", "Iptc.Application2.ProvinceState", nullptr, Shape::Text},
    {"Country/PrimaryLocationName", "Iptc.Application2.CountryName", nullptr, Shape::Text},
    {"Country/PrimaryLocationCode", "Iptc.Application2.CountryCode", nullptr, Shape::Text},
    {"Credit", "Iptc.Application2.Credit", nullptr, Shape::Text},
    {"Source", "Iptc.Application2.Source", nullptr, Shape::Text},
    {"Headline", "Iptc.Application2.Headline", nullptr, Shape::Text},
    {"SpecialInstructions", "Iptc.Application2.SpecialInstructions", nullptr, Shape::Text},
    {"OriginalTransmissionReference", "Iptc.Application2.TransmissionReference", nullptr, Shape::Text},
    {"ObjectAttributeReference", "Iptc.Application2.ObjectAttribute", nullptr, Shape::List},
    {"Scene", nullptr, "Xmp.iptc.Scene", Shape::List},
    {"UsageTerms", nullptr, "Xmp.xmpRights.UsageTerms", Shape::Text},
};

constexpr char kContactInfoKey[] = "CreatorContactInfo";
constexpr char kContactInfoPrefix[] = "Xmp.iptc.CreatorContactInfo/Iptc4xmpCore:";
constexpr const char* kContactInfoParts[] = {"CiAdrExtadr", "CiAdrCity", "CiAdrRegion", "CiAdrPcode",
                                             "CiAdrCtry", "CiTelWork", "CiEmailWork", "CiUrlWork"};

void logToCategory(int level, const char* message)
{
    const QByteArray text = QByteArray(message).trimmed();
    if (level >= Exiv2::LogMsg::warn)
        qCWarning(lcImageMetadata, "%s", text.constData());
    else
        qCDebug(lcImageMetadata, "%s", text.constData());
}

void prepareLibrary()
{
    static std::once_flag once;
    std::call_once(once, [] {
        Exiv2::LogMsg::setHandler(logToCategory);
        // The XMP toolkit must be set up once before threads read XMP.
        Exiv2::XmpParser::initialize();
    });
}

bool isRegularFile(const QByteArray& path)
{
    struct stat status {};
    return ::stat(path.constData(), &status) == 0 && S_ISREG(status.st_mode);
}

// Texts are UTF-8 in practice; ASCII and NUL padding come through unchanged and cut.
QString textOf(const std::string& bytes)
{
    QString text = QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
    const qsizetype end = text.indexOf(QChar(u'\0'));
    return end < 0 ? text : text.left(end);
}

QString textOf(const Exiv2::Value& value)
{
    if (const auto* comment = dynamic_cast<const Exiv2::CommentValue*>(&value))
        return textOf(comment->comment());
    if (const auto* alternatives = dynamic_cast<const Exiv2::LangAltValue*>(&value)) {
        const auto fallback = alternatives->value_.cbegin();
        const std::string text = alternatives->toString(0);
        if (text.empty() && fallback != alternatives->value_.cend())
            return textOf(fallback->second);
        return textOf(text);
    }
    return textOf(value.toString());
}

void insertText(QVariantMap& dictionary, const char* key, const Exiv2::ExifData& data, const char* source)
{
    const auto found = data.findKey(Exiv2::ExifKey(source));
    if (found != data.end())
        dictionary.insert(QLatin1String(key), textOf(found->value()));
}

std::optional<QVariantMap> exifOf(const Exiv2::ExifData& exif)
{
    if (exif.empty())
        return std::nullopt;
    QVariantMap dictionary;
    insertText(dictionary, imagekeys::DateTimeOriginal, exif, "Exif.Photo.DateTimeOriginal");
    insertText(dictionary, imagekeys::UserComment, exif, "Exif.Photo.UserComment");
    insertText(dictionary, imagekeys::PixelXDimension, exif, "Exif.Photo.PixelXDimension");
    insertText(dictionary, imagekeys::PixelYDimension, exif, "Exif.Photo.PixelYDimension");
    return dictionary;
}

std::optional<QVariantMap> tiffOf(const Exiv2::ExifData& exif)
{
    if (exif.empty())
        return std::nullopt;
    QVariantMap dictionary;
    insertText(dictionary, imagekeys::Make, exif, "Exif.Image.Make");
    insertText(dictionary, imagekeys::Model, exif, "Exif.Image.Model");
    return dictionary;
}

QStringList datasetTexts(const Exiv2::IptcData& iptc, const char* dataset)
{
    QStringList texts;
    for (const Exiv2::Iptcdatum& datum : iptc) {
        if (datum.key() == dataset)
            texts.append(textOf(datum.value()));
    }
    return texts;
}

QStringList xmpTexts(const Exiv2::XmpData& xmp, const char* property)
{
    QStringList texts;
    const auto found = xmp.findKey(Exiv2::XmpKey(property));
    if (found == xmp.end())
        return texts;
    const Exiv2::Value& value = found->value();
    if (dynamic_cast<const Exiv2::XmpArrayValue*>(&value)) {
        for (long index = 0; index < value.count(); ++index)
            texts.append(textOf(value.toString(index)));
    } else {
        texts.append(textOf(value));
    }
    return texts;
}

QVariantMap contactInfoOf(const Exiv2::XmpData& xmp)
{
    QVariantMap contact;
    for (const char* part : kContactInfoParts) {
        const QStringList texts = xmpTexts(xmp, (std::string(kContactInfoPrefix) + part).c_str());
        if (!texts.isEmpty())
            contact.insert(QLatin1String(part), texts.first());
    }
    return contact;
}

std::optional<QVariantMap> iptcOf(const Exiv2::IptcData& iptc, const Exiv2::XmpData& xmp)
{
    if (iptc.empty() && xmp.empty())
        return std::nullopt;
    QVariantMap dictionary;
    for (const IptcSource& source : kIptcSources) {
        QStringList texts = source.dataset ? datasetTexts(iptc, source.dataset) : QStringList();
        if (texts.isEmpty() && source.xmp)
            texts = xmpTexts(xmp, source.xmp);
        if (texts.isEmpty())
            continue;
        if (source.shape == Shape::List)
            dictionary.insert(QLatin1String(source.key), texts);
        else
            dictionary.insert(QLatin1String(source.key), texts.first());
    }
    const QVariantMap contact = contactInfoOf(xmp);
    if (!contact.isEmpty())
        dictionary.insert(QLatin1String(kContactInfoKey), contact);
    return dictionary;
}

QString sizeText(int pixels)
{
    return pixels > 0 ? QString::number(pixels) : QString();
}

ImageProperties propertiesOf(const QByteArray& path)
{
    const auto image = Exiv2::ImageFactory::open(path.toStdString());
    if (!image.get() || !image->good())
        return {};
    image->readMetadata();
    ImageProperties properties;
    properties.exif = exifOf(image->exifData());
    properties.tiff = tiffOf(image->exifData());
    properties.iptc = iptcOf(image->iptcData(), image->xmpData());
    properties.pixelWidth = sizeText(image->pixelWidth());
    properties.pixelHeight = sizeText(image->pixelHeight());
    return properties;
}

}  // namespace

ImageProperties ImageMetadataReader::read(const QString& path)
{
    prepareLibrary();
    const QByteArray encoded = QFile::encodeName(path);
    if (!isRegularFile(encoded))
        return {};
    // The library throws its own errors for damaged files, and standard ones (bad_alloc,
    // out_of_range) for some crafted ones: none of them may leave this function.
    try {
        return propertiesOf(encoded);
    } catch (const Exiv2::AnyError& e) {
        qCWarning(lcImageMetadata, "Error in reading image metadata : %s", e.what());
    } catch (const std::exception& e) {
        qCWarning(lcImageMetadata, "Error in reading image metadata : %s", e.what());
    } catch (...) {
        qCWarning(lcImageMetadata, "Error in reading image metadata : unknown failure");
    }
    return {};
}

}  // namespace tavrin
