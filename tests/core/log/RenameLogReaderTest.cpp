#include "core/log/RenameLogReader.h"
#include "core/log/RenameLog.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

using namespace tavrin;

namespace {

const QByteArray completeLog = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                               "<files appversion=\"2.4.1\" type=\"FOLDERS\">\n"
                               "    <file srclocation=\"/a\" tarlocation=\"/a\" srcfilename=\"one\" "
                               "tarfilename=\"1\"/>\n"
                               "    <file srclocation=\"/b\" tarlocation=\"/b\" srcfilename=\"t/wo\" "
                               "tarfilename=\"2 &amp; 3\"/>\n"
                               "</files>\n";

std::optional<RenameLogContents> readText(test::TempTree& tree, const QByteArray& text)
{
    return readLogEntries(tree.file(QStringLiteral("log.xml"), text));
}

TEST(ReadLogEntries, ReadsTheRootStampAndEveryEntryInOrder)
{
    test::TempTree tree;
    const auto contents = readText(tree, completeLog);
    ASSERT_TRUE(contents.has_value());
    EXPECT_EQ(contents->appVersion, QStringLiteral("2.4.1"));
    EXPECT_EQ(contents->type, QStringLiteral("FOLDERS"));
    EXPECT_TRUE(contents->rootClosed);
    ASSERT_EQ(contents->entries.size(), 2);
    const RenameLogEntry second {
        QStringLiteral("/b"), QStringLiteral("/b"), QStringLiteral("t/wo"), QStringLiteral("2 & 3")};
    EXPECT_EQ(contents->entries[1], second);
    EXPECT_EQ(contents->entries[1].sourcePath(), QStringLiteral("/b/t:wo"));
}

// Wherever a killed batch stopped writing, the reader gives the entries complete up to there.
TEST(ReadLogEntries, ToleratesACutAtAnyByteAfterTheRootBegan)
{
    test::TempTree tree;
    const qsizetype rootOpen = completeLog.indexOf("FOLDERS\">") + 9;
    for (qsizetype cut = rootOpen; cut <= completeLog.size(); ++cut) {
        const QByteArray prefix = completeLog.left(cut);
        const auto contents = readText(tree, prefix);
        ASSERT_TRUE(contents.has_value()) << "cut at " << cut;
        EXPECT_EQ(contents->entries.size(), prefix.count("/>")) << "cut at " << cut;
        EXPECT_EQ(contents->rootClosed, prefix.endsWith("</files>") || prefix.endsWith("</files>\n"))
            << "cut at " << cut;
    }
}

TEST(ReadLogEntries, MarksEntriesThatLackAnAttribute)
{
    test::TempTree tree;
    const auto contents = readText(tree,
        "<files appversion=\"3.0\" type=\"FILES\">"
        "<file srclocation=\"/a\" tarlocation=\"/a\" srcfilename=\"x\"/>"
        "<file srclocation=\"\" tarlocation=\"\" srcfilename=\"\" tarfilename=\"\"/>"
        "</files>");
    ASSERT_TRUE(contents.has_value());
    ASSERT_EQ(contents->entries.size(), 2);
    EXPECT_FALSE(contents->entries[0].hasAllAttributes);
    EXPECT_EQ(contents->entries[0].sourceName, QStringLiteral("x"));
    EXPECT_TRUE(contents->entries[1].hasAllAttributes);
}

TEST(ReadLogEntries, CountsOnlyFileElementsDirectlyUnderTheRoot)
{
    test::TempTree tree;
    const auto contents = readText(tree,
        "<files appversion=\"3.0\" type=\"FILES\">"
        "<note>text</note>"
        "<file srclocation=\"/a\" tarlocation=\"/a\" srcfilename=\"x\" "
        "tarfilename=\"y\"><file srclocation=\"/nested\"/></file>"
        "<group><file srclocation=\"/deeper\"/></group>"
        "</files>");
    ASSERT_TRUE(contents.has_value());
    ASSERT_EQ(contents->entries.size(), 1);
    EXPECT_EQ(contents->entries[0].sourceLocation, QStringLiteral("/a"));
}

TEST(ReadLogEntries, AnswersNothingForWhatIsNoLog)
{
    test::TempTree tree;
    struct Row {
        const char* label;
        QByteArray text;
    };
    const Row rows[] = {
        {"empty file", QByteArray()},
        {"plain text", "just some words"},
        {"another root", "<plist version=\"1.0\"><file srclocation=\"/a\"/></plist>"},
        {"cut before the root", "<?xml version=\"1.0\"?>\n<fil"},
        {"broken in the middle",
            "<files type=\"FILES\"><file srclocation=\"/a\"></other>"
            "<file srclocation=\"/b\"/></files>"},
        {"unquoted attribute", "<files type=\"FILES\"><file srclocation=/a/></files>"},
    };
    for (const Row& row : rows)
        EXPECT_FALSE(readText(tree, row.text).has_value()) << row.label;
    EXPECT_FALSE(readLogEntries(tree.path(QStringLiteral("missing.xml"))).has_value());
}

// An entity naming a file on disk is left unresolved: in an attribute it makes the log
// unreadable, in the text between entries it is skipped.
TEST(ReadLogEntries, NeverReadsAnExternalEntity)
{
    test::TempTree tree;
    const QString secret = tree.file(QStringLiteral("secret.txt"), "SECRET");
    const QByteArray doctype = "<?xml version=\"1.0\"?>\n<!DOCTYPE files [<!ENTITY leak SYSTEM \"file://"
        + secret.toUtf8() + "\">]>\n";
    const QByteArray inAttribute = "<files type=\"FILES\"><file srclocation=\"&leak;\" tarlocation=\"/a\" "
                                   "srcfilename=\"x\" tarfilename=\"y\"/></files>";
    const QByteArray inText = "<files type=\"FILES\">&leak;<file srclocation=\"/a\" tarlocation=\"/a\" "
                              "srcfilename=\"x\" tarfilename=\"y\"/></files>";

    EXPECT_FALSE(readText(tree, doctype + inAttribute).has_value());
    const auto contents = readText(tree, doctype + inText);
    ASSERT_TRUE(contents.has_value());
    ASSERT_EQ(contents->entries.size(), 1);
    EXPECT_EQ(contents->entries[0].sourceLocation, QStringLiteral("/a"));
    EXPECT_TRUE(contents->rootClosed);
}

// Regression: a character XML 1.0 cannot hold was left out of the log, so undo moved back
// whatever had the name without it.
TEST(ReadLogEntries, GivesBackEveryNameByteForByte)
{
    test::TempTree tree;
    QList<QString> names = {QStringLiteral("a&b"), QStringLiteral("<tag>"), QStringLiteral("\"quoted\""),
        QStringLiteral("it's"), QStringLiteral("tab\tinside"), QStringLiteral("two\nlines\r"),
        QStringLiteral("  spaced  "), QStringLiteral("\u00fcber \u65e5\u672c \U0001F600"),
        QStringLiteral("a:b"), QStringLiteral("end\uFFFE\uFFFF")};
    for (char16_t c = 1; c < 0x20; ++c)
        names.append(QStringLiteral("a") + QChar(c) + QStringLiteral("b"));
    RenameLog log;
    ASSERT_TRUE(log.create(tree.root(), QStringLiteral("FILES"), QDateTime(QDate(2026, 1, 1), QTime(0, 0))));
    for (const QString& name : names) {
        log.addLogEntry(QStringLiteral("/src/") + name, QStringLiteral("/dst/") + name);
        log.confirmEntry();
    }
    const auto contents = readLogEntries(log.finish());
    ASSERT_TRUE(contents.has_value());
    ASSERT_EQ(contents->entries.size(), std::size(names));
    for (qsizetype i = 0; i < contents->entries.size(); ++i) {
        const RenameLogEntry& entry = contents->entries[i];
        EXPECT_EQ(entry.sourcePath(), QStringLiteral("/src/") + names[i]) << names[i].toStdString();
        EXPECT_EQ(entry.targetPath(), QStringLiteral("/dst/") + names[i]) << names[i].toStdString();
    }
}

}  // namespace
