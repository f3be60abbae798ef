#include "core/profiles/ProfileFile.h"
#include "core/profiles/Tabs.h"
#include "core/formats/KeyedArchive.h"
#include "GuiFixture.h"
#include "gui/app/DocumentOpener.h"
#include "gui/control/LivePreview.h"

#include <QElapsedTimer>

using namespace tavrin;
using namespace tavrin::test;

namespace {

bool addAndWait(TavrinAppController& controller, const QStringList& paths)
{
    ListController& list = controller.list();
    return runAndWait(&list, &ListController::addFinished, [&] { return list.addFiles(paths); });
}

// Every test starts as a new user would: nothing kept from an earlier run.
class SessionTest : public ::testing::Test {
protected:
    void SetUp() override { TavrinAppController().session().userDefaults().clear(); }

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
        for (const FileSystemItem& item : controller.list().shownItems())
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
        first.session().setRules(rules);
        first.rename().setLivePreviewCoverage(false, QStringLiteral("50"));
        first.rename().setLivePreview(true);
        first.applicationShouldTerminate();
    }
    TavrinAppController second;
    EXPECT_EQ(second.applicationDidFinishLaunching(), std::nullopt);
    EXPECT_EQ(second.settings().generalOptionIndex(), 4);
    EXPECT_TRUE(second.settings().isGeneralReverseFileName());
    EXPECT_EQ(second.settings().replaceRemoveThis(), QStringLiteral("draft"));
    EXPECT_TRUE(second.list().isFolders());
    EXPECT_EQ(second.session().rules(), rules);
    EXPECT_TRUE(second.rename().livePreview().isLivePreviewEnabled());
    EXPECT_EQ(second.rename().livePreview().recordLimit(), 50);
    EXPECT_TRUE(second.session().currProfileFile().isEmpty());
}

TEST_F(SessionTest, ADamagedRuleChainIsDroppedFromTheDefaults)
{
    for (const QByteArray& stored : {QByteArray("not an archive"), keyedArchive(QStringLiteral("a string"))}) {
        TavrinAppController controller;
        controller.session().userDefaults().setValue(QLatin1String(userdefaults::LastRule), stored);
        controller.applicationDidFinishLaunching();
        EXPECT_TRUE(controller.session().rules().isEmpty());
        EXPECT_FALSE(controller.session().userDefaults().contains(QLatin1String(userdefaults::LastRule)));
    }
}

TEST_F(SessionTest, TheProfileInUseIsSavedOnQuitWhenAutomaticAndOpenedAgainAtStart)
{
    const QString profile = tree.path(QStringLiteral("photos.tnprofile"));
    {
        TavrinAppController first;
        first.applicationDidFinishLaunching();
        ASSERT_TRUE(first.session().saveProfile(profile));
        first.settings().setInsertDeleteInsert(QStringLiteral("2024 "));
        Preferences preferences = first.session().preferences();
        preferences.automaticSaveCurrProfile = true;
        first.session().setPreferences(preferences);
        first.applicationShouldTerminate();
    }
    Settings saved;
    ASSERT_EQ(loadProfileFile(saved, profile), ProfileLoadResult::Loaded);
    EXPECT_EQ(saved.insertDeleteInsert(), QStringLiteral("2024 "));

    TavrinAppController second;
    EXPECT_EQ(second.applicationDidFinishLaunching(), std::nullopt);
    EXPECT_EQ(second.session().currProfileFile(), profile);
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
    second.session().userDefaults().setValue(QLatin1String(userdefaults::LastProfile), gone);
    const std::optional<ProfileOutcome> failure = second.applicationDidFinishLaunching();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->result, ProfileLoadResult::Failed);
    EXPECT_TRUE(failure->message.contains(QStringLiteral("gone.tnprofile")));
    EXPECT_FALSE(second.session().userDefaults().contains(QLatin1String(userdefaults::LastProfile)));
    EXPECT_TRUE(second.session().currProfileFile().isEmpty());
    EXPECT_EQ(second.settings().replaceRemoveWith(), QStringLiteral("kept"));
}

TEST_F(SessionTest, TwentyFilesOpenedOneByOneArriveAsOneAddInFileMode)
{
    TavrinAppController controller;
    controller.list().setMode(ListMode::Folders);
    DocumentOpener opener(controller.list());
    QSignalSpy adds(&controller.list(), &ListController::addFinished);
    for (const QString& path : files(20))
        opener.openFile(path);
    EXPECT_TRUE(opener.isBatchPending());
    EXPECT_EQ(controller.list().shownCount(), 0);

    ASSERT_TRUE(adds.wait(5000));
    QTest::qWait(2 * DocumentOpener::BatchMilliseconds);
    EXPECT_EQ(adds.count(), 1);
    EXPECT_EQ(controller.list().shownCount(), 20);
    EXPECT_TRUE(controller.list().isFiles());
}

TEST_F(SessionTest, OpenedDocumentsAreToldApartByExtension)
{
    TavrinAppController controller;
    DocumentOpener opener(controller.list());
    QSignalSpy rules(&opener, &DocumentOpener::ruleFileOpened);
    QSignalSpy profiles(&opener, &DocumentOpener::profileFileOpened);
    QSignalSpy sheet(&controller.list(), &ListController::pasteboardItemsRequested);
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
    EXPECT_EQ(controller.list().shownCount(), 0);
}

TEST_F(SessionTest, RapidChangesCollapseIntoOneLivePreviewAfterTheLast)
{
    TavrinAppController controller;
    ASSERT_TRUE(addAndWait(controller, files(3)));
    chooseUpperCase(controller);
    QSignalSpy previews(&controller.rename(), &RenameController::livePreviewFinished);
    controller.rename().setLivePreview(true);
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
    EXPECT_EQ(controller.list().shownItems().front().newFilename(), QStringLiteral("ITEM00.txt"));
}

TEST_F(SessionTest, ALimitedLivePreviewLeavesTheRestEmptyAndCannotBeRenamed)
{
    TavrinAppController controller;
    ASSERT_TRUE(addAndWait(controller, files(5)));
    chooseUpperCase(controller);
    QSignalSpy previews(&controller.rename(), &RenameController::livePreviewFinished);

    controller.rename().setLivePreviewCoverage(false, QStringLiteral("2"));
    ASSERT_TRUE(controller.rename().quickPreview(controller.rename().livePreview().recordLimit()));
    ASSERT_TRUE(previews.wait(5000));
    EXPECT_EQ(proposals(controller), 2);
    EXPECT_FALSE(controller.rename().isHasFilesForRenaming());

    controller.rename().setLivePreviewCoverage(true, QStringLiteral("2"));
    ASSERT_TRUE(controller.rename().quickPreview(controller.rename().livePreview().recordLimit()));
    ASSERT_TRUE(previews.wait(5000));
    EXPECT_EQ(proposals(controller), 5);
    EXPECT_TRUE(controller.rename().isHasFilesForRenaming());
}

TEST_F(SessionTest, NoLivePreviewWhenOffOrEmptyAndOneAfterAWholeProfile)
{
    TavrinAppController controller;
    controller.rename().setLivePreview(true);
    controller.settings().setGeneralFileNameCase(2);
    EXPECT_FALSE(controller.rename().livePreview().isTimerActive()) << "empty list";

    ASSERT_TRUE(addAndWait(controller, files(2)));
    controller.rename().setLivePreview(false);
    controller.settings().setGeneralFileNameCase(3);
    EXPECT_FALSE(controller.rename().livePreview().isTimerActive()) << "live preview off";

    const QString profile = tree.path(QStringLiteral("upper.tnprofile"));
    chooseUpperCase(controller);
    ASSERT_TRUE(controller.session().saveProfile(profile));
    controller.settings().setGeneralFileNameCase(2);
    controller.rename().setLivePreview(true);
    QSignalSpy previews(&controller.rename(), &RenameController::livePreviewFinished);
    ASSERT_TRUE(previews.wait(5000));
    previews.clear();

    ASSERT_EQ(controller.session().setCurrentSettings(profile).result, ProfileLoadResult::Loaded);
    ASSERT_TRUE(previews.wait(5000));
    QTest::qWait(2 * LivePreview::DelayMilliseconds);
    EXPECT_EQ(previews.count(), 1);
    EXPECT_EQ(controller.list().shownItems().front().newFilename(), QStringLiteral("ITEM00.txt"));
}

}  // namespace
