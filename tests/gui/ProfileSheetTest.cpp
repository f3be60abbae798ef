#include "GuiFixture.h"

#include "core/profiles/ProfileFile.h"
#include "core/profiles/SettingsRecord.h"
#include "gui/app/DocumentCommands.h"
#include "gui/app/WindowSheets.h"
#include "gui/profiles/ProfileSheetController.h"

#include "core/profiles/PlistTestSupport.h"

using namespace tavrin;
using namespace tavrin::test;

namespace {

class ProfileSheetTest : public WindowFixture {
protected:
    void SetUp() override
    {
        WindowFixture::SetUp();
        Preferences preferences = controller.session().preferences();
        preferences.defaultProfileFolderPath = tree.folder(u"profiles"_s);
        controller.session().setPreferences(preferences);
    }

    ProfileSheetController* openSheet()
    {
        window.sheets()->openProfilesSheet();
        return window.findChild<ProfileSheetController*>();
    }

    void saveAs(ProfileSheetController* sheet, const QString& name)
    {
        typeInto(part<QLineEdit>(sheet, u"newProfileName"_s), name);
        press(part<QPushButton>(sheet, u"saveProfileButton"_s));
    }

    void selectProfile(ProfileSheetController* sheet, int row) { sheet->table()->selectRow(row); }

    // Every option changed as the tabs would leave it: the masks made of their tokens.
    void changeEverything()
    {
        for (const QString& key : Settings::optionKeys())
            ASSERT_TRUE(settings().setOptionFromString(key, differentValue(settings(), key))) << qPrintable(key);
        settings().resetID3Mask();
        settings().resetPhotoMask();
    }

    QVariantMap options()
    {
        QVariantMap record = getCurrentSettings(settings());
        record.remove(u"appVersion"_s);
        return record;
    }
};

TEST_F(ProfileSheetTest, SavesUnderANewNameAndAsksBeforeReplacingOne)
{
    ProfileSheetController* sheet = openSheet();
    saveAs(sheet, QString());
    EXPECT_EQ(prompter->alertTexts(), QStringList({ localized("PROFILETITLE") + u'|' + localized("PROFILEENTERNEWNAME") }));

    saveAs(sheet, u"Holiday/2024"_s);
    ASSERT_EQ(sheet->table()->model()->rowCount(), 1);
    EXPECT_EQ(sheet->table()->model()->index(0, 0).data().toString(), u"Holiday:2024.tnprofile"_s);
    EXPECT_FALSE(sheet->table()->model()->index(0, 1).data().toString().isEmpty());
    EXPECT_TRUE(part<QLineEdit>(sheet, u"newProfileName"_s)->text().isEmpty());

    const QByteArray saved = tree.read(u"profiles/Holiday:2024.tnprofile"_s);
    settings().setReplaceRemoveThis(u"changed"_s);
    prompter->yesNoAnswer = false;
    saveAs(sheet, u"Holiday/2024"_s);
    EXPECT_EQ(prompter->questions.size(), 1);
    EXPECT_EQ(tree.read(u"profiles/Holiday:2024.tnprofile"_s), saved);
    prompter->yesNoAnswer = true;
    saveAs(sheet, u"Holiday/2024"_s);
    EXPECT_NE(tree.read(u"profiles/Holiday:2024.tnprofile"_s), saved);
}

// Saved, then everything changed: the sheet, the File menu and the file manager each give
// back exactly the saved options.
TEST_F(ProfileSheetTest, EveryWayOfOpeningAProfileGivesBackItsOptions)
{
    listFiles({ u"a.txt"_s });
    changeEverything();
    settings().chooseFilesOrFolders(1);
    const QVariantMap saved = options();
    ProfileSheetController* sheet = openSheet();
    saveAs(sheet, u"all"_s);
    const QString path = tree.path(u"profiles/all.tnprofile"_s);

    const std::function<void()> opens[] = {
        [&] {
            ProfileSheetController* again = openSheet();
            press(part<QPushButton>(again, u"loadProfileButton"_s));
            EXPECT_EQ(prompter->alertTexts().last(), localized("PROFILETITLE") + u'|' + localized("PROFILESELECT"));
            selectProfile(again, 0);
            press(part<QPushButton>(again, u"loadProfileButton"_s));
            EXPECT_FALSE(again->isVisible());
        },
        [&] {
            prompter->chosenFile = path;
            window.documentCommands()->openProfile();
        },
        [&] { window.documentCommands()->openProfileDocument(path); },
    };
    for (const auto& open : opens) {
        settings().resetToDefaults();
        ASSERT_NE(options(), saved);
        open();
        EXPECT_EQ(options(), saved);
        EXPECT_EQ(controller.session().currProfileFile(), path);
    }
    // The folders-mode profile emptied the list of files it was opened over.
    EXPECT_EQ(list().shownCount(), 0);
}

TEST_F(ProfileSheetTest, DeletesAfterAskingAndForgetsTheProfileInUse)
{
    ProfileSheetController* sheet = openSheet();
    saveAs(sheet, u"one"_s);
    saveAs(sheet, u"two"_s);
    ASSERT_EQ(controller.session().setCurrentSettings(tree.path(u"profiles/two.tnprofile"_s)).result, ProfileLoadResult::Loaded);

    selectProfile(sheet, 1);
    prompter->yesNoAnswer = false;
    press(part<QPushButton>(sheet, u"deleteProfileButton"_s));
    EXPECT_TRUE(tree.exists(u"profiles/two.tnprofile"_s));
    prompter->yesNoAnswer = true;
    press(part<QPushButton>(sheet, u"deleteProfileButton"_s));
    EXPECT_FALSE(tree.exists(u"profiles/two.tnprofile"_s));
    EXPECT_TRUE(controller.session().currProfileFile().isEmpty());
    EXPECT_EQ(sheet->table()->model()->rowCount(), 1);
    EXPECT_TRUE(sheet->currProfileFilePath().isEmpty());
}

// The photo and audio masks come back made of the profile's tokens and separators.
TEST_F(ProfileSheetTest, AnOpenedProfileRebuildsTheMasksFromItsTokens)
{
    settings().setPhotoMetaDataList({ u"<A>"_s, u"<B>"_s });
    settings().setIsPhotoRenamingSeperator(true);
    settings().setPhotoRenamingSeperator(u"_"_s);
    settings().setPhotoRenamingMask(QString());
    settings().setId3RenamingTagsList({ u"<Artist>"_s });
    const QString path = tree.path(u"profiles/masks.tnprofile"_s);
    ASSERT_TRUE(controller.session().saveProfile(path));
    settings().resetToDefaults();
    ASSERT_EQ(controller.session().setCurrentSettings(path).result, ProfileLoadResult::Loaded);
    EXPECT_EQ(settings().photoRenamingMask(), u"<A>_<B>"_s);
    EXPECT_EQ(settings().id3RenamingMask(), u"<Artist>"_s);
}

// With the preference on, the profile in use keeps the user's changes whenever another takes
// its place; one the user deleted is not written again at quit.
TEST_F(ProfileSheetTest, TheProfileInUseIsSavedAutomaticallyOnlyWhileItExists)
{
    Preferences preferences = controller.session().preferences();
    preferences.automaticSaveCurrProfile = true;
    controller.session().setPreferences(preferences);
    ProfileSheetController* sheet = openSheet();
    saveAs(sheet, u"a"_s);
    saveAs(sheet, u"b"_s);
    const QString a = tree.path(u"profiles/a.tnprofile"_s);
    ASSERT_EQ(controller.session().setCurrentSettings(a).result, ProfileLoadResult::Loaded);

    settings().setReplaceRemoveThis(u"kept in a"_s);
    selectProfile(sheet, 1);
    press(part<QPushButton>(sheet, u"loadProfileButton"_s));
    Settings reread;
    ASSERT_EQ(loadProfileFile(reread, a), ProfileLoadResult::Loaded);
    EXPECT_EQ(reread.replaceRemoveThis(), u"kept in a"_s);

    settings().setReplaceRemoveThis(u"kept in b"_s);
    window.documentCommands()->loadDefaultProfile();
    ASSERT_EQ(loadProfileFile(reread, tree.path(u"profiles/b.tnprofile"_s)), ProfileLoadResult::Loaded);
    EXPECT_EQ(reread.replaceRemoveThis(), u"kept in b"_s);

    ASSERT_EQ(controller.session().setCurrentSettings(a).result, ProfileLoadResult::Loaded);
    sheet = openSheet();
    selectProfile(sheet, 0);
    press(part<QPushButton>(sheet, u"deleteProfileButton"_s));
    controller.applicationShouldTerminate();
    EXPECT_FALSE(tree.exists(u"profiles/a.tnprofile"_s));
}

} // namespace
