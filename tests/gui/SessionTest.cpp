#include "core/profiles/ProfileFile.h"
#include "core/profiles/Tabs.h"
#include "core/formats/KeyedArchive.h"
#include "gui/app/DocumentOpener.h"
#include "gui/app/LivePreview.h"
#include "gui/app/TavrinAppController.h"

#include "GuiTestHelpers.h"
#include "support/TempTree.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::addAndWait;
using tavrin::test::listedNames;
using tavrin::test::TempTree;

namespace {

// Every test starts as a new user would: nothing kept from an earlier run.
class SessionTest : public ::testing::Test {
protected:
    void SetUp() override { TavrinAppController().userDefaults().clear(); }

    // Upper-cases names: every name changes, so a record either got a proposal or none.
    static void chooseUpperCase(TavrinAppController& controller)
    {
        controller.settings().setSelectedTab(tabs::General);
        controller.settings().chooseGeneralOption(0);
        controller.settings().setGeneralFileNameCase(1);
    }

    QStringList files(int count)
    {
        QStringList paths;
        for (int index = 0; index < count; ++index)
            paths.append(tree.file(QStringLiteral("item%1.txt").arg(index, 2, 10, QLatin1Char('0'))));
        return paths;
    }

    static int proposals(const TavrinAppController& controller)
    {
        int count = 0;
        for (const FileSystemItem& item : controller.shownItems())
            count += item.newFilename().isEmpty() ? 0 : 1;
        return count;
    }

    TempTree tree;
};

TEST_F(SessionTest, QuitThenStartGivesBackTheOptionsTheRuleChainAndTheLivePreview)
{
    const QVariantList rules{QVariantMap{{QStringLiteral("rule"), QStringLiteral("General")},
        {QStringLiteral("isActive"), QStringLiteral("1")}}};
    {
        TavrinAppController first;
        first.applicationDidFinishLaunching();
        first.settings().chooseGeneralOption(4);
        first.settings().setReplaceRemoveThis(QStringLiteral("draft"));
        first.settings().chooseFilesOrFolders(1);
        first.setRules(rules);
        first.setLivePreviewCoverage(false, QStringLiteral("50"));
        first.setLivePreview(true);
        first.applicationShouldTerminate();
    }
    TavrinAppController second;
    EXPECT_EQ(second.applicationDidFinishLaunching(), std::nullopt);
    EXPECT_EQ(second.settings().generalOptionIndex(), 4);
    EXPECT_TRUE(second.settings().isGeneralReverseFileName());
    EXPECT_EQ(second.settings().replaceRemoveThis(), QStringLiteral("draft"));
    EXPECT_TRUE(second.isFolders());
    EXPECT_EQ(second.rules(), rules);
    EXPECT_TRUE(second.livePreview().isLivePreviewEnabled());
    EXPECT_EQ(second.livePreview().recordLimit(), 50);
    EXPECT_TRUE(second.currProfileFile().isEmpty());
}

TEST_F(SessionTest, ADamagedRuleChainIsDroppedFromTheDefaults)
{
    for (const QByteArray& stored : {QByteArray("not an archive"), keyedArchive(QStringLiteral("a string"))}) {
        TavrinAppController controller;
        controller.userDefaults().setValue(QLatin1String(userdefaults::LastRule), stored);
        controller.applicationDidFinishLaunching();
        EXPECT_TRUE(controller.rules().isEmpty());
        EXPECT_FALSE(controller.userDefaults().contains(QLatin1String(userdefaults::LastRule)));
    }
}

TEST_F(SessionTest, TheProfileInUseIsSavedOnQuitWhenAutomaticAndOpenedAgainAtStart)
{
    const QString profile = tree.path(QStringLiteral("photos.tnprofile"));
    {
        TavrinAppController first;
        first.applicationDidFinishLaunching();
        ASSERT_TRUE(first.saveProfile(profile));
        first.settings().setInsertDeleteInsert(QStringLiteral("2024 "));
        Preferences preferences = first.preferences();
        preferences.automaticSaveCurrProfile = true;
        first.setPreferences(preferences);
        first.applicationShouldTerminate();
    }
    Settings saved;
    ASSERT_EQ(loadProfileFile(saved, profile), ProfileLoadResult::Loaded);
    EXPECT_EQ(saved.insertDeleteInsert(), QStringLiteral("2024 "));

    TavrinAppController second;
    EXPECT_EQ(second.applicationDidFinishLaunching(), std::nullopt);
    EXPECT_EQ(second.currProfileFile(), profile);
    EXPECT_EQ(second.settings().insertDeleteInsert(), QStringLiteral("2024 "));
}

TEST_F(SessionTest, ALastProfileThatIsGoneIsForgottenAndTheLastOptionsApply)
{
    {
        TavrinAppController first;
        first.applicationDidFinishLaunching();
        first.settings().setReplaceRemoveWith(QStringLiteral("kept"));
        first.applicationShouldTerminate();
    }
    const QString gone = tree.path(QStringLiteral("gone.tnprofile"));
    TavrinAppController second;
    second.userDefaults().setValue(QLatin1String(userdefaults::LastProfile), gone);
    const std::optional<ProfileOutcome> failure = second.applicationDidFinishLaunching();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->result, ProfileLoadResult::Failed);
    EXPECT_TRUE(failure->message.contains(QStringLiteral("gone.tnprofile")));
    EXPECT_FALSE(second.userDefaults().contains(QLatin1String(userdefaults::LastProfile)));
    EXPECT_TRUE(second.currProfileFile().isEmpty());
    EXPECT_EQ(second.settings().replaceRemoveWith(), QStringLiteral("kept"));
}

TEST_F(SessionTest, TwentyFilesOpenedOneByOneArriveAsOneAddInFileMode)
{
    TavrinAppController controller;
    controller.setMode(ListMode::Folders);
    DocumentOpener opener(controller);
    QSignalSpy adds(&controller, &TavrinAppController::addFinished);
    for (const QString& path : files(20))
        opener.openFile(path);
    EXPECT_TRUE(opener.isBatchPending());
    EXPECT_EQ(controller.shownCount(), 0);

    ASSERT_TRUE(adds.wait(5000));
    QTest::qWait(2 * DocumentOpener::BatchMilliseconds);
    EXPECT_EQ(adds.count(), 1);
    EXPECT_EQ(controller.shownCount(), 20);
    EXPECT_TRUE(controller.isFiles());
}

TEST_F(SessionTest, OpenedDocumentsAreToldApartByExtension)
{
    TavrinAppController controller;
    DocumentOpener opener(controller);
    QSignalSpy rules(&opener, &DocumentOpener::ruleFileOpened);
    QSignalSpy profiles(&opener, &DocumentOpener::profileFileOpened);
    QSignalSpy sheet(&controller, &TavrinAppController::pasteboardItemsRequested);
    const QString file = tree.file(QStringLiteral("a.txt"));
    const QString folder = tree.folder(QStringLiteral("shots"));

    opener.openFiles({tree.path(QStringLiteral("Clean Up.TNRULE")), file, tree.path(QStringLiteral("p.tnprofile")),
        folder});

    ASSERT_EQ(rules.count(), 1);
    EXPECT_TRUE(rules.first().first().toString().endsWith(QStringLiteral("Clean Up.TNRULE")));
    ASSERT_EQ(profiles.count(), 1);
    // With a folder among them, the user chooses how the items are listed.
    ASSERT_TRUE(sheet.wait(5000));
    EXPECT_EQ(sheet.first().first().toStringList(), QStringList({file, folder}));
    EXPECT_EQ(controller.shownCount(), 0);
}

TEST_F(SessionTest, RapidChangesCollapseIntoOneLivePreviewAfterTheLast)
{
    TavrinAppController controller;
    ASSERT_TRUE(addAndWait(controller, files(3)));
    chooseUpperCase(controller);
    QSignalSpy previews(&controller, &TavrinAppController::livePreviewFinished);
    controller.setLivePreview(true);
    ASSERT_TRUE(previews.wait(5000));
    previews.clear();

    QElapsedTimer sinceLastChange;
    for (const int caseCode : {2, 3, 1}) {
        controller.settings().setGeneralFileNameCase(caseCode);
        sinceLastChange.start();
        QTest::qWait(LivePreview::DelayMilliseconds / 10);
    }
    ASSERT_TRUE(previews.wait(5000));
    // A coarse timer may fire up to 5 % early.
    EXPECT_GE(sinceLastChange.elapsed(), LivePreview::DelayMilliseconds * 9 / 10);
    QTest::qWait(2 * LivePreview::DelayMilliseconds);
    EXPECT_EQ(previews.count(), 1);
    EXPECT_EQ(controller.shownItems().front().newFilename(), QStringLiteral("ITEM00.txt"));
}

TEST_F(SessionTest, ALimitedLivePreviewLeavesTheRestEmptyAndCannotBeRenamed)
{
    TavrinAppController controller;
    ASSERT_TRUE(addAndWait(controller, files(5)));
    chooseUpperCase(controller);
    QSignalSpy previews(&controller, &TavrinAppController::livePreviewFinished);

    controller.setLivePreviewCoverage(false, QStringLiteral("2"));
    ASSERT_TRUE(controller.quickPreview(controller.livePreview().recordLimit()));
    ASSERT_TRUE(previews.wait(5000));
    EXPECT_EQ(proposals(controller), 2);
    EXPECT_FALSE(controller.isHasFilesForRenaming());

    controller.setLivePreviewCoverage(true, QStringLiteral("2"));
    ASSERT_TRUE(controller.quickPreview(controller.livePreview().recordLimit()));
    ASSERT_TRUE(previews.wait(5000));
    EXPECT_EQ(proposals(controller), 5);
    EXPECT_TRUE(controller.isHasFilesForRenaming());
}

TEST_F(SessionTest, NoLivePreviewWhenOffOrEmptyAndOneAfterAWholeProfile)
{
    TavrinAppController controller;
    controller.setLivePreview(true);
    controller.settings().setGeneralFileNameCase(2);
    EXPECT_FALSE(controller.livePreview().isTimerActive()) << "empty list";

    ASSERT_TRUE(addAndWait(controller, files(2)));
    controller.setLivePreview(false);
    controller.settings().setGeneralFileNameCase(3);
    EXPECT_FALSE(controller.livePreview().isTimerActive()) << "live preview off";

    const QString profile = tree.path(QStringLiteral("upper.tnprofile"));
    chooseUpperCase(controller);
    ASSERT_TRUE(controller.saveProfile(profile));
    controller.settings().setGeneralFileNameCase(2);
    controller.setLivePreview(true);
    QSignalSpy previews(&controller, &TavrinAppController::livePreviewFinished);
    ASSERT_TRUE(previews.wait(5000));
    previews.clear();

    ASSERT_EQ(controller.setCurrentSettings(profile).result, ProfileLoadResult::Loaded);
    ASSERT_TRUE(previews.wait(5000));
    QTest::qWait(2 * LivePreview::DelayMilliseconds);
    EXPECT_EQ(previews.count(), 1);
    EXPECT_EQ(controller.shownItems().front().newFilename(), QStringLiteral("ITEM00.txt"));
}

}  // namespace
