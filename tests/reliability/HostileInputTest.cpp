#include "core/formats/PlistNesting.h"
#include "core/formats/PropertyList.h"
#include "core/formats/VersionStamp.h"
#include "core/log/LogFileCheck.h"
#include "core/log/RenameLogReader.h"
#include "core/platform/InputFile.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/Settings.h"
#include "core/rules/RuleLibraryImport.h"
#include "reliability/HostileFiles.h"
#include "support/TempTree.h"

#include <QFile>
#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace tavrin;

// No file, whatever its size, depth or kind, crashes or blocks a reader: each is refused.
namespace {

TEST(PlistNesting, CountsLevelsOnceEvenThroughSharedObjectsAndRefusesCircles)
{
    // A chain of 60 diamonds: 2^60 ways down, 121 levels.
    QList<QList<int>> diamonds(121);
    for (int level = 0; level + 2 < 121; level += 2)
        diamonds[level] = {level + 1, level + 2}, diamonds[level + 1] = {level + 2};
    struct Row {
        const char* what;
        QByteArray bytes;
        bool within;
    };
    const Row rows[] = {
        {"binary, at the limit", test::deepBinaryPlist(kDeepestPlistNesting), true},
        {"binary, one level more", test::deepBinaryPlist(kDeepestPlistNesting + 1), false},
        {"binary, shared objects", test::binaryPlistOfArrays(diamonds), true},
        {"binary, a circle", test::cyclicBinaryPlist(), false},
        {"binary, an array holding itself", test::binaryPlistOfArrays({{0}}), false},
        {"XML, at the limit", test::deepXmlPlist(kDeepestPlistNesting - 1), true},
        {"XML, one level more", test::deepXmlPlist(kDeepestPlistNesting), false},
        {"XML, entities", test::billionLaughsPlist(), false},
        {"not a property list", QByteArray("hello"), false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(isSafeToParse(row.bytes), row.within) << row.what;
}

struct HostileRow {
    const char* what;
    std::function<QString(test::TempTree&)> make;
};

// Every reader of a file a user can hand the programs, refusing what it is given.
TEST(HostileInput, EveryReaderRefusesQuietly)
{
    const HostileRow rows[] = {
        {"FIFO", [](test::TempTree& t) { const QString p = t.path(QStringLiteral("fifo")); ::mkfifo(QFile::encodeName(p).constData(), 0644); return p; }},
        {"link to /dev/zero", [](test::TempTree& t) { return t.symlink(QStringLiteral("/dev/zero"), QStringLiteral("zero")); }},
        {"folder", [](test::TempTree& t) { return t.folder(QStringLiteral("folder")); }},
        {"dangling link", [](test::TempTree& t) { return t.symlink(t.path(QStringLiteral("nowhere")), QStringLiteral("dangling")); }},
        {"100,000 nested binary arrays", [](test::TempTree& t) { return t.file(QStringLiteral("deep.bin"), test::deepBinaryPlist(100000)); }},
        {"100,000 nested XML elements", [](test::TempTree& t) { return t.file(QStringLiteral("deep.xml"), test::deepXmlPlist(100000)); }},
        {"billion laughs", [](test::TempTree& t) { return t.file(QStringLiteral("laughs.xml"), test::billionLaughsPlist()); }},
        {"external entity", [](test::TempTree& t) { return t.file(QStringLiteral("entity.xml"), test::externalEntityPlist("/etc/passwd")); }},
        {"circular binary", [](test::TempTree& t) { return t.file(QStringLiteral("cycle.bin"), test::cyclicBinaryPlist()); }},
        {"binary garbage", [](test::TempTree& t) { QByteArray b("bplist00"); for (int i = 0; i < 4096; ++i) b += char(i * 37); return t.file(QStringLiteral("garbage"), b); }},
        {"truncated", [](test::TempTree& t) { return t.file(QStringLiteral("cut.xml"), test::deepXmlPlist(3).left(40)); }},
    };
    for (const HostileRow& row : rows) {
        test::TempTree tree;
        const QString path = row.make(tree);
        EXPECT_FALSE(readPlistFile(path, 1 << 20)) << row.what;
        Settings settings;
        EXPECT_NE(loadProfileFile(settings, path), ProfileLoadResult::Loaded) << row.what;
        EXPECT_NE(checkRuleFile(path), RuleFileCheck::Compatible) << row.what;
        EXPECT_NE(openLogFile(path).check, LogCheck::Ready) << row.what;
        const auto log = readLogEntries(path);
        EXPECT_TRUE(!log || log->entries.isEmpty()) << row.what;
    }
}

TEST(InputFile, ReadsOnlyRegularFilesWithinTheCap)
{
    test::TempTree tree;
    const QString small = tree.file(QStringLiteral("small"), "12345");
    struct Row {
        QString path;
        qint64 cap;
        InputFileError error;
    };
    const Row rows[] = {
        {small, 5, InputFileError::None},
        {small, 4, InputFileError::TooLarge},
        {tree.symlink(small, QStringLiteral("link")), 5, InputFileError::None},
        {tree.path(QStringLiteral("missing")), 5, InputFileError::Missing},
        {QStringLiteral("/dev/zero"), 5, InputFileError::NotRegular},
        {tree.root(), 5, InputFileError::NotRegular},
    };
    for (const Row& row : rows) {
        InputFileError error = InputFileError::Unreadable;
        const std::optional<QByteArray> bytes = readInputFile(row.path, row.cap, &error);
        EXPECT_EQ(error, row.error) << qPrintable(row.path);
        EXPECT_EQ(bytes.has_value(), row.error == InputFileError::None) << qPrintable(row.path);
        EXPECT_EQ(bytes.value_or("12345"), QByteArray("12345"));
    }
}

}  // namespace
