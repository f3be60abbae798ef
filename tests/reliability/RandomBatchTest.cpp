#include "core/log/LogListing.h"
#include "core/log/UndoRenaming.h"
#include "core/platform/FaultInjection.h"
#include "core/profiles/Tabs.h"
#include "reliability/BatchChecks.h"
#include "support/TempTree.h"

#include <QDir>
#include <gtest/gtest.h>
#include <random>

using namespace tavrin;

// Thousands of random batches over names from a tiny alphabet, so that duplicates, swaps,
// chains and case variants are everyday events; each applied in a real folder, checked item
// by item, then undone and checked again. A second run has a process create the new name of
// every fifth move just before it is made.
namespace {

class RandomBatches {
public:
    explicit RandomBatches(unsigned seed)
        : m_random(seed)
    {
    }

    QString name(int longest = 3)
    {
        static const char* pieces[] = {"a", "A", "b", "B", ".", "a.b", " "};
        QString text;
        const int length = pick(1, longest);
        for (int i = 0; i < length; ++i)
            text += QLatin1String(pieces[pick(0, std::size(pieces) - 1)]);
        return text;
    }

    void fill(test::TempTree& tree)
    {
        const int count = pick(1, 8);
        for (int i = 0; i < count; ++i) {
            const QString base = name();
            const QString item = QStringLiteral("d/") + base;
            if (base == QLatin1String(".") || base == QLatin1String("..") || tree.exists(item))
                continue;
            if (pick(0, 5) == 0)
                tree.symlink(QStringLiteral("target ") + name(), item);
            else
                tree.file(item, QFile::encodeName(item));
        }
    }

    void settle(Settings& settings)
    {
        switch (pick(0, 3)) {
        case 0:
            settings.setProperty("selectedTab", tabs::ReplaceRemove);
            settings.setProperty("replaceRemoveThis", name(1));
            settings.setProperty("replaceRemoveWith", pick(0, 2) == 0 ? QString() : name(2));
            break;
        case 1:
            settings.setProperty("selectedTab", tabs::InsertDelete);
            settings.setProperty("insertDeleteInsert", name(2));
            break;
        case 2:
            settings.setProperty("selectedTab", tabs::General);
            settings.setProperty("generalOptionIndex", 0);
            settings.setProperty("generalFileNameCase", pick(0, 3));
            break;
        default:
            settings.setProperty("selectedTab", tabs::PrefixSuffix);
            settings.setProperty("prefixSuffixPrefix", name(2));
            settings.setProperty("prefixSuffixSuffix", name(1));
            break;
        }
    }

    int pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }

private:
    std::mt19937 m_random;
};

struct Totals {
    int batches = 0;
    int renamed = 0;
    int raced = 0;
    int undoFailures = 0;
};

void runBatches(int batches, bool racing, Totals& totals)
{
    const unsigned seed = qEnvironmentVariableIntValue("TAVRIN_STRESS_SEED") + (racing ? 1 : 0);
    RandomBatches random(seed);
    for (int batch = 0; batch < batches; ++batch) {
        test::TempTree tree;
        random.fill(tree);
        const QString folder = tree.folder(QStringLiteral("d"));
        const QString logs = tree.folder(QStringLiteral("logs"));
        Settings settings;
        random.settle(settings);
        const test::Snapshot before = test::snapshot(folder);
        ApplyOutcome outcome;
        {
            // The racer creates the new name just before every fifth move of an item.
            const auto racer = [&totals, &folder](const char* path) {
                QFile file(QFile::decodeName(path));
                if (!file.fileName().startsWith(folder))
                    return;
                totals.raced += file.open(QIODevice::NewOnly) && file.write("racer") == 5;
            };
            std::vector<test::Fault> faults;
            for (int nth = 1; racing && nth <= 40; nth += 5)
                faults.push_back({test::Call::RenameNoReplace, nth, 0, false, racer});
            test::InjectedFaults injected(faults);
            outcome = test::applyBatch(folder, logs, settings);
        }
        ++totals.batches;
        totals.renamed += outcome.renamed;
        const QList<RenameLogEntry> entries = test::loggedEntries(logs);
        const test::Snapshot applied = test::snapshot(folder);
        ASSERT_EQ(test::brokenGuarantees(before, applied, entries), QStringList()) << "seed " << seed << " batch " << batch;
        ASSERT_TRUE(outcome.logError.isEmpty());

        const std::atomic_bool noCancel {false};
        for (const LogFileRecord& log : loadUserLogFiles(logs)) {
            const UndoSummary summary = undoRenaming(log.path, noCancel, nullptr);
            totals.undoFailures += summary.notRestored();
            ASSERT_EQ(summary.notRestored(), 0) << undoSummaryText(summary).toStdString() << " seed " << seed << " batch " << batch;
        }
        test::Snapshot undone = test::snapshot(folder);
        undone.removeIf([](const auto& item) { return item.value().content == "racer"; });
        ASSERT_EQ(undone, before) << "seed " << seed << " batch " << batch;
    }
}

TEST(RandomBatches, NothingLostNothingOverwrittenEverythingUndone)
{
    Totals totals;
    runBatches(test::stressIterations(200), false, totals);
    EXPECT_GT(totals.renamed, totals.batches / 2) << "the batches rename something";
    std::printf("random batches: %d, renamed %d, undo failures %d\n", totals.batches, totals.renamed, totals.undoFailures);
}

TEST(RandomBatches, ARacingCreatorIsNeverReplaced)
{
    Totals totals;
    runBatches(test::stressIterations(200), true, totals);
    std::printf("racing batches: %d, renamed %d, names raced %d\n", totals.batches, totals.renamed, totals.raced);
}

}  // namespace
