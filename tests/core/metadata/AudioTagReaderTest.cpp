#include "core/metadata/AudioTagReader.h"
#include "core/metadata/AudioFiles.h"
#include "support/TempTree.h"

#include <QStringList>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace tavrin;
using test::AudioFileTags;
using test::AudioFormat;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QString number(const std::optional<int>& value)
{
    return value ? QString::number(*value) : QStringLiteral("none");
}

// Every value in one line, so that a failing row shows all of them side by side.
QString describe(const AudioTags& tags)
{
    return QStringLiteral("authors=[%1] year=%2 genre=%3 title=%4 album=%5 comment=%6 track=%7 composer=%8")
        .arg(tags.authors.join(u'|'), number(tags.recordingYear), tags.musicalGenre, tags.title, tags.album,
            tags.comment, number(tags.audioTrackNumber), tags.composer);
}

QString describe(const AudioFileTags& tags)
{
    AudioTags expected { tags.artists, std::nullopt, tags.genre, tags.title, tags.album, tags.comment,
        std::nullopt, tags.composer };
    if (tags.year)
        expected.recordingYear = int(tags.year);
    if (tags.track)
        expected.audioTrackNumber = int(tags.track);
    return describe(expected);
}

const AudioFileTags kEveryTag { { q("Björk") }, q("東京"), q("Homogenic"), q("Electronic"), q("first take"),
    q("Björk"), 1997, 3 };

TEST(AudioTagReader, ReadsTheEightValuesOfEveryFormat)
{
    const AudioFileTags twoArtists { { q("Ana"), q("東京事変") }, q("Ünïcode"), q("Album"), q("Jazz"), q("c"),
        q("Composer"), 2001, 12 };
    const struct {
        const char* name;
        const char* file;
        AudioFormat format;
        AudioFileTags written;
    } rows[] = {
        { "ID3v2.4, Latin-1 and UTF-8 frames", "a.mp3", AudioFormat::Mp3, kEveryTag },
        { "ID3v2.4, several artists", "b.mp3", AudioFormat::Mp3, twoArtists },
        { "ID3v2.3, UTF-16 frames", "c.mp3", AudioFormat::Mp3Id3v23, kEveryTag },
        { "FLAC", "d.flac", AudioFormat::Flac, twoArtists },
        { "M4A", "e.m4a", AudioFormat::M4a, twoArtists },
        { "WAV", "f.wav", AudioFormat::Wav, kEveryTag },
        { "no tags at all", "g.mp3", AudioFormat::Mp3, {} },
        { "upper-case extension", "H.MP3", AudioFormat::Mp3, kEveryTag },
    };
    for (const auto& row : rows) {
        test::TempTree tree;
        const QString path = test::writeTaggedAudio(tree, q(row.file), row.format, row.written);
        EXPECT_EQ(describe(AudioTagReader::read(path)), describe(row.written)) << row.name;
    }
}

TEST(AudioTagReader, ID3v1HoldsNoComposer)
{
    test::TempTree tree;
    AudioFileTags written { { q("Abba") }, q("Waterloo"), q("Waterloo"), q("Pop"), q("single"),
        q("Andersson"), 1974, 1 };
    const QString path = test::writeTaggedAudio(tree, q("v1.mp3"), AudioFormat::Mp3Id3v1, written);
    written.composer.clear();
    EXPECT_EQ(describe(AudioTagReader::read(path)), describe(written));
}

TEST(AudioTagReader, WhatIsNoReadableAudioGivesAbsentValues)
{
    test::TempTree tree;
    const QString fifo = tree.path(q("pipe.mp3"));
    ASSERT_EQ(::mkfifo(fifo.toUtf8().constData(), 0600), 0);
    const QString rows[] = {
        tree.file(q("text.mp3"), "not audio at all, only text\n"), tree.file(q("empty.mp3")),
        tree.file(q("noise.m4a"), QByteArray(4096, '\x7f')), tree.folder(q("folder.mp3")),
        tree.path(q("missing.mp3")),
        fifo, // opening it must not wait for a writer
    };
    for (const QString& path : rows)
        EXPECT_EQ(describe(AudioTagReader::read(path)), describe(AudioTags {})) << qPrintable(path);
}

} // namespace
