#include "core/engine/Pipeline.h"
#include "core/list/FileList.h"
#include "core/log/LogListing.h"
#include "core/log/LogRecovery.h"
#include "core/log/UndoRenaming.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "support/TempTree.h"

#include <QDir>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace tavrin;

namespace {

// The number of renames the batch may still make before it is killed; -1 never kills.
std::atomic_int renamesBeforeKill { -1 };

}  // namespace

// Every no-replace move of the core goes through renameat2(); this executable's own definition
// stands in for the C library's, so a batch can be killed at an exact rename instead of at a
// moment a timer picks. The kill comes after the entry of that rename reached the log and before
// the rename itself, the worst moment there is.
extern "C" int renameat2(
    int oldFolder, const char* oldPath, int newFolder, const char* newPath, unsigned int flags) noexcept
{
    if (renamesBeforeKill.load() == 0)
        std::raise(SIGKILL);
    if (renamesBeforeKill.load() > 0)
        --renamesBeforeKill;
    return static_cast<int>(::syscall(SYS_renameat2, oldFolder, oldPath, newFolder, newPath, flags));
}

namespace {

constexpr int fileCount = 300;

QString originalName(int i)
{
    return QStringLiteral("file %1.txt").arg(i, 3, 10, QLatin1Char('0'));
}

// Upper-cases every name of the folder through the real preview and apply, logging in `logs`.
void applyUpperCase(const QString& folder, const QString& logs)
{
    Settings settings;
    settings.setProperty("selectedTab", tabs::General);
    settings.setProperty("generalOptionIndex", 0);
    settings.setProperty("generalFileNameCase", 1);
    const std::atomic_bool noCancel { false };
    FileList files;
    files.addFiles({ folder }, ScanOptions { false, true, false }, noCancel);
    const PropertyOptionValues values(settings);
    Pipeline pipeline(files, values);
    pipeline.preview(noCancel, nullptr);
    pipeline.applyRenames(logs, nullptr, noCancel, nullptr);
}

class KilledBatchTest : public ::testing::TestWithParam<int> { };

TEST_P(KilledBatchTest, IsFinishedAtTheNextStartAndUndoneCompletely)
{
    const int renamedBeforeKill = GetParam();
    test::TempTree tree;
    for (int i = 0; i < fileCount; ++i)
        tree.file(QStringLiteral("d/") + originalName(i), QByteArray::number(i));
    const QString folder = tree.path(QStringLiteral("d"));
    const QString logs = tree.folder(QStringLiteral("logs"));

    const auto killedBatch = [&] {
        renamesBeforeKill.store(renamedBeforeKill);
        applyUpperCase(folder, logs);
        std::_Exit(0);
    };
    EXPECT_EXIT(killedBatch(), ::testing::KilledBySignal(SIGKILL), "");
    const QStringList left = QDir(logs).entryList(QDir::Files);
    ASSERT_EQ(left.size(), 1);
    ASSERT_TRUE(left.first().endsWith(QStringLiteral("-#.xml")));
    EXPECT_TRUE(loadUserLogFiles(logs).isEmpty());

    const LogRecoveryReport recovery = recoverInterruptedLogs(logs);
    ASSERT_EQ(recovery.finished.size(), 1);
    const QList<LogFileRecord> listed = loadUserLogFiles(logs);
    ASSERT_EQ(listed.size(), 1);
    // The entry of the rename the kill prevented stays; undo finds that item under its old name.
    EXPECT_EQ(listed.first().filesCount, renamedBeforeKill + 1);

    const std::atomic_bool noCancel { false };
    const UndoSummary summary = undoRenaming(listed.first().path, noCancel, nullptr);
    EXPECT_EQ(summary.entries, renamedBeforeKill + 1);
    EXPECT_EQ(summary.restored, renamedBeforeKill + 1);
    EXPECT_TRUE(summary.logDeleted);
    ASSERT_EQ(QDir(folder).entryList(QDir::Files).size(), fileCount);
    for (int i = 0; i < fileCount; ++i)
        ASSERT_EQ(tree.read(QStringLiteral("d/") + originalName(i)), QByteArray::number(i))
            << originalName(i).toStdString();
    EXPECT_TRUE(QDir(logs).entryList(QDir::Files).isEmpty());
}

// Killed at its first rename, a third of the way and near its end.
INSTANTIATE_TEST_SUITE_P(KillPoints, KilledBatchTest, ::testing::Values(0, fileCount / 3, fileCount - 1));

}  // namespace
