#include "gui/app/DocumentCommands.h"

#include "GuiFixture.h"

using namespace tavrin;
using namespace tavrin::test;

namespace {

QByteArray ruleFile(const char* version, const char* ruleName)
{
    return QByteArray(
               "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
               "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\" appversion=\"")
        + version + "\"><array><dict><key>rule</key><string>" + ruleName
        + "</string><key>isActive</key><string>1</string></dict></array></plist>\n";
}

class DocumentCommandsTest : public ::testing::Test {
protected:
    DocumentCommandsTest()
    {
        Preferences preferences = controller.session().preferences();
        preferences.defaultRulesFolderPath = tree.folder(u"library"_s);
        controller.session().setPreferences(preferences);
        commands.setPrompter(&prompter);
    }

    TempTree tree;
    TavrinAppController controller;
    QWidget window;
    DocumentCommands commands { &controller.session(), &window };
    ScriptedPrompter prompter;
};

// The library's rule of that name stays unless the user says Yes.
TEST_F(DocumentCommandsTest, ARuleFileJoinsTheLibraryOnlyWhenItFitsAndTheUserAgrees)
{
    const QString incoming = tree.file(u"in/Clean.tnrule"_s, ruleFile("3.2", "General"));
    commands.openRuleDocument(tree.file(u"in/Old.tnrule"_s, ruleFile("2.9", "General")));
    commands.openRuleDocument(tree.file(u"in/Junk.tnrule"_s, "not a property list"));
    EXPECT_EQ(prompter.alerts.size(), 2);
    EXPECT_FALSE(tree.exists(u"library/Old.tnrule"_s) || tree.exists(u"library/Junk.tnrule"_s));
    commands.openRuleDocument(incoming);
    EXPECT_TRUE(prompter.questions.isEmpty()) << "nothing to replace yet";

    tree.file(u"in/Clean.tnrule"_s, ruleFile("3.2", "ReplaceRemove"));
    for (const bool yes : { false, true }) {
        prompter.yesNoAnswer = yes;
        commands.openRuleDocument(incoming);
        EXPECT_EQ(tree.read(u"library/Clean.tnrule"_s), ruleFile("3.2", yes ? "ReplaceRemove" : "General"));
    }
    EXPECT_EQ(prompter.questions.size(), 2);
}

TEST_F(DocumentCommandsTest, AProfileDocumentReplacesTheOptionsOnlyAfterYes)
{
    const QString profile = tree.path(u"Holiday.tnprofile"_s);
    controller.settings().setReplaceRemoveThis(u"IMG_"_s);
    ASSERT_TRUE(controller.session().saveProfile(profile));
    controller.session().loadDefaultProfile();
    for (const bool yes : { false, true }) {
        prompter.yesNoAnswer = yes;
        commands.openProfileDocument(profile);
        EXPECT_EQ(controller.settings().replaceRemoveThis(), yes ? u"IMG_"_s : QString());
        EXPECT_EQ(controller.session().currProfileFile(), yes ? profile : QString());
    }
    ASSERT_EQ(prompter.questions.size(), 2);
    EXPECT_TRUE(prompter.questions.first().contains(u"Holiday.tnprofile"_s));

    // A profile of another major version is refused with its name.
    const QString old = tree.file(u"Old.tnprofile"_s,
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>appVersion</key>"
        "<string>2.3</string><key>replaceRemoveThis</key><string>x</string></dict></plist>\n");
    commands.openProfileDocument(old);
    EXPECT_EQ(prompter.alertTexts(),
        QStringList(
            localized("LOADPROFILETITLE") + u'|' + localized("PROFILEINCOMPATIBLE").arg(u"Old.tnprofile"_s)));
    EXPECT_EQ(controller.settings().replaceRemoveThis(), u"IMG_"_s);
}

} // namespace
