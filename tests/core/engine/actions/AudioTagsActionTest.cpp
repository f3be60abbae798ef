#include "ActionTestSupport.h"
#include "core/engine/actions/audiotags.h"
#include "core/metadata/AudioFiles.h"
#include "core/text/LocalizedStrings.h"

#include <gtest/gtest.h>

using namespace tavrin;
using test::AudioFileTags;
using test::q;

namespace {

const QStringList kAudioExtensions { ".MP3", ".M4A", ".AAC", ".M4B" };
const QStringList kArtistTitle { id3token::Artist, id3token::Title };

// Separator mode with the mask the settings build for the list.
ID3Options joined(const QStringList& tags, const QString& separator)
{
    return { .mask = tags.join(separator),
        .isSeparator = true,
        .separator = separator,
        .tags = tags,
        .allowedExtensions = kAudioExtensions };
}

ID3Options masked(const QString& mask)
{
    return { .mask = mask, .allowedExtensions = kAudioExtensions };
}

ID3Options withColonsReplaced(ID3Options options, const QString& replacement)
{
    options.isColonReplace = true;
    options.colonReplace = replacement;
    return options;
}

ID3Options allowing(ID3Options options, const QString& extension)
{
    options.allowedExtensions.append(extension);
    return options;
}

const AudioFileTags kAbba { { q("Abba") }, q("Waterloo"), q("Waterloo"), q("Pop"), q("  good  song  "),
    q("Andersson"), 1974, 1 };

AudioFileTags titled(const char* title)
{
    AudioFileTags tags;
    tags.title = q(title);
    return tags;
}

AudioFileTags commented(const char* comment)
{
    AudioFileTags tags;
    tags.comment = q(comment);
    return tags;
}

struct Row {
    const char* name;
    const char* onDisk;
    AudioFileTags tags;
    ID3Options options;
    const char* expected;
    const char* earlierProposal = "";
};

test::AudioFormat formatOf(const QString& name)
{
    if (name.endsWith(QLatin1String(".flac"), Qt::CaseInsensitive))
        return test::AudioFormat::Flac;
    if (name.endsWith(QLatin1String(".m4a"), Qt::CaseInsensitive))
        return test::AudioFormat::M4a;
    return test::AudioFormat::Mp3;
}

class AudioTagsAction : public ::testing::Test {
protected:
    // A tagged audio file in a folder of its own, so that rows may reuse names.
    FileSystemItem audioItem(const char* onDisk, const AudioFileTags& tags, const char* earlierProposal = "")
    {
        const QString relative = QStringLiteral("row%1/").arg(++m_rows) + q(onDisk);
        return itemAt(test::writeTaggedAudio(tree, relative, formatOf(relative), tags), earlierProposal);
    }

    FileSystemItem itemAt(const QString& path, const char* earlierProposal = "")
    {
        std::optional<FileSystemItem> made = FileSystemItem::initWithPath(path);
        EXPECT_TRUE(made.has_value()) << qPrintable(path);
        FileSystemItem record = made.value_or(FileSystemItem());
        record.setObject(q(earlierProposal), QStringLiteral("newFilename"));
        return record;
    }

    void expectRows(std::initializer_list<Row> rows)
    {
        for (const Row& row : rows) {
            SCOPED_TRACE(row.name);
            FileSystemItem record = audioItem(row.onDisk, row.tags, row.earlierProposal);
            QString error;
            EXPECT_TRUE(renameByID3Tags(record, row.options, error));
            EXPECT_EQ(error, QString());
            EXPECT_EQ(record.newFilename(), q(row.expected));
        }
    }

    test::TempTree tree;

private:
    int m_rows = 0;
};

TEST_F(AudioTagsAction, JoinsTheValuesWithTheSeparator)
{
    expectRows({
        { "artist and title", "a.mp3", kAbba, joined(kArtistTitle, " - "), "Abba - Waterloo.mp3" },
        { "no artist: just the title", "a.mp3", titled("Song"), joined(kArtistTitle, " - "), "Song.mp3" },
        { "several artists, joined by a comma", "a.flac", { { q("Ana"), q("Bo") }, q("T") },
            allowing(joined(kArtistTitle, " - "), ".FLAC"), "Ana,Bo - T.flac" },
        { "not Latin-1", "a.m4a", { { q("Björk") }, q("東京") }, joined(kArtistTitle, " - "),
            "Björk - 東京.m4a" },
        { "numbers as text", "a.mp3", kAbba,
            joined({ id3token::Year, id3token::TrackNumber, id3token::Title }, "_"), "1974_1_Waterloo.mp3" },
        { "typed slash in the separator", "a.mp3", kAbba, joined(kArtistTitle, " / "),
            "Abba : Waterloo.mp3" },
        { "no tags: the name stays", "a.mp3", {}, joined(kArtistTitle, " - "), "a.mp3" },
        { "empty separator: the mask is filled", "a.mp3", kAbba,
            { .mask = "<Title>+<Artist>",
                .isSeparator = true,
                .tags = kArtistTitle,
                .allowedExtensions = kAudioExtensions },
            "Waterloo+Abba.mp3" },
    });
}

TEST_F(AudioTagsAction, FillsTheTokensOfTheMask)
{
    expectRows({
        { "literal text stays", "a.mp3", kAbba, masked("<TrackNumber>. <Title> (<Year>)"),
            "1. Waterloo (1974).mp3" },
        { "every token", "a.mp3", kAbba,
            masked("<Artist>|<Year>|<Genre>|<Title>|<Album>|<Comments>|<TrackNumber>|<Composer>"),
            "Abba|1974|Pop|Waterloo|Waterloo|goodsong|1|Andersson.mp3" },
        { "a token twice", "a.mp3", kAbba, masked("<Title>-<Title>"), "Waterloo-Waterloo.mp3" },
        { "tokens match case exactly", "a.mp3", kAbba, masked("<artist> <Title>"), "<artist> Waterloo.mp3" },
        { "an unknown token is text", "a.mp3", kAbba, masked("<Foo> <Title>"), "<Foo> Waterloo.mp3" },
        { "tokens without values: the name stays", "a.mp3", {}, masked("<Artist><Title>"), "a.mp3" },
        { "a slash in a tag is kept as a colon", "a.mp3", { { q("AC/DC") }, q("T") },
            masked("<Artist> <Title>"), "AC:DC T.mp3" },
    });
}

TEST_F(AudioTagsAction, CommentsLoseEachPairOfBlanks)
{
    const ID3Options comments = masked("<Comments>");
    expectRows({
        { "two blanks vanish", "a.mp3", commented("good  song"), comments, "goodsong.mp3" },
        { "three leave one", "a.mp3", commented("good   song"), comments, "good song.mp3" },
        { "four vanish", "a.mp3", commented("good    song"), comments, "goodsong.mp3" },
        { "single blanks stay", "a.mp3", commented("a good song"), comments, "a good song.mp3" },
        { "line ends and blanks at the ends", "a.mp3", commented("\n\t note \r\n"), comments, "note.mp3" },
        { "no character at the end", "a.flac", commented("note\xEF\xBF\xBF"), allowing(comments, ".FLAC"),
            "note.flac" },
        { "colons replaced after the blanks", "a.mp3", commented("a:  b"), withColonsReplaced(comments, "-"),
            "a-b.mp3" },
    });
}

TEST_F(AudioTagsAction, ColonsAreReplacedInTextsOnly)
{
    AudioFileTags live = titled("Live: Paris 1:2");
    live.year = 1999;
    live.track = 7;
    const ID3Options numbersAndTitle = masked("<Year>:<TrackNumber> <Title>");
    expectRows({
        { "colon then blank: replacement then blank", "a.mp3", live, withColonsReplaced(numbersAndTitle, "-"),
            "1999:7 Live- Paris 1-2.mp3" },
        { "replacement of several characters", "a.mp3", live, withColonsReplaced(numbersAndTitle, " ~ "),
            "1999:7 Live ~  Paris 1 ~ 2.mp3" },
        { "replacement off", "a.mp3", live, numbersAndTitle, "1999:7 Live: Paris 1:2.mp3" },
        { "replacement typed as a slash", "a.mp3", live, withColonsReplaced(numbersAndTitle, "/"),
            "1999:7 Live: Paris 1:2.mp3" },
        { "separator mode too", "a.mp3", { { q("A:B") }, q("C:D") },
            withColonsReplaced(joined(kArtistTitle, " "), "_"), "A_B C_D.mp3" },
        { "a slash of the tag is no colon", "a.mp3", { { q("AC/DC") }, q("T") },
            withColonsReplaced(masked("<Artist>"), "_"), "AC:DC.mp3" },
    });
}

TEST_F(AudioTagsAction, OnlyAllowedExtensionsAreRenamed)
{
    const ID3Options artistTitle = joined(kArtistTitle, " - ");
    expectRows({
        { "lower-case extension", "a.mp3", kAbba, artistTitle, "Abba - Waterloo.mp3" },
        { "mixed-case extension", "a.Mp3", kAbba, artistTitle, "Abba - Waterloo.Mp3" },
        { "extension not in the list", "a.flac", kAbba, artistTitle, "a.flac" },
        { "extension added to the list", "a.flac", kAbba, allowing(artistTitle, ".FLAC"),
            "Abba - Waterloo.flac" },
        { "list without the dot", "a.flac", kAbba, allowing(artistTitle, "FLAC"), "a.flac" },
        { "empty mask", "a.mp3", kAbba, { .tags = kArtistTitle, .allowedExtensions = kAudioExtensions },
            "a.mp3" },
        { "earlier proposal", "a.mp3", kAbba, artistTitle, "Abba - Waterloo.MP3", "b.MP3" },
        { "the earlier proposal's extension decides", "a.mp3", kAbba, artistTitle, "b.txt", "b.txt" },
    });
    for (const char* onDisk : { "text.mp3", "noextension" }) {
        FileSystemItem record = itemAt(tree.file(q(onDisk), "not audio\n"));
        QString error;
        EXPECT_TRUE(renameByID3Tags(record, artistTitle, error)) << onDisk;
        EXPECT_EQ(record.newFilename(), q(onDisk));
    }
}

TEST_F(AudioTagsAction, AnUnknownTokenFailsInSeparatorMode)
{
    FileSystemItem record = audioItem("a.mp3", kAbba);
    QString error;
    EXPECT_FALSE(renameByID3Tags(record, joined({ id3token::Title, "<Foo>" }, " - "), error));
    EXPECT_TRUE(
        error.startsWith(localized("UNABLETOGENERATENEWFILENAMEERROR").section(QLatin1Char('%'), 0, 0)))
        << qPrintable(error);
    EXPECT_TRUE(error.contains(QLatin1String("<Foo>"))) << qPrintable(error);
}

TEST(ID3Tokens, ButtonTagsOneToEightInsertTheTokens)
{
    const struct {
        int tag;
        const char* token;
    } rows[] = { { 0, "" }, { 1, "<Artist>" }, { 2, "<Year>" }, { 3, "<Genre>" }, { 4, "<Title>" },
        { 5, "<Album>" }, { 6, "<Comments>" }, { 7, "<TrackNumber>" }, { 8, "<Composer>" }, { 9, "" },
        { -1, "" } };
    for (const auto& row : rows)
        EXPECT_EQ(id3TokenForTag(row.tag), q(row.token)) << row.tag;
}

TEST(ID3Mask, IsRebuiltFromTheTokenListAndTheSeparator)
{
    const QStringList three { "<Artist>", "<Title>", "<Year>" };
    const struct {
        const char* name;
        QStringList tags;
        bool isSeparator;
        const char* separator;
        const char* mask;
    } rows[] = {
        { "no tokens", {}, true, " - ", "" },
        { "separator off", three, false, " - ", "<Artist><Title><Year>" },
        { "separator on", three, true, " - ", "<Artist> - <Title> - <Year>" },
        { "one token has no separator", { "<Title>" }, true, "_", "<Title>" },
        { "empty separator", three, true, "", "<Artist><Title><Year>" },
        { "tokens as listed, also unknown ones", { "<Title>", "x", "<Title>" }, true, "+",
            "<Title>+x+<Title>" },
    };
    for (const auto& row : rows) {
        Settings settings;
        settings.setId3RenamingMask(q("stale"));
        settings.setId3RenamingTagsList(row.tags);
        settings.setIsID3RenamingSeperator(row.isSeparator);
        settings.setId3RenamingSeperator(q(row.separator));
        settings.resetID3Mask();
        EXPECT_EQ(settings.id3RenamingMask(), q(row.mask)) << row.name;
    }
}

TEST(ID3OptionsFrom, EveryOptionIsReadByKey)
{
    Settings settings;
    settings.setId3RenamingTagsList({ id3token::Album, id3token::Title });
    settings.setIsID3RenamingSeperator(true);
    settings.setId3RenamingSeperator(q(" / "));
    settings.setIsID3RenamingColonReplace(true);
    settings.setId3RenamingColonReplace(q("-"));
    settings.setId3Extensions({ ".MP3", ".FLAC" });
    settings.resetID3Mask();
    const auto options = test::optionsFrom<ID3Options>(settings);
    EXPECT_EQ(options.mask, q("<Album> / <Title>"));
    EXPECT_TRUE(options.isSeparator);
    EXPECT_EQ(options.separator, q(" / "));
    EXPECT_TRUE(options.isColonReplace);
    EXPECT_EQ(options.colonReplace, q("-"));
    EXPECT_EQ(options.tags, QStringList({ "<Album>", "<Title>" }));
    EXPECT_EQ(options.allowedExtensions, QStringList({ ".MP3", ".FLAC" }));
}

} // namespace
