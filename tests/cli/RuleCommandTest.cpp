#include "CliRunner.h"

#include <QJsonArray>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;
using test::args;
using test::CliRun;
using test::parseJson;

namespace {

class RuleCommandTest : public test::CliTest {
protected:
    QString rule() const { return tree.path(u"chain.tnrule"_s); }
    QString profile() const { return tree.path(u"mine.tnprofile"_s); }

    CliRun withFile(const char* command, const QString& file, const char* options = "")
    {
        const QStringList words = args(command);
        return run(words.mid(0, 2) + QStringList{file} + args(options));
    }
};

// Three steps built one by one, then run by preview and apply as the window runs them.
TEST_F(RuleCommandTest, StepsAddedOneByOneRunInOrder)
{
    tree.file(u"d/a b.txt"_s);
    tree.file(u"d/c d.txt"_s);
    ASSERT_EQ(run(QStringList{u"rule"_s, u"add"_s, rule(), u"--tab=replaceremove"_s, u"--set"_s,
                              u"replaceRemoveThis= "_s, u"--set=replaceRemoveWith=_"_s})
                  .exitCode,
              0);
    ASSERT_EQ(withFile("rule add", rule(), "--tab general --set generalFileNameCase=1").exitCode, 0);
    const CliRun third = withFile("rule add", rule(), "--tab 0 --set isAlphaNumericSufix=1 --set alphaNumericPaddingMask=00");
    ASSERT_EQ(third.exitCode, 0) << third.err.toStdString();
    EXPECT_EQ(third.out, u"Step 3 added to "_s + rule() + u'\n');

    const QJsonArray steps = parseJson(run({u"rule"_s, u"show"_s, rule(), u"--json"_s})).value("steps"_L1).toArray();
    ASSERT_EQ(steps.size(), 3);
    EXPECT_EQ(steps[2].toObject().value("title"_L1).toString(), u"Numbers"_s);
    EXPECT_EQ(steps[2].toObject().value("options"_L1).toArray()[0].toObject().value("value"_L1).toString(), u"1"_s);

    const CliRun preview = run({u"preview"_s, u"--rule"_s, rule(), tree.path(u"d"_s), u"--recursive"_s});
    EXPECT_EQ(preview.out, u"a b.txt\tA_B01.txt\nc d.txt\tC_D02.txt\nNew names: 2\n"_s) << preview.err.toStdString();
    EXPECT_EQ(run({u"apply"_s, u"--yes"_s, u"--rule"_s, rule(), tree.path(u"d/a b.txt"_s)}).exitCode, 0);
    EXPECT_TRUE(tree.exists(u"d/A_B01.txt"_s));
}

TEST_F(RuleCommandTest, RulesThatCannotBeUsedExitWithTheirMessageAndChangeNothing)
{
    const QByteArray foreign = "<?xml version=\"1.0\"?><plist version=\"1.0\" appversion=\"9.1\"><array/></plist>";
    const QString other = tree.file(u"other.tnrule"_s, foreign);
    const QString broken = tree.file(u"broken.tnrule"_s, "<plist appversion=\"" TAVRIN_VERSION "\"><array><dict>");
    tree.file(u"d/x.txt"_s);
    struct Row {
        QStringList arguments;
        const char* message;
    };
    const Row rows[] = {
        {{u"rule"_s, u"show"_s, other}, "another major version"},
        {{u"preview"_s, u"--rule"_s, broken, tree.path(u"d/x.txt"_s)}, "not a Tavrin rule file"},
        {{u"rule"_s, u"add"_s, other, u"--tab=general"_s}, "another major version"},
        {{u"rule"_s, u"add"_s, rule(), u"--tab=insertdelete"_s}, "Please enter a valid value"},
        {{u"rule"_s, u"show"_s, tree.path(u"none.tnrule"_s)}, "not a Tavrin rule file"},
    };
    for (const Row& row : rows) {
        const CliRun result = run(row.arguments);
        EXPECT_EQ(result.exitCode, 2) << qPrintable(row.arguments.join(u' '));
        EXPECT_TRUE(result.err.contains(QString::fromLatin1(row.message))) << result.err.toStdString();
    }
    EXPECT_EQ(tree.read(u"other.tnrule"_s), foreign);
    EXPECT_FALSE(tree.exists(u"chain.tnrule"_s));
    EXPECT_TRUE(tree.exists(u"d/x.txt"_s));
}

TEST_F(RuleCommandTest, AProfileKeepsItsOptionsAndStartsACommandBeforeItsSets)
{
    const CliRun saved = withFile("profile save", profile(), "--tab replaceremove --set replaceRemoveThis=o --set replaceRemoveWith=0");
    ASSERT_EQ(saved.exitCode, 0) << saved.err.toStdString();
    const QByteArray bytes = tree.read(u"mine.tnprofile"_s);
    const CliRun again = withFile("profile save", profile(), "--tab general");
    EXPECT_EQ(again.exitCode, 2);
    EXPECT_EQ(tree.read(u"mine.tnprofile"_s), bytes) << "replaced only with --yes";

    const CliRun shown = withFile("profile show", profile());
    EXPECT_TRUE(shown.out.contains(u"selectedTab\t2\n"_s));
    EXPECT_TRUE(shown.out.contains(u"replaceRemoveWith\t0\n"_s));
    EXPECT_EQ(parseJson(withFile("profile show", profile(), "--json")).value("options"_L1).toObject().value("replaceRemoveThis"_L1),
              QJsonValue(u"o"_s));

    tree.file(u"d/foo.txt"_s);
    const CliRun preview = run({u"preview"_s, u"--profile"_s, profile(), tree.path(u"d/foo.txt"_s)});
    EXPECT_EQ(preview.out, u"foo.txt\tf0o.txt\nNew names: 1\n"_s) << preview.err.toStdString();
    const CliRun overridden = run({u"preview"_s, u"--profile"_s, profile(), u"--set=replaceRemoveWith=a"_s, tree.path(u"d/foo.txt"_s)});
    EXPECT_TRUE(overridden.out.startsWith(u"foo.txt\tfao.txt\n"_s));

    tree.file(u"old.tnprofile"_s, "<plist version=\"1.0\"><dict><key>appVersion</key><string>2.3</string></dict></plist>");
    const CliRun old = run({u"preview"_s, u"--profile"_s, tree.path(u"old.tnprofile"_s), tree.path(u"d/foo.txt"_s)});
    EXPECT_EQ(old.exitCode, 2);
    EXPECT_TRUE(old.err.contains(u"old.tnprofile"_s)) << old.err.toStdString();
}

}  // namespace
