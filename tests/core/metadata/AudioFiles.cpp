#include "core/metadata/AudioFiles.h"

#include "support/TempTree.h"

#include <QFile>
#include <QtEndian>

#include <taglib/flacfile.h>
#include <taglib/id3v1tag.h>
#include <taglib/id3v2tag.h>
#include <taglib/mp4file.h>
#include <taglib/mpegfile.h>
#include <taglib/tpropertymap.h>
#include <taglib/wavfile.h>
#include <taglib/xiphcomment.h>

#include <gtest/gtest.h>

namespace tavrin::test {

namespace {

// Silent MPEG-1 layer III frames at 128 kbit/s and 44.1 kHz: 417 bytes each.
QByteArray silentMpeg()
{
    QByteArray frame(417, '\0');
    frame[0] = char(0xFF);
    frame[1] = char(0xFB);
    frame[2] = char(0x90);
    frame[3] = char(0x44);
    return frame.repeated(8);
}

// "fLaC" and a last STREAMINFO block: 44.1 kHz, stereo, 16 bits, no samples.
QByteArray emptyFlac()
{
    QByteArray info(34, '\0');
    info[0] = char(0x10); // block sizes 4096
    info[2] = char(0x10);
    const quint64 packed = (quint64(44100) << 44) | (quint64(1) << 41) | (quint64(15) << 36);
    qToBigEndian(packed, info.data() + 10);
    return QByteArray("fLaC") + QByteArray::fromHex("80000022") + info;
}

QByteArray atom(const char* type, const QByteArray& body)
{
    QByteArray size(4, '\0');
    qToBigEndian(quint32(8 + body.size()), size.data());
    return size + type + body;
}

QByteArray emptyM4a()
{
    return atom("ftyp", QByteArray("M4A ") + QByteArray(4, '\0') + "M4A mp42isom") + atom("moov", {})
        + atom("mdat", {});
}

QByteArray littleEndian(quint32 value, int bytes)
{
    QByteArray data(4, '\0');
    qToLittleEndian(value, data.data());
    return data.left(bytes);
}

// Mono 16-bit PCM at 8 kHz, a hundred silent samples.
QByteArray silentWav()
{
    const QByteArray format = littleEndian(1, 2) + littleEndian(1, 2) + littleEndian(8000, 4)
        + littleEndian(16000, 4) + littleEndian(2, 2) + littleEndian(16, 2);
    const QByteArray samples(200, '\0');
    const QByteArray chunks = QByteArray("WAVEfmt ") + littleEndian(16, 4) + format + "data"
        + littleEndian(quint32(samples.size()), 4) + samples;
    return "RIFF" + littleEndian(quint32(chunks.size()), 4) + chunks;
}

QByteArray emptyFile(AudioFormat format)
{
    switch (format) {
    case AudioFormat::Flac:
        return emptyFlac();
    case AudioFormat::M4a:
        return emptyM4a();
    case AudioFormat::Wav:
        return silentWav();
    default:
        return silentMpeg();
    }
}

TagLib::String utf8(const QString& text)
{
    return TagLib::String(text.toStdString(), TagLib::String::UTF8);
}

TagLib::PropertyMap propertiesOf(const AudioFileTags& tags)
{
    TagLib::PropertyMap map;
    const auto add = [&map](const char* key, const QString& value) {
        if (!value.isEmpty())
            map.insert(key, TagLib::StringList(utf8(value)));
    };
    TagLib::StringList artists;
    for (const QString& artist : tags.artists)
        artists.append(utf8(artist));
    if (!artists.isEmpty())
        map.insert("ARTIST", artists);
    add("TITLE", tags.title);
    add("ALBUM", tags.album);
    add("GENRE", tags.genre);
    add("COMMENT", tags.comment);
    add("COMPOSER", tags.composer);
    add("DATE", tags.year ? QString::number(tags.year) : QString());
    add("TRACKNUMBER", tags.track ? QString::number(tags.track) : QString());
    return map;
}

bool saveMpeg(const QByteArray& path, AudioFormat format, const TagLib::PropertyMap& properties)
{
    TagLib::MPEG::File file(path.constData(), false);
    if (format == AudioFormat::Mp3Id3v1) {
        file.ID3v1Tag(true)->setProperties(properties);
        return file.save(TagLib::MPEG::File::ID3v1);
    }
    file.ID3v2Tag(true)->setProperties(properties);
    if (format == AudioFormat::Mp3Id3v23)
        return file.save(TagLib::MPEG::File::ID3v2, TagLib::File::StripOthers, TagLib::ID3v2::v3);
    file.ID3v1Tag(true)->setProperties(properties);
    return file.save();
}

bool saveTags(const QByteArray& path, AudioFormat format, const TagLib::PropertyMap& properties)
{
    switch (format) {
    case AudioFormat::Flac: {
        TagLib::FLAC::File file(path.constData(), false);
        file.xiphComment(true)->setProperties(properties);
        return file.save();
    }
    case AudioFormat::M4a: {
        TagLib::MP4::File file(path.constData(), false);
        file.tag()->setProperties(properties);
        return file.save();
    }
    case AudioFormat::Wav: {
        TagLib::RIFF::WAV::File file(path.constData(), false);
        file.ID3v2Tag()->setProperties(properties);
        file.InfoTag()->setProperties(properties);
        return file.save();
    }
    default:
        return saveMpeg(path, format, properties);
    }
}

} // namespace

QString writeTaggedAudio(
    TempTree& tree, const QString& relative, AudioFormat format, const AudioFileTags& tags)
{
    const QString path = tree.file(relative, emptyFile(format));
    EXPECT_TRUE(saveTags(QFile::encodeName(path), format, propertiesOf(tags))) << qPrintable(relative);
    return path;
}

} // namespace tavrin::test
