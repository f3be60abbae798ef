#pragma once

#include "core/list/FileSystemItem.h"

#include <QString>
#include <QStringList>

namespace tavrin {

class MetaDataCatalogue;
class OptionValues;

// The photo tab. Texts are kept as typed; a typed "/" stands for ":".
struct PhotoOptions {
    QString mask {};
    bool isSeparator = false;
    QString separator {};
    bool isColonReplace = false;
    QString colonReplace {};
    // Date and time patterns in pieces: a part is a Unicode date pattern or "None", a
    // separator follows part 1 and part 2 (also beside a "None").
    QString datePart1 {};
    QString dateSeparator1 {};
    QString datePart2 {};
    QString dateSeparator2 {};
    QString datePart3 {};
    QString timePart1 {};
    QString timeSeparator1 {};
    QString timePart2 {};
    QString timeSeparator2 {};
    QString timePart3 {};
    QString paddingMask {};
    // The tokens of the chosen fields, in order; separator mode joins their values.
    QStringList tags {};
    // "." and the extension in upper case (".JPG"); other files keep their name.
    QStringList allowedExtensions {};

    static PhotoOptions from(const OptionValues& values);

    // The pattern the date (time) parts make; "MM/dd/yyyy" ("hh mm ss a") when they make none.
    QString datePattern() const;
    QString timePattern() const;
};

// Names a photo from its metadata. With the separator on (and not empty) the values of the
// listed tokens are joined by it, an empty value adding nothing; otherwise every token of
// the mask is replaced by its value and any other text, unknown tokens included, stays. The
// date and time come from the EXIF original date, make, model, size and comment from EXIF,
// the IPTC fields through the catalogue (whose values are left as this image's); the number
// is `numberSequence` fitted to the padding mask. The image is read only for a mask with
// "EXIF_" or "IPTC_" tokens, the file as text only for "IPTC_" ones. A file whose extension
// is not allowed, or an empty mask, keeps the name it had (or the one an earlier rule step
// proposed) and leaves the number alone; any other file takes the next number, and keeps
// its name when the mask gives nothing. A ":" in a value is replaced when asked, and a "/"
// in a value is kept as ":". Answers true when `error` (which the caller empties) is still
// empty afterwards.
bool renameByPhotoEXIFTags(FileSystemItem& item, const PhotoOptions& options, MetaDataCatalogue& catalogue,
                           int& numberSequence, QString& error);

}  // namespace tavrin
