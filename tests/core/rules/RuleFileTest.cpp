#include "core/formats/VersionStamp.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/rules/RuleFile.h"
#include "core/rules/StepRecord.h"
#include "core/text/LocalizedStrings.h"
#include "support/TempTree.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;

namespace {

RuleStep generalStep(int option)
{
    Settings settings;
    settings.setSelectedTab(tabs::General);
    settings.chooseGeneralOption(option);
    return getRule(settings).step.value_or(RuleStep());
}

QByteArray plistDocument(const QByteArray& rootAttributes, const QByteArray& body)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\"" + rootAttributes + ">\n" + body + "</plist>\n";
}

// The layout the original program writes: the array of step dictionaries, the stamp on the
// root element, every value a string but the counter and the lists.
TEST(RuleFile, IsAStampedXmlPropertyListOfTheSteps)
{
    test::TempTree tree;
    RuleStep numbering;
    numbering.insert(u"rule"_s, u"AlphaNumeric"_s);
    numbering.insert(u"type"_s, u"Numeric"_s);
    numbering.insert(u"isActive"_s, u"0"_s);
    numbering.insert(u"alphaNumericPaddingMask"_s, u"000"_s);
    numbering.insert(u"sequence"_s, -1);
    numbering.insert(u"zeta"_s, QVariantList{u"<Artist>"_s});
    const QString path = tree.path(u"two.tnrule"_s);
    ASSERT_TRUE(saveRuleFile({numbering}, path));

    const QByteArray expected = plistDocument(
        " appversion=\"" + appVersion().toUtf8() + "\"",
        "<array>\n\t<dict>\n"
        "\t\t<key>rule</key>\n\t\t<string>AlphaNumeric</string>\n"
        "\t\t<key>type</key>\n\t\t<string>Numeric</string>\n"
        "\t\t<key>isActive</key>\n\t\t<string>0</string>\n"
        "\t\t<key>alphaNumericPaddingMask</key>\n\t\t<string>000</string>\n"
        "\t\t<key>sequence</key>\n\t\t<integer>-1</integer>\n"
        "\t\t<key>zeta</key>\n\t\t<array>\n\t\t\t<string>&lt;Artist&gt;</string>\n\t\t</array>\n"
        "\t</dict>\n</array>\n");
    EXPECT_EQ(tree.read(u"two.tnrule"_s), expected);
}

TEST(RuleFile, SavedStepsOpenAgainUnchanged)
{
    test::TempTree tree;
    const RuleChain rules = {generalStep(0), generalStep(6), generalStep(11)};
    const QString path = tree.path(u"chain.tnrule"_s);
    ASSERT_TRUE(saveRuleFile(rules, path));
    const RuleFileOutcome opened = openRuleFile(path);
    EXPECT_EQ(opened.status, RuleFileStatus::Opened);
    EXPECT_EQ(opened.rules, rules);
    // Saving what was opened writes the same bytes.
    const QByteArray first = tree.read(u"chain.tnrule"_s);
    ASSERT_TRUE(saveRuleFile(opened.rules, path));
    EXPECT_EQ(tree.read(u"chain.tnrule"_s), first);
}

TEST(RuleFile, OpensOnlyTheSameMajorVersion)
{
    struct Row {
        const char* file;
        const char* application;
        bool match;
    };
    const Row rows[] = {{"4.0", "4.2.1", true}, {"3.9", "4.2.1", false}, {"2.3", "2.0", true}, {"2.3", "2.9", true},
                        {"2.3", "3.0", false}, {"30.0", "3.0.0", false}, {"", "3.0.0", false}};
    for (const Row& row : rows)
        EXPECT_EQ(isFileVersionMatch(QString::fromLatin1(row.file), QString::fromLatin1(row.application)), row.match)
            << row.file << " in " << row.application;
    EXPECT_FALSE(isFileVersionMatch(std::nullopt, u"3.0.0"_s));
}

TEST(RuleFile, ForeignHostileAndBrokenFilesAreRefusedWithTheirMessage)
{
    test::TempTree tree;
    const QByteArray stamp = " appversion=\"" + appVersion().toUtf8() + "\"";
    const QByteArray oneStep = "<array><dict><key>rule</key><string>General</string></dict></array>\n";
    struct Row {
        const char* name;
        QByteArray content;
        RuleFileStatus status;
        const char* messageKey;
    };
    const Row rows[] = {
        {"other major", plistDocument(" appversion=\"9.0\"", oneStep), RuleFileStatus::Incompatible, "OPENRULEINCOMPATIBLE"},
        {"no stamp", plistDocument("", oneStep), RuleFileStatus::Incompatible, "OPENRULEINCOMPATIBLE"},
        {"truncated", plistDocument(stamp, oneStep).left(230), RuleFileStatus::Unreadable, "RULEUNREADABLE"},
        {"not a list", plistDocument(stamp, "<dict/>\n"), RuleFileStatus::Unreadable, "RULEUNREADABLE"},
        {"a date in a step", plistDocument(stamp, "<array><dict><key>x</key><date>2001-01-01T00:00:00Z</date></dict></array>\n"),
         RuleFileStatus::Unreadable, "RULEUNREADABLE"},
        {"deep", plistDocument(stamp, QByteArray(500, '[').replace('[', "<array>") + QByteArray(500, ']').replace(']', "</array>")),
         RuleFileStatus::Unreadable, "RULEUNREADABLE"},
        {"entities", "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY a \"aaaa\">]><plist" + stamp + "><array><dict><key>rule</key><string>&a;</string></dict></array></plist>",
         RuleFileStatus::Unreadable, "RULEUNREADABLE"},
        {"garbage", "\x00\x01 not xml", RuleFileStatus::Unreadable, "RULEUNREADABLE"},
    };
    for (const Row& row : rows) {
        const QString path = tree.file(QString::fromLatin1(row.name) + u".tnrule"_s, row.content);
        const RuleFileOutcome opened = openRuleFile(path);
        EXPECT_EQ(opened.status, row.status) << row.name;
        EXPECT_TRUE(opened.rules.isEmpty()) << row.name;
        EXPECT_EQ(opened.message, localized(row.messageKey).arg(QString::fromLatin1(row.name) + u".tnrule"_s)) << row.name;
    }
    // The menu opens any version, but nothing that is not a list of steps.
    EXPECT_EQ(readRuleSteps(tree.path(u"other major.tnrule"_s))->size(), 1);
    EXPECT_FALSE(readRuleSteps(tree.path(u"deep.tnrule"_s)));
}

TEST(RuleFile, AFileThatCannotBeStampedIsRemovedAndTheOldPrefixGoes)
{
    test::TempTree tree;
    EXPECT_FALSE(addAppVersionToRuleFile(tree.file(u"plain.txt"_s, "no XML here")));
    EXPECT_EQ(tree.read(u"plain.txt"_s), QByteArray("no XML here"));
    QString error;
    EXPECT_FALSE(saveRuleFile({generalStep(0)}, tree.path(u"missing/folder/x.tnrule"_s), &error));
    EXPECT_FALSE(tree.exists(u"missing/folder/x.tnrule"_s));
    EXPECT_FALSE(error.isEmpty());

    RuleChain rules = {{{u"rule"_s, u"Rule - General"_s}}, {{u"rule"_s, u"Rule - Rule - AlphaNumeric"_s}}, {{u"type"_s, u"x"_s}}};
    removeRulePrefix(rules);
    EXPECT_EQ(stepRule(rules[0]), u"General"_s);
    EXPECT_EQ(stepRule(rules[1]), u"AlphaNumeric"_s);
    EXPECT_FALSE(rules[2].contains(u"rule"_s));
}

}  // namespace
