#include "core/log/UndoRenaming.h"
#include "LogFixtures.h"
#include "core/log/LogFileCheck.h"
#include "core/log/LogFileLock.h"
#include "core/log/RenameLogReader.h"
#include "core/platform/FaultInjection.h"
#include "core/platform/FileOperations.h"
#include "core/text/LocalizedStrings.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace tavrin;

namespace {

class UndoRenamingTest : public ::testing::Test {
protected:
    RenameLogEntry entry(const QString& from, const QString& to) const
    {
        return RenameLogEntry::fromPaths(tree.path(from), tree.path(to));
    }

    QString log(const QList<RenameLogEntry>& entries, const QString& version = appVersion())
    {
        return test::writeLog(tree, QStringLiteral("logs/Log 15-11-2026 09-05-07-%1.xml").arg(entries.size()),
            entries, version);
    }

    UndoSummary undo(const QString& path) { return undoRenaming(path, noCancel, nullptr); }

    test::TempTree tree;
    std::atomic_bool noCancel { false };
};

TEST_F(UndoRenamingTest, UndoesAChainFromTheLastRenameBack)
{
    tree.file(QStringLiteral("d/d"), "content");
    const QString path = log({ entry(QStringLiteral("d/a"), QStringLiteral("d/b")),
        entry(QStringLiteral("d/b"), QStringLiteral("d/c")),
        entry(QStringLiteral("d/c"), QStringLiteral("d/d")) });

    const UndoSummary summary = undo(path);
    EXPECT_EQ(summary.outcome, UndoOutcome::Done);
    EXPECT_EQ(summary.entries, 3);
    EXPECT_EQ(summary.restored, 3);
    EXPECT_EQ(tree.read(QStringLiteral("d/a")), QByteArray("content"));
    for (const char* gone : { "d/b", "d/c", "d/d" })
        EXPECT_FALSE(tree.exists(QString::fromLatin1(gone))) << gone;
    EXPECT_TRUE(summary.logDeleted);
    EXPECT_FALSE(QFile::exists(path));
}

// Regressions: a failed move (EIO) deleted the log all the same, so the undo could not be tried
// again, and the message blamed every failure on a gone item or a taken name; an item that
// only had the new name of the renamed one (its identity differs) was moved back.
TEST_F(UndoRenamingTest, KeepsInTheLogEveryEntryItCouldNotRestoreAndSaysWhy)
{
    struct Row {
        const char* what;
        std::function<void(test::TempTree&)> obstacle; // after the batch, before the undo
        std::vector<test::Fault> faults;
        UndoProblemKind kind;
    };
    const Row rows[] = {
        {"old name taken", [](test::TempTree& t) { t.file(QStringLiteral("d/original"), "newcomer"); }, {},
            UndoProblemKind::OldNameTaken},
        {"item gone", [](test::TempTree& t) { QFile::remove(t.path(QStringLiteral("d/renamed"))); }, {},
            UndoProblemKind::ItemGone},
        {"another item at the new name",
            [](test::TempTree& t) {
                QFile::remove(t.path(QStringLiteral("d/renamed")));
                t.file(QStringLiteral("d/spare"), "other");
                t.file(QStringLiteral("d/renamed"), "other");
            },
            {}, UndoProblemKind::OtherItem},
        {"move failing with EIO", [](test::TempTree&) {}, {{test::Call::RenameNoReplace, 1, EIO}},
            UndoProblemKind::Failed},
    };
    for (const Row& row : rows) {
        test::TempTree t;
        const QString renamed = t.file(QStringLiteral("d/renamed"), "renamed");
        t.file(QStringLiteral("d/two"), "2");
        const ItemIdentity item = itemIdentity(renamed);
        const RenameLogEntry first = RenameLogEntry::fromPaths(
            t.path(QStringLiteral("d/original")), renamed, item.device, item.inode);
        const QList<RenameLogEntry> entries {first, RenameLogEntry::fromPaths(t.path(QStringLiteral("d/one")), t.path(QStringLiteral("d/two")))};
        const QString path = test::writeLog(t, QStringLiteral("logs/Log 15-11-2026 09-05-07-2.xml"), entries);
        row.obstacle(t);
        UndoSummary summary;
        {
            // The second entry is undone first: its move is the first call.
            std::vector<test::Fault> faults = row.faults;
            for (test::Fault& fault : faults)
                fault.nth = 2;
            test::InjectedFaults injected(faults);
            summary = undoRenaming(path, noCancel, nullptr);
        }
        EXPECT_EQ(summary.restored, 1) << row.what;
        EXPECT_EQ(t.read(QStringLiteral("d/one")), QByteArray("2")) << row.what;
        ASSERT_EQ(summary.problems.size(), 1) << row.what;
        EXPECT_EQ(summary.problems[0].kind, row.kind) << row.what;
        EXPECT_TRUE(summary.logKept && !summary.logDeleted) << row.what;
        const QString text = undoSummaryText(summary);
        EXPECT_TRUE(text.contains(summary.problems[0].text()) && text.contains(localized("UNDOLOGKEPT"))) << row.what;
        EXPECT_EQ(text.contains(qt_error_string(EIO)), row.kind == UndoProblemKind::Failed) << row.what;
        EXPECT_EQ(readLogEntries(path)->entries, QList<RenameLogEntry>({first})) << row.what;
        EXPECT_NE(t.read(QStringLiteral("d/original")), QByteArray("renamed")) << row.what;
        EXPECT_FALSE(row.kind == UndoProblemKind::OtherItem && t.exists(QStringLiteral("d/original"))) << row.what;
        if (row.kind == UndoProblemKind::Failed) {
            const UndoSummary retry = undoRenaming(path, noCancel, nullptr);
            EXPECT_EQ(retry.restored, 1);
            EXPECT_TRUE(retry.logDeleted);
            EXPECT_EQ(t.read(QStringLiteral("d/original")), QByteArray("renamed"));
        }
    }
}

struct StepRow {
    bool oldExists;
    bool newExists;
    bool samePath;
    UndoStep step;
};

TEST(DecideUndoStep, MovesBackOnlyOntoAFreeNameAndLetsCaseOnlyRenamesDecideBySameness)
{
    const StepRow rows[] = {
        { false, true, false, UndoStep::MoveBack },
        { true, true, false, UndoStep::CaseOnlyRename },
        { true, true, true, UndoStep::Skip },
        { true, false, false, UndoStep::Skip },
        { false, false, false, UndoStep::Skip },
    };
    for (const StepRow& row : rows)
        EXPECT_EQ(decideUndoStep(row.oldExists, row.newExists, row.samePath), row.step)
            << row.oldExists << row.newExists << row.samePath;
}

// On a case-sensitive file system the two spellings of a case-only rename are two items (or
// two hard links of one): the direct rename must not run over either.
TEST_F(UndoRenamingTest, ACaseOnlyEntryNeverOverwritesAnotherSpelling)
{
    tree.file(QStringLiteral("d/photo.jpg"), "renamed");
    tree.file(QStringLiteral("d/photo.JPG"), "another");
    tree.file(QStringLiteral("d/LINK.txt"), "linked");
    ASSERT_EQ(::link(QFile::encodeName(tree.path(QStringLiteral("d/LINK.txt"))).constData(),
                  QFile::encodeName(tree.path(QStringLiteral("d/link.txt"))).constData()),
        0);
    const QString path = log({ entry(QStringLiteral("d/photo.JPG"), QStringLiteral("d/photo.jpg")),
        entry(QStringLiteral("d/link.txt"), QStringLiteral("d/LINK.txt")) });

    const UndoSummary summary = undo(path);
    EXPECT_EQ(summary.restored, 0);
    EXPECT_EQ(tree.read(QStringLiteral("d/photo.jpg")), QByteArray("renamed"));
    EXPECT_EQ(tree.read(QStringLiteral("d/photo.JPG")), QByteArray("another"));
    EXPECT_TRUE(tree.exists(QStringLiteral("d/LINK.txt")));
    EXPECT_TRUE(tree.exists(QStringLiteral("d/link.txt")));
}

struct EntryRow {
    const char* what;
    RenameLogEntry entry;
    bool undoable;
};

TEST(IsUndoableEntry, OnlyOneNameForAnotherInOneAbsoluteFolder)
{
    const QString d = QStringLiteral("/d");
    RenameLogEntry missingAttribute { d, d, QStringLiteral("a"), QStringLiteral("b") };
    missingAttribute.hasAllAttributes = false;
    const EntryRow rows[] = {
        { "plain", { d, d, QStringLiteral("a"), QStringLiteral("b") }, true },
        // A "/" of a shown name is the ":" of a stored one, so it can never reach another folder.
        { "shown slash", { d, d, QStringLiteral("../a"), QStringLiteral("b/c") }, true },
        { "two folders", { QStringLiteral("/e"), d, QStringLiteral("a"), QStringLiteral("b") }, false },
        { "relative folder",
            { QStringLiteral("d"), QStringLiteral("d"), QStringLiteral("a"), QStringLiteral("b") }, false },
        { "dot dot", { d, d, QStringLiteral(".."), QStringLiteral("b") }, false },
        { "dot", { d, d, QStringLiteral("a"), QStringLiteral(".") }, false },
        { "empty", { d, d, QString(), QStringLiteral("b") }, false },
        { "NUL", { d, d, QStringLiteral("a"), QStringLiteral("b") + QChar(0) }, false },
        { "too long", { d, d, QString(256, QLatin1Char('a')), QStringLiteral("b") }, false },
        { "missing attribute", missingAttribute, false },
    };
    for (const EntryRow& row : rows)
        EXPECT_EQ(isUndoableEntry(row.entry), row.undoable) << row.what;
}

// A log is a text anyone can edit: read as paths, these entries would pull a file out of
// another folder or push one into it.
TEST_F(UndoRenamingTest, ACraftedLogMovesNothingAcrossFolders)
{
    tree.file(QStringLiteral("d/victim"), "v");
    tree.file(QStringLiteral("elsewhere/file"), "e");
    const QString d = tree.path(QStringLiteral("d"));
    const QString elsewhere = tree.path(QStringLiteral("elsewhere"));
    const QList<RenameLogEntry> crafted {
        { d, d, QStringLiteral("../elsewhere/stolen"), QStringLiteral("../elsewhere/file") },
        { elsewhere, d, QStringLiteral("moved"), QStringLiteral("victim") },
        { d, elsewhere, QStringLiteral("pulled in"), QStringLiteral("file") },
        { d + QStringLiteral("/../elsewhere"), d, QStringLiteral("moved"), QStringLiteral("victim") },
    };
    const QString path = log(crafted);

    const UndoSummary summary = undo(path);
    EXPECT_EQ(summary.entries, crafted.size());
    EXPECT_EQ(summary.restored, 0);
    EXPECT_EQ(tree.read(QStringLiteral("d/victim")), QByteArray("v"));
    EXPECT_EQ(tree.read(QStringLiteral("elsewhere/file")), QByteArray("e"));
    EXPECT_EQ(
        QDir(d).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList { QStringLiteral("victim") });
    EXPECT_EQ(QDir(elsewhere).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList { QStringLiteral("file") });
}

TEST_F(UndoRenamingTest, RefusesWhatIsNotALogAndALogInUse)
{
    tree.file(QStringLiteral("d/b"), "b");
    const QString notALog
        = tree.file(QStringLiteral("rules.xml"), "<plist appversion=\"3.0\"><array/></plist>");
    EXPECT_EQ(undo(notALog).outcome, UndoOutcome::NotALog);
    EXPECT_TRUE(QFile::exists(notALog));

    const QString path = log({ entry(QStringLiteral("d/a"), QStringLiteral("d/b")) });
    LogFileLock batch;
    ASSERT_EQ(batch.tryLock(path), LogFileLock::Result::Locked);
    EXPECT_EQ(undo(path).outcome, UndoOutcome::InUse);
    EXPECT_EQ(openLogFile(path).check, LogCheck::InUse);
    EXPECT_FALSE(deleteLog(path));
    EXPECT_TRUE(tree.exists(QStringLiteral("d/b")));
    EXPECT_TRUE(QFile::exists(path));
    batch.release();
    EXPECT_TRUE(deleteLog(path));
    EXPECT_FALSE(QFile::exists(path));
}

class CountingObserver final : public ProgressObserver {
public:
    void progress(const Progress& report) override { last = report; }
    Progress last;
};

TEST_F(UndoRenamingTest, ACancelledUndoKeepsItsLogForTheRest)
{
    tree.file(QStringLiteral("d/b"), "b");
    const QString path = log({ entry(QStringLiteral("d/a"), QStringLiteral("d/b")) });
    const std::atomic_bool cancelled { true };
    CountingObserver observer;
    const UndoSummary summary = undoRenaming(path, cancelled, &observer);
    EXPECT_EQ(summary.outcome, UndoOutcome::Cancelled);
    EXPECT_EQ(observer.last.done, 0);
    EXPECT_EQ(observer.last.total, 1);
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_TRUE(tree.exists(QStringLiteral("d/b")));

    const UndoSummary rest = undoRenaming(path, noCancel, &observer);
    EXPECT_EQ(rest.restored, 1);
    EXPECT_EQ(observer.last.done, 1);
    EXPECT_TRUE(tree.exists(QStringLiteral("d/a")));
}

struct OpenRow {
    const char* what;
    QByteArray content;
    LogCheck check;
    int entries;
};

TEST_F(UndoRenamingTest, OpeningALogChecksItsStampThenItsEntries)
{
    const QList<RenameLogEntry> two { entry(QStringLiteral("d/a"), QStringLiteral("d/b")),
        entry(QStringLiteral("d/c"), QStringLiteral("d/e")) };
    const OpenRow rows[] = {
        { "this version", logxml::document(QStringLiteral("FILES"), two), LogCheck::Ready, 2 },
        { "no entries", logxml::document(QStringLiteral("FILES"), {}), LogCheck::InvalidFile, 0 },
        { "a rule file", "<plist appversion=\"" + appVersion().toUtf8() + "\"><array/></plist>",
            LogCheck::InvalidFile, 0 },
        { "another major version", logxml::document(QStringLiteral("FILES"), two, test::otherMajorVersion()),
            LogCheck::Incompatible, 0 },
        { "no stamp", "<files type=\"FILES\"><file/></files>", LogCheck::Incompatible, 0 },
        { "no XML", "Log", LogCheck::Incompatible, 0 },
    };
    for (const OpenRow& row : rows) {
        const CheckedLog checked = openLogFile(tree.file(QStringLiteral("chosen.xml"), row.content));
        EXPECT_EQ(checked.check, row.check) << row.what;
        EXPECT_EQ(checked.entries, row.entries) << row.what;
    }
}

// A log that cannot be rewritten with the entries left stays as it was, every entry in it, so
// the undo can be tried again; the summary names a few problems and counts the rest.
TEST_F(UndoRenamingTest, ALogThatCannotBeRewrittenStaysWhole)
{
    QList<RenameLogEntry> entries{entry(QStringLiteral("d/back"), QStringLiteral("d/BACK"))};
    tree.file(QStringLiteral("d/BACK"), "b");
    for (int i = 0; i < 24; ++i)
        entries.append(entry(QStringLiteral("d/gone%1").arg(i), QStringLiteral("d/GONE%1").arg(i)));
    const QString path = log(entries);
    UndoSummary summary;
    {
        test::InjectedFaults failing({{test::Call::Rename, 0, EIO}});
        summary = undo(path);
    }
    EXPECT_EQ(summary.restored, 1);
    EXPECT_FALSE(summary.logKept || summary.logDeleted);
    EXPECT_EQ(readLogEntries(path)->entries, entries);
    EXPECT_EQ(QDir(tree.path(QStringLiteral("logs"))).entryList(QDir::Files).size(), 1) << "no part file is left";
    const QString text = undoSummaryText(summary);
    EXPECT_FALSE(text.contains(localized("UNDOLOGKEPT")));
    EXPECT_TRUE(text.contains(localized("UNDOMOREPROBLEMS").arg(QLocale().toString(summary.problems.size() - 20))))
        << qPrintable(text);
}

}  // namespace
