#pragma once

#include "core/list/FileSystemItem.h"

#include <QString>
#include <QStringList>

namespace tavrin {

class OptionValues;

// The eight tokens of audio renaming masks, in the order of the buttons that insert them
// (tags 1 to 8) and of their substitution in a mask.
namespace id3token {
inline constexpr char Artist[] = "<Artist>";
inline constexpr char Year[] = "<Year>";
inline constexpr char Genre[] = "<Genre>";
inline constexpr char Title[] = "<Title>";
inline constexpr char Album[] = "<Album>";
inline constexpr char Comments[] = "<Comments>";
inline constexpr char TrackNumber[] = "<TrackNumber>";
inline constexpr char Composer[] = "<Composer>";
} // namespace id3token

// The token a button tag inserts (1 artist ... 8 composer); a null string outside 1 to 8.
QString id3TokenForTag(int tag);

// The audio tab. Texts are kept as typed; a typed "/" stands for ":".
struct ID3Options {
    QString mask {};
    bool isSeparator = false;
    QString separator {};
    bool isColonReplace = false;
    QString colonReplace {};
    QStringList tags {};
    // "." and the extension in upper case (".MP3"); other files keep their name.
    QStringList allowedExtensions {};

    static ID3Options from(const OptionValues& values);
};

// Names an audio file from its tags. With the separator on (and not empty) the values of
// the listed tokens are joined by it, an empty value adding nothing; otherwise each token
// of the mask is replaced by its value and the rest of the mask stays as it is. Values are
// trimmed; authors are joined with ","; a comment also loses each pair of blanks inside it
// ("a  b" -> "ab", "a   b" -> "a b"); colons are replaced, when asked, in every value but
// the year and the track number; a "/" in a tag becomes ":" like one typed in a name. A
// file whose extension is not allowed, an empty mask or an empty result keeps the name it
// had (or the one an earlier rule step proposed); the extension always stays. In separator
// mode a token that is none of the eight fails with an error.
// Answers true when `error` (which the caller empties) is still empty afterwards.
bool renameByID3Tags(FileSystemItem& item, const ID3Options& options, QString& error);

} // namespace tavrin
