#include "gui/app/DocumentCommands.h"

#include "GuiFixture.h"
#include "core/text/LocalizedStrings.h"

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
        preferences.defaultRulesFolderPath = tree.folder(QStringLiteral("library"));
        controller.session().setPreferences(preferences);
        commands.setPrompter(&prompter);
    }

    QByteArray libraryRule(const QString& name) const { return tree.read(QStringLiteral("library/") + name); }

    TempTree tree;
    TavrinAppController controller;
    QWidget window;
    DocumentCommands commands { &controller.session(), &window };
    ScriptedPrompter prompter;
};

TEST_F(DocumentCommandsTest, ARuleFileJoinsTheLibraryOnlyWhenItFitsAndTheUserAgrees)
{
    const QString incoming = tree.file(QStringLiteral("in/Clean.tnrule"), ruleFile("3.2", "General"));
    commands.openRuleDocument(tree.file(QStringLiteral("in/Old.tnrule"), ruleFile("2.9", "General")));
    commands.openRuleDocument(tree.file(QStringLiteral("in/Junk.tnrule"), "not a property list"));
    EXPECT_EQ(prompter.alerts.size(), 2);
    EXPECT_FALSE(tree.exists(QStringLiteral("library/Old.tnrule")));
    EXPECT_FALSE(tree.exists(QStringLiteral("library/Junk.tnrule")));

    commands.openRuleDocument(incoming);
    EXPECT_EQ(libraryRule(QStringLiteral("Clean.tnrule")), ruleFile("3.2", "General"));
    EXPECT_TRUE(prompter.questions.isEmpty()) << "nothing to replace yet";

    // The library's rule of that name stays unless the user says YES.
    tree.file(QStringLiteral("in/Clean.tnrule"), ruleFile("3.2", "ReplaceRemove"));
    prompter.yesNoAnswer = false;
    commands.openRuleDocument(incoming);
    EXPECT_EQ(prompter.questions.size(), 1);
    EXPECT_EQ(libraryRule(QStringLiteral("Clean.tnrule")), ruleFile("3.2", "General"));
    prompter.yesNoAnswer = true;
    commands.openRuleDocument(incoming);
    EXPECT_EQ(libraryRule(QStringLiteral("Clean.tnrule")), ruleFile("3.2", "ReplaceRemove"));
}

TEST_F(DocumentCommandsTest, AProfileDocumentReplacesTheOptionsOnlyAfterYes)
{
    const QString profile = tree.path(QStringLiteral("Holiday.tnprofile"));
    controller.settings().setReplaceRemoveThis(QStringLiteral("IMG_"));
    ASSERT_TRUE(controller.session().saveProfile(profile));
    controller.session().loadDefaultProfile();
    ASSERT_TRUE(controller.session().currProfileFile().isEmpty());

    prompter.yesNoAnswer = false;
    commands.openProfileDocument(profile);
    EXPECT_TRUE(controller.settings().replaceRemoveThis().isEmpty());
    ASSERT_EQ(prompter.questions.size(), 1);
    EXPECT_TRUE(prompter.questions.first().contains(QStringLiteral("Holiday.tnprofile")));

    prompter.yesNoAnswer = true;
    commands.openProfileDocument(profile);
    EXPECT_EQ(controller.settings().replaceRemoveThis(), QStringLiteral("IMG_"));
    EXPECT_EQ(controller.session().currProfileFile(), profile);
}

TEST_F(DocumentCommandsTest, AProfileOfAnotherMajorVersionIsRefusedWithItsName)
{
    const QString path = tree.file(QStringLiteral("Old.tnprofile"),
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>appVersion</key>"
        "<string>2.3</string><key>replaceRemoveThis</key><string>x</string></dict></plist>\n");
    commands.openProfileDocument(path);
    ASSERT_EQ(prompter.alerts.size(), 1);
    EXPECT_EQ(prompter.alerts.first().text(),
        localized("LOADPROFILETITLE") + QLatin1Char('|')
            + localized("PROFILEINCOMPATIBLE").arg(QStringLiteral("Old.tnprofile")));
    EXPECT_TRUE(controller.settings().replaceRemoveThis().isEmpty());
    EXPECT_TRUE(controller.session().currProfileFile().isEmpty());
}

} // namespace
