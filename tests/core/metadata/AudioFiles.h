#pragma once

#include <QString>
#include <QStringList>

namespace tavrin::test {

class TempTree;

// How a test audio file is made and tagged.
enum class AudioFormat {
    Mp3, // ID3v2.4 (texts that Latin-1 cannot hold as UTF-8), with an ID3v1 copy
    Mp3Id3v23, // ID3v2.3 only (such texts as UTF-16)
    Mp3Id3v1, // ID3v1 only
    Flac, // Vorbis comments
    M4a, // MP4 items
    Wav, // an ID3v2 chunk and RIFF INFO
};

// Tags written into a test file; empty texts and zero numbers are left out.
struct AudioFileTags {
    QStringList artists {};
    QString title {};
    QString album {};
    QString genre {};
    QString comment {};
    QString composer {};
    unsigned year = 0;
    unsigned track = 0;
};

// A short silent file of the format at `relative` in the tree, tagged through the tag
// library; answers its path.
QString writeTaggedAudio(
    TempTree& tree, const QString& relative, AudioFormat format, const AudioFileTags& tags);

} // namespace tavrin::test
