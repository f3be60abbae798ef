#include "CliRunner.h"
#include "core/metadata/AudioFiles.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace tavrin;
using test::AudioFileTags;
using test::AudioFormat;
using test::CliRun;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

// A folder of tagged MP3 files and a note.
class AudioCommandTest : public test::CliTest {
protected:
    AudioCommandTest()
    {
        test::writeTaggedAudio(tree, q("music/01.mp3"), AudioFormat::Mp3, { { q("Abba") }, q("Waterloo") });
        test::writeTaggedAudio(tree, q("music/02.mp3"), AudioFormat::Mp3, { { q("Björk") }, q("東京") });
        test::writeTaggedAudio(tree, q("music/03.MP3"), AudioFormat::Mp3, { {}, q("No Artist") });
        tree.file(q("music/notes.txt"), "not audio\n");
    }

    CliRun run(const char* command, const QStringList& options)
    {
        return CliTest::run(QStringList { q(command) } + test::args("--recursive --tab audio") + options
            + QStringList { tree.path(q("music")) });
    }
};

const QStringList kArtistDashTitle
    = test::args("--set id3RenamingTagsList=<Artist>,<Title> --set isID3RenamingSeperator=1 --set") << q("id3RenamingSeperator= - ");

TEST_F(AudioCommandTest, AFolderOfTaggedFilesPreviewsAndAppliesAsArtistDashTitle)
{
    const CliRun preview = run("preview", kArtistDashTitle);
    EXPECT_EQ(preview.exitCode, 0) << preview.err.toStdString();
    EXPECT_EQ(preview.out,
        q("01.mp3\tAbba - Waterloo.mp3\n02.mp3\tBjörk - 東京.mp3\n03.MP3\tNo Artist.MP3\n"
          "notes.txt\tNo Changes\nNew names: 3, No Changes: 1\n"));
    EXPECT_TRUE(tree.exists(q("music/01.mp3")));

    const CliRun apply = run("apply", kArtistDashTitle + test::args("--yes"));
    ASSERT_EQ(apply.exitCode, 0) << apply.err.toStdString();
    EXPECT_EQ(QDir(tree.path(q("music"))).entryList(QDir::Files, QDir::Name),
        QStringList({ q("Abba - Waterloo.mp3"), q("Björk - 東京.mp3"), q("No Artist.MP3"), q("notes.txt") }));
}

TEST_F(AudioCommandTest, ListsAndTheMaskAreSetByKey)
{
    const struct {
        const char* name;
        QStringList options;
        const char* firstLine;
    } rows[] = {
        { "the mask follows the list", test::args("--set id3RenamingTagsList=<Title>,<Artist>"),
            "01.mp3\tWaterlooAbba.mp3" },
        { "a mask set after the list",
            test::args("--set id3RenamingTagsList=<Title> --set") << q("id3RenamingMask=<Title> (<Artist>)"),
            "01.mp3\tWaterloo (Abba).mp3" },
        { "extensions that leave out MP3", kArtistDashTitle + test::args("--set id3Extensions=.FLAC,.M4A"),
            "01.mp3\tNo Changes" },
    };
    for (const auto& row : rows) {
        const CliRun preview = run("preview", row.options);
        EXPECT_EQ(preview.exitCode, 0) << row.name << preview.err.toStdString();
        EXPECT_EQ(preview.out.section(QLatin1Char('\n'), 0, 0), q(row.firstLine)) << row.name;
    }
}

TEST_F(AudioCommandTest, FailuresHaveTheirExitStatus)
{
    const CliRun empty = run("preview", {});
    EXPECT_EQ(empty.exitCode, 2);
    EXPECT_EQ(empty.err, q("Empty Audio Tag Mask: Choose at least one audio tag for the new names.\n"));
    EXPECT_TRUE(empty.out.isEmpty());

    // The run answers the outcome of its last item, so the folder holds audio files only.
    ASSERT_TRUE(QFile::remove(tree.path(q("music/notes.txt"))));
    const CliRun unknown = run("preview",
        test::args("--set id3RenamingTagsList=<Title>,<Mood> --set isID3RenamingSeperator=1 --set id3RenamingSeperator=_"));
    EXPECT_EQ(unknown.exitCode, 1);
    EXPECT_TRUE(unknown.err.contains(QLatin1String("<Mood>"))) << unknown.err.toStdString();
}

} // namespace
