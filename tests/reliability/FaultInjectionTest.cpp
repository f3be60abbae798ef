#include "core/log/LogListing.h"
#include "core/log/UndoRenaming.h"
#include "core/platform/FaultInjection.h"
#include "core/profiles/Tabs.h"
#include "reliability/BatchChecks.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

using namespace tavrin;

// Every rename, link, write, sync and open the engine makes can fail, or do its work and
// report a failure. Whatever fails, at whichever call: no item is lost or overwritten, the logs
// name every rename that happened, and undo (tried again when it failed) restores everything.
namespace {

constexpr int itemCount = 7;

struct Batch {
    test::TempTree tree;
    QString folder;
    QString logs;
    test::Snapshot before;

    Batch()
    {
        for (int i = 0; i < itemCount; ++i)
            tree.file(QStringLiteral("d/f%1").arg(i), QByteArray::number(i));
        folder = tree.path(QStringLiteral("d"));
        logs = tree.folder(QStringLiteral("logs"));
        before = test::snapshot(folder);
    }

    ApplyOutcome apply(const std::vector<test::Fault>& faults)
    {
        Settings settings;
        settings.setProperty("selectedTab", tabs::InsertDelete);
        settings.setProperty("insertDeleteInsert", QStringLiteral("x"));
        test::InjectedFaults injected(faults);
        return test::applyBatch(folder, logs, settings, [] { return true; });
    }

    // Undoes every log, newest first, with the faults given; answers the entries not restored.
    int undo(const std::vector<test::Fault>& faults = {})
    {
        test::InjectedFaults injected(faults);
        const std::atomic_bool noCancel {false};
        int notRestored = 0;
        for (const LogFileRecord& log : loadUserLogFiles(logs))
            notRestored += undoRenaming(log.path, noCancel, nullptr).notRestored();
        return notRestored;
    }
};

struct FaultRow {
    test::Call call;
    std::vector<int> errors;
    bool afterDoing = false;
    bool everyRenameUnsupported = false; // renameat2() without RENAME_NOREPLACE: the link fallback runs
};

const char* callName(test::Call call)
{
    static const char* names[] = {"renameat2", "rename", "link", "unlink", "open", "write", "fsync"};
    return names[int(call)];
}

TEST(FaultInjection, AnyFailedCallLosesNothingAndLeavesTheWayBack)
{
    const FaultRow rows[] = {
        {test::Call::RenameNoReplace, {EIO, ENOSPC, EACCES, EXDEV, EINVAL, ENAMETOOLONG}},
        // Regression: a rename the kernel made but reported as failed was dropped from the log.
        {test::Call::RenameNoReplace, {EIO}, true},
        {test::Call::Link, {EIO, EPERM, EEXIST}, false, true},
        {test::Call::Unlink, {EIO}, false, true},
        {test::Call::Write, {EIO, ENOSPC}},
        {test::Call::Sync, {EIO}},
        {test::Call::Open, {EACCES, ENOSPC}},
    };
    int cases = 0;
    int injected = 0;
    for (const FaultRow& row : rows) {
        for (int error : row.errors) {
            for (int nth : {1, 2, 4, 7, 9}) {
                Batch batch;
                std::vector<test::Fault> faults {{row.call, nth, error, row.afterDoing}};
                if (row.everyRenameUnsupported)
                    faults.push_back({test::Call::RenameNoReplace, 0, EINVAL});
                const ApplyOutcome outcome = batch.apply(faults);
                injected += test::InjectedFaults::injected();
                const std::string what = std::string(callName(row.call)) + " #" + std::to_string(nth) + " errno "
                    + std::to_string(error) + (row.afterDoing ? " after doing it" : "");
                const test::Snapshot applied = test::snapshot(batch.folder);
                EXPECT_EQ(test::brokenGuarantees(batch.before, applied, test::loggedEntries(batch.logs)), QStringList())
                    << what;
                EXPECT_EQ(batch.undo(), 0) << what;
                EXPECT_EQ(test::snapshot(batch.folder), batch.before) << what;
                EXPECT_TRUE(outcome.renamed > 0 || outcome.aborted || applied == batch.before) << what;
                ++cases;
            }
        }
    }
    std::printf("fault injection: %d apply cases, %d faults injected\n", cases, injected);
}

// Regression: a transient error during undo deleted the log, so the undo could not be tried again.
TEST(FaultInjection, AnUndoThatFailsPartWayCanBeTriedAgain)
{
    for (int error : {EIO, ENOSPC, EACCES, EXDEV}) {
        for (int nth : {1, 3, itemCount}) {
            Batch batch;
            ASSERT_EQ(batch.apply({}).renamed, itemCount);
            EXPECT_EQ(batch.undo({{test::Call::RenameNoReplace, nth, error}}), 1) << error << " #" << nth;
            EXPECT_EQ(batch.undo(), 0) << error << " #" << nth;
            EXPECT_EQ(test::snapshot(batch.folder), batch.before) << error << " #" << nth;
            EXPECT_TRUE(loadUserLogFiles(batch.logs).isEmpty());
        }
    }
}

// The new name, or the old one during undo, is taken by another process between the check
// and the move: it is never replaced, the item stays where it is, and undo reports it.
TEST(FaultInjection, ANameTakenBetweenCheckAndMoveIsNeverReplaced)
{
    const auto racer = [](const char* path) {
        QFile file(QFile::decodeName(path));
        file.open(QIODevice::NewOnly) && file.write("racer");
    };
    for (int nth : {1, 4, itemCount}) {
        Batch batch;
        EXPECT_EQ(batch.apply({{test::Call::RenameNoReplace, nth, 0, false, racer}}).renamed, itemCount - 1);
        EXPECT_EQ(test::brokenGuarantees(batch.before, test::snapshot(batch.folder), test::loggedEntries(batch.logs)),
            QStringList());
        // Undo makes one move fewer: the raced item kept its name.
        EXPECT_EQ(batch.undo({{test::Call::RenameNoReplace, std::min(nth, itemCount - 1), 0, false, racer}}), 1);
        test::Snapshot undone = test::snapshot(batch.folder);
        EXPECT_EQ(undone.size(), itemCount + 2) << "both racers' files are there";
        EXPECT_EQ(loadUserLogFiles(batch.logs).size(), 1) << "the log keeps the entry";
    }
}

TEST(FaultInjection, AnUnwritableLogFolderStopsTheBatchBeforeAnyRename)
{
    Batch batch;
    Settings settings;
    settings.setProperty("selectedTab", tabs::InsertDelete);
    settings.setProperty("insertDeleteInsert", QStringLiteral("x"));
    test::InjectedFaults unwritable({{test::Call::Open, 0, EACCES}});
    const ApplyOutcome outcome = test::applyBatch(batch.folder, batch.logs, settings, [] { return false; });
    EXPECT_TRUE(outcome.aborted);
    EXPECT_EQ(test::snapshot(batch.folder), batch.before);
}

}  // namespace
