#pragma once

#include <QString>
#include <QVariantMap>
#include <optional>

namespace tavrin {

// The image properties photo names are made of, with the key names of the original
// platform's image I/O: the "{Exif}" dictionary ("DateTimeOriginal", "UserComment",
// "PixelXDimension", "PixelYDimension"), the "{TIFF}" one ("Make", "Model") and the "{IPTC}"
// one (texts, lists of texts for repeated values, and the "CreatorContactInfo" dictionary).
// A dictionary the image lacks is absent, and so is a value it lacks.
struct ImageProperties {
    std::optional<QVariantMap> exif;
    std::optional<QVariantMap> tiff;
    std::optional<QVariantMap> iptc;
    QString pixelWidth;   // empty when unknown
    QString pixelHeight;  // empty when unknown
};

// The image library's keys of the dictionaries above.
namespace imagekeys {
inline constexpr char DateTimeOriginal[] = "DateTimeOriginal";
inline constexpr char UserComment[] = "UserComment";
inline constexpr char PixelXDimension[] = "PixelXDimension";
inline constexpr char PixelYDimension[] = "PixelYDimension";
inline constexpr char Make[] = "Make";
inline constexpr char Model[] = "Model";
}  // namespace imagekeys

// Reads the properties of image files (JPEG, TIFF, PNG, WebP and the raw formats the image
// library knows). Only regular files are opened; a file that is no image, or is damaged,
// gives absent values. The library's own messages go to the "tavrin.metadata.image" logging
// category.
class ImageMetadataReader {
public:
    static ImageProperties read(const QString& path);
};

}  // namespace tavrin
