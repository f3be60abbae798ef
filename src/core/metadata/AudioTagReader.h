#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace tavrin {

// The tags of one audio file that names are made of. A tag the file lacks is absent: an
// empty text or list, or no number (a year or track of 0 counts as none).
struct AudioTags {
    QStringList authors;
    std::optional<int> recordingYear;
    QString musicalGenre;
    QString title;
    QString album;
    QString comment;
    std::optional<int> audioTrackNumber;
    QString composer;
};

// Reads the tags of any format the tag library knows (MP3 with ID3v1 or ID3v2, MP4/M4A/M4B,
// FLAC, Ogg Vorbis and Opus, WAV, AIFF, ...), each file once. Only regular files are opened,
// never blocking; a file that cannot be read or is not audio gives absent values.
class AudioTagReader {
public:
    static AudioTags read(const QString& path);
};

} // namespace tavrin
