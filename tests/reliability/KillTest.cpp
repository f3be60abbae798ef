#include "core/log/LogListing.h"
#include "core/log/UndoRenaming.h"
#include "core/platform/FaultInjection.h"
#include "core/profiles/Tabs.h"
#include "reliability/BatchChecks.h"
#include "support/TempTree.h"

#include <csignal>
#include <gtest/gtest.h>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace tavrin;

// A child process applies or undoes a large batch and is killed with SIGKILL: at a random
// rename (the kill comes just before it, after its entry reached the log), or after a random
// delay. The next start finishes the logs it left, and undo restores every item.
namespace {

constexpr int fileCount = 1000;

void applyInsert(const QString& folder, const QString& logs)
{
    Settings settings;
    settings.setProperty("selectedTab", tabs::InsertDelete);
    settings.setProperty("insertDeleteInsert", QStringLiteral("renamed "));
    test::applyBatch(folder, logs, settings);
}

// Runs `work` in a child killed at its `killAtRename`-th rename (0: never), or `delayMs` after
// it starts (-1: never). True when the child died by SIGKILL.
bool runKilled(const std::function<void()>& work, int killAtRename, int delayMs)
{
    const pid_t child = ::fork();
    if (child == 0) {
        std::vector<test::Fault> faults;
        if (killAtRename > 0)
            faults.emplace_back(test::Call::RenameNoReplace, killAtRename, 0, false, [](const char*) { std::raise(SIGKILL); });
        test::InjectedFaults killer(faults);
        work();
        std::_Exit(0);
    }
    if (delayMs >= 0) {
        ::usleep(useconds_t(delayMs) * 1000);
        ::kill(child, SIGKILL);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

int undoAll(const QString& logs)
{
    recoverInterruptedLogs(logs);
    const std::atomic_bool noCancel {false};
    int notRestored = 0;
    for (const LogFileRecord& log : loadUserLogFiles(logs))
        notRestored += undoRenaming(log.path, noCancel, nullptr).notRestored();
    return notRestored;
}

TEST(KilledBatches, TheNextStartRecoversAndUndoRestoresEverything)
{
    std::mt19937 random(qEnvironmentVariableIntValue("TAVRIN_STRESS_SEED"));
    const int rounds = test::stressIterations(4);
    int kills = 0;
    for (int round = 0; round < rounds; ++round) {
        test::TempTree tree;
        for (int i = 0; i < fileCount; ++i)
            tree.file(QStringLiteral("d/f%1").arg(i), QByteArray::number(i));
        const QString folder = tree.path(QStringLiteral("d"));
        const QString logs = tree.folder(QStringLiteral("logs"));
        const test::Snapshot before = test::snapshot(folder);
        const bool byRename = round % 2 == 0;
        // The first kills come at the first rename and at the last, the one that names the log.
        const int killAt = !byRename ? 0
            : round == 0             ? 1
            : round == 2             ? fileCount + 1
                                     : std::uniform_int_distribution<int>(1, fileCount + 1)(random);
        const int delay = byRename ? -1 : std::uniform_int_distribution<int>(0, 100)(random);

        const bool applyKilled = runKilled([&] { applyInsert(folder, logs); }, killAt, delay);
        EXPECT_EQ(test::brokenGuarantees(before, test::snapshot(folder), test::loggedEntries(logs)), QStringList())
            << "apply killed at rename " << killAt << " / after " << delay << " ms";

        // The undo is killed in turn, then finished by a second one.
        const auto logged = int(test::loggedEntries(logs).size());
        const int undoKillAt = std::uniform_int_distribution<int>(1, std::max(1, logged))(random);
        const bool undoKilled = runKilled([&] { undoAll(logs); }, byRename ? undoKillAt : 0, byRename ? -1 : delay / 8);
        kills += int(applyKilled) + int(undoKilled);
        std::printf("round %d: apply %s at %d / %d ms, undo %s at %d\n", round, applyKilled ? "killed" : "done",
            killAt, delay, undoKilled ? "killed" : "done", undoKillAt);
        EXPECT_EQ(undoAll(logs), 0) << "round " << round;
        EXPECT_EQ(test::snapshot(folder), before) << "round " << round;
        EXPECT_TRUE(QDir(logs).entryList(QDir::Files).isEmpty()) << "round " << round;
    }
    std::printf("kill tests: %d rounds, %d children killed by SIGKILL\n", rounds, kills);
}

}  // namespace
