#include "core/engine/Pipeline.h"
#include "core/formats/KeyedArchive.h"
#include "core/list/FileList.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/rules/StepRecord.h"
#include "support/TempTree.h"

#include <QDir>
#include <functional>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;

namespace {

RuleStep step(int tab, const std::function<void(Settings&)>& set)
{
    Settings settings;
    settings.setSelectedTab(tab);
    set(settings);
    return getRule(settings).step.value_or(RuleStep());
}

RuleStep numbers(bool prefix, bool alphabetic, bool resetPerFolder)
{
    return step(tabs::AlphaNumeric, [=](Settings& s) {
        s.chooseNumericOrAlphabetic(alphabetic ? 1 : 0);
        s.setIsAlphaNumericPrefix(prefix);
        s.setIsAlphaNumericSufix(!prefix);
        s.setIsAlphaNumericResetSequenceOnEachFolder(resetPerFolder);
    });
}

RuleStep upperCase()
{
    return step(tabs::General, [](Settings& s) { s.chooseGeneralOption(0); s.setGeneralFileNameCase(1); });
}

class RuleChainTest : public ::testing::Test {
protected:
    void list(const QStringList& relativePaths)
    {
        QStringList paths;
        for (const QString& relative : relativePaths)
            paths << tree.file(relative);
        files.addFiles(paths, ScanOptions{false, false, false}, noCancel);
    }

    PreviewOutcome preview(const RuleChain& rules)
    {
        const PropertyOptionValues values(settings);
        return Pipeline(files, values).previewRule(rules, noCancel, nullptr);
    }

    QStringList newNames() const
    {
        QStringList names;
        for (const FileSystemItem& item : files.items())
            names << item.newFilename();
        return names;
    }

    test::TempTree tree;
    Settings settings;
    FileList files;
    std::atomic_bool noCancel{false};
};

TEST_F(RuleChainTest, ThreeActionsRunInOrderEachOnTheNameBeforeItAndApply)
{
    list({u"d/a b.txt"_s, u"d/c d.txt"_s});
    const RuleStep spaces = step(tabs::ReplaceRemove, [](Settings& s) {
        s.setReplaceRemoveThis(u" "_s);
        s.setReplaceRemoveWith(u"_"_s);
    });
    RuleStep separated = numbers(false, false, false);
    separated.insert(u"isAlphaNumericSeperator"_s, u"1"_s);
    separated.insert(u"alphaNumericSeperator"_s, u"-"_s);

    const PreviewOutcome outcome = preview({spaces, upperCase(), separated});
    EXPECT_TRUE(outcome.hasFilesForRenaming);
    EXPECT_EQ(newNames(), QStringList({u"A_B-1.txt"_s, u"C_D-2.txt"_s}));

    const PropertyOptionValues values(settings);
    const ApplyOutcome applied = Pipeline(files, values).applyRenames(tree.folder(u"logs"_s), nullptr, noCancel, nullptr);
    EXPECT_EQ(applied.renamed, 2);
    EXPECT_EQ(QDir(tree.path(u"d"_s)).entryList(QDir::Files), QStringList({u"A_B-1.txt"_s, u"C_D-2.txt"_s}));
}

// Each numbering step counts on its own; only the one that restarts per folder starts again,
// and a step switched off is passed over.
TEST_F(RuleChainTest, EachStepKeepsItsOwnCounterAndInactiveStepsAreSkipped)
{
    list({u"f2/z.txt"_s, u"f1/y.txt"_s, u"f1/x.txt"_s});
    RuleStep off = upperCase();
    setStepActive(off, false);

    preview({numbers(true, false, true), numbers(false, true, false), off});
    EXPECT_EQ(newNames(), QStringList({u"1xa.txt"_s, u"2yb.txt"_s, u"1zc.txt"_s}));
    // A second preview starts every counter again.
    preview({numbers(true, false, true), numbers(false, true, false), off});
    EXPECT_EQ(newNames().last(), u"1zc.txt"_s);
}

// "LASTRULE" as the original program's archiver leaves it: a mutable array of mutable
// dictionaries whose keys and values are listed apart.
TEST_F(RuleChainTest, AChainArchivedByTheOtherProgramRuns)
{
    const auto uid = [](int index) { return "<dict><key>CF$UID</key><integer>" + QByteArray::number(index) + "</integer></dict>"; };
    const auto classOf = [](const QByteArray& name) {
        return "<dict><key>$classname</key><string>" + name + "</string><key>$classes</key><array><string>" + name
            + "</string><string>NSObject</string></array></dict>";
    };
    const QByteArray archive =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
        "<key>$archiver</key><string>NSKeyedArchiver</string><key>$version</key><integer>100000</integer>"
        "<key>$top</key><dict><key>root</key>" + uid(1) + "</dict><key>$objects</key><array><string>$null</string>"
        "<dict><key>NS.objects</key><array>" + uid(2) + "</array><key>$class</key>" + uid(13) + "</dict>"
        "<dict><key>NS.keys</key><array>" + uid(3) + uid(4) + uid(5) + uid(6) + uid(7) + "</array>"
        "<key>NS.objects</key><array>" + uid(8) + uid(8) + uid(9) + uid(10) + uid(9) + "</array>"
        "<key>$class</key>" + uid(12) + "</dict>"
        "<string>rule</string><string>type</string><string>isActive</string><string>generalOptionIndex</string>"
        "<string>generalFileNameCase</string><string>General</string><string>1</string><string>0</string>"
        "<string>unused</string>" + classOf("NSMutableDictionary") + classOf("NSMutableArray") + "</array></dict></plist>";
    const std::optional<RuleChain> rules = chainFromVariant(keyedUnarchive(archive).value_or(QVariant()));
    ASSERT_TRUE(rules);
    ASSERT_EQ(rules->size(), 1);
    list({u"a/mixed Case.txt"_s});
    preview(*rules);
    EXPECT_EQ(newNames(), QStringList({u"MIXED CASE.txt"_s}));
}

}  // namespace
