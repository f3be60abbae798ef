#include "core/engine/actions/photo.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/workingname.h"
#include "core/metadata/ImageMetadataReader.h"
#include "core/metadata/IptcValues.h"
#include "core/metadata/MetaDataCatalogue.h"
#include "core/platform/InputFile.h"
#include "core/profiles/Settings.h"
#include "core/text/DateHelpers.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <algorithm>
#include <array>
#include <climits>
#include <exception>

namespace tavrin {

namespace {

constexpr char kNoPart[] = "None";
constexpr char kDefaultDatePattern[] = "MM/dd/yyyy";
constexpr char kDefaultTimePattern[] = "hh mm ss a";
// The XMP packet is searched in the file's text; no photo is anywhere near this size.
constexpr qint64 kLargestImageText = qint64(512) * 1024 * 1024;

// What the action computes for one image; all "" when absent.
struct PhotoValues {
    QString date;
    QString time;
    QString make;
    QString model;
    QString dimensions;
    QString comment;
};

PhotoOptions storedTexts(const PhotoOptions& options)
{
    PhotoOptions stored = options;
    for (QString* text : {&stored.mask, &stored.separator, &stored.colonReplace, &stored.dateSeparator1,
                          &stored.dateSeparator2, &stored.timeSeparator1, &stored.timeSeparator2,
                          &stored.paddingMask})
        *text = storedName(*text);
    return stored;
}

QString pattern(const QString& part1, const QString& separator1, const QString& part2, const QString& separator2,
                const QString& part3, const char* fallback)
{
    QString joined;
    for (const QString& piece : {part1, separator1, part2, separator2, part3}) {
        if (piece != QLatin1String(kNoPart))
            joined += piece;
    }
    return joined.isEmpty() ? QString::fromLatin1(fallback) : joined;
}

bool isAllowed(const QString& extension, const PhotoOptions& options)
{
    return options.allowedExtensions.contains(QLatin1Char('.') + extension.toUpper());
}

QString textValue(const std::optional<QVariantMap>& dictionary, const char* key)
{
    return dictionary ? dictionary->value(QLatin1String(key)).toString() : QString();
}

PhotoValues exifValues(const ImageProperties& image, const PhotoOptions& options)
{
    PhotoValues values;
    QString width = image.pixelWidth;
    QString height = image.pixelHeight;
    if (image.exif && (width.isEmpty() || height.isEmpty())) {
        width = textValue(image.exif, imagekeys::PixelXDimension);
        height = textValue(image.exif, imagekeys::PixelYDimension);
    }
    const std::optional<QString> description = stringToFormattedDate(textValue(image.exif, imagekeys::DateTimeOriginal));
    const std::optional<QDateTime> taken = description ? dateFromDescription(*description) : std::nullopt;
    if (taken) {
        values.date = formatDate(*taken, options.datePattern());
        values.time = formatDate(*taken, options.timePattern());
    }
    values.make = textValue(image.tiff, imagekeys::Make).trimmed();
    values.model = textValue(image.tiff, imagekeys::Model).trimmed();
    values.comment = textValue(image.exif, imagekeys::UserComment).trimmed();
    if (!width.isEmpty() && !height.isEmpty())
        values.dimensions = width + QLatin1Char('x') + height;
    if (options.isColonReplace) {
        for (QString* value : {&values.date, &values.time, &values.make, &values.model, &values.dimensions,
                               &values.comment})
            value->replace(QLatin1Char(':'), options.colonReplace);
    }
    return values;
}

// The file's bytes as text, for the XMP elements searched in it.
QString fileText(const QString& path)
{
    return QString::fromLatin1(readInputFile(path, kLargestImageText).value_or(QByteArray()));
}

bool isSeparatorMode(const PhotoOptions& options)
{
    return options.isSeparator && !options.separator.isEmpty();
}

// Reads what the mask needs and fills the catalogue's IPTC values; in mask mode the IPTC
// tokens of `mask` are replaced on the way.
PhotoValues readImage(const QString& path, const PhotoOptions& options, MetaDataCatalogue& catalogue, QString& mask)
{
    const bool wantsIptc = containsGroupToken(mask, photogroup::Iptc);
    if (!wantsIptc && !containsGroupToken(mask, photogroup::Exif)) {
        catalogue.resetMetaDataList(nullptr, nullptr, {}, QString());
        return {};
    }
    const ImageProperties image = ImageMetadataReader::read(path);
    const IptcContext context{wantsIptc ? fileText(path) : QString(), options.datePattern(), options.timePattern()};
    catalogue.resetMetaDataList(wantsIptc && image.iptc ? &*image.iptc : nullptr,
                                wantsIptc && !isSeparatorMode(options) ? &mask : nullptr, context,
                                options.isColonReplace ? options.colonReplace : QString());
    return exifValues(image, options);
}

// The running number padded in front with the start of the mask to the mask's length:
// "0000" and 7 give "0007"; a number as long as the mask or longer stays as it is.
QString paddedNumber(int number, const QString& paddingMask)
{
    const QString digits = QString::number(number);
    if (paddingMask.size() <= digits.size())
        return digits;
    return paddingMask.left(paddingMask.size() - digits.size()) + digits;
}

struct TokenValue {
    const char* token;
    QString value;
};

std::array<TokenValue, 8> tokenValues(const QString& base, const PhotoValues& values, const QString& number)
{
    return {{
        {phototoken::Filename, base},
        {phototoken::Date, values.date},
        {phototoken::Time, values.time},
        {phototoken::DeviceMake, values.make},
        {phototoken::DeviceModel, values.model},
        {phototoken::Dimensions, values.dimensions},
        {phototoken::Comments, values.comment},
        {phototoken::NumberSequence, number},
    }};
}

QString joinedValues(const std::array<TokenValue, 8>& computed, const PhotoOptions& options,
                     const MetaDataCatalogue& catalogue)
{
    QString name;
    for (const QString& token : options.tags) {
        QString value;
        const auto found = std::find_if(computed.cbegin(), computed.cend(),
                                        [&token](const TokenValue& entry) { return token == QLatin1String(entry.token); });
        if (found != computed.cend()) {
            value = found->value;
        } else {
            value = catalogue.getTagValue(token);
            if (options.isColonReplace)
                value.replace(QLatin1Char(':'), options.colonReplace);
        }
        if (!name.isEmpty() && !value.isEmpty())
            name += options.separator;
        name += value;
    }
    return name;
}

QString photoName(const QString& path, const QString& base, const PhotoOptions& options, MetaDataCatalogue& catalogue,
                  int number)
{
    QString mask = options.mask;
    const PhotoValues values = readImage(path, options, catalogue, mask);
    const auto computed = tokenValues(base, values, paddedNumber(number, options.paddingMask));
    if (isSeparatorMode(options))
        return joinedValues(computed, options, catalogue);
    for (const TokenValue& entry : computed)
        mask.replace(QLatin1String(entry.token), entry.value, Qt::CaseSensitive);
    return mask;
}

}  // namespace

PhotoOptions PhotoOptions::from(const OptionValues& values)
{
    PhotoOptions options;
    options.mask = values.text(Settings::photoRenamingMaskKey);
    options.isSeparator = values.boolean(Settings::isPhotoRenamingSeperatorKey);
    options.separator = values.text(Settings::photoRenamingSeperatorKey);
    options.isColonReplace = values.boolean(Settings::isPhotoRenamingColonReplaceKey);
    options.colonReplace = values.text(Settings::photoRenamingColonReplaceKey);
    options.datePart1 = values.text(Settings::photoDatePart1Key);
    options.dateSeparator1 = values.text(Settings::photoDateSeperator1Key);
    options.datePart2 = values.text(Settings::photoDatePart2Key);
    options.dateSeparator2 = values.text(Settings::photoDateSeperator2Key);
    options.datePart3 = values.text(Settings::photoDatePart3Key);
    options.timePart1 = values.text(Settings::photoTimePart1Key);
    options.timeSeparator1 = values.text(Settings::photoTimeSeperator1Key);
    options.timePart2 = values.text(Settings::photoTimePart2Key);
    options.timeSeparator2 = values.text(Settings::photoTimeSeperator2Key);
    options.timePart3 = values.text(Settings::photoTimePart3Key);
    options.paddingMask = values.text(Settings::photoPaddingMaskKey);
    options.tags = values.list(Settings::photoMetaDataListKey);
    options.allowedExtensions = values.list(Settings::photoExtensionsKey);
    return options;
}

QString PhotoOptions::datePattern() const
{
    return pattern(datePart1, dateSeparator1, datePart2, dateSeparator2, datePart3, kDefaultDatePattern);
}

QString PhotoOptions::timePattern() const
{
    return pattern(timePart1, timeSeparator1, timePart2, timeSeparator2, timePart3, kDefaultTimePattern);
}

bool renameByPhotoEXIFTags(FileSystemItem& item, const PhotoOptions& options, MetaDataCatalogue& catalogue,
                           int& numberSequence, QString& error)
{
    try {
        const PhotoOptions stored = storedTexts(options);
        const NameParts parts = workingNameParts(item);
        QString name = parts.name;
        if (!stored.mask.isEmpty() && isAllowed(parts.extension, stored)) {
            name = photoName(item.fullPath(), parts.name, stored, catalogue, numberSequence);
            if (name.isEmpty())
                name = parts.name;
            if (numberSequence < INT_MAX)
                ++numberSequence;
        }
        // A "/" of a value or of a date pattern is kept as the ":" the file system stores.
        item.setObject(withExtension(storedName(name), parts.extension), QLatin1String(itemkeys::NewFilename));
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromUtf8(e.what()));
    }
    return error.isEmpty();
}

}  // namespace tavrin
