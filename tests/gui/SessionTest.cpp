#include "GuiFixture.h"

#include "core/formats/KeyedArchive.h"
#include "core/profiles/ProfileFile.h"
#include "gui/app/DocumentOpener.h"
#include "gui/control/ActivityStatus.h"
#include "gui/control/LivePreview.h"

#include <QElapsedTimer>

using namespace tavrin;
using namespace tavrin::test;

namespace {

// Every test starts as a new user would: nothing kept from an earlier run.
class SessionTest : public ControllerFixture {
protected:
    SessionTest() { session().userDefaults().clear(); }

    SessionController& session() { return controller.session(); }

    int proposals() const { return static_cast<int>(newNames().size() - newNames().count(QString())); }

    bool livePreviewAndWait(const std::function<bool()>& trigger)
    {
        return runAndWait(&rename(), &RenameController::livePreviewFinished, trigger);
    }

    // Turns the live preview on and waits for the preview that starts with it.
    bool startLivePreview()
    {
        return livePreviewAndWait([&] {
            rename().setLivePreview(true);
            return true;
        });
    }
};

// What the user had at quit comes back at start: the options, the rule chain, the live
// preview, and the profile in use, saved first when the preferences say so.
TEST_F(SessionTest, QuitThenStartGivesBackTheSession)
{
    const RuleChain rules { RuleStep { { u"rule"_s, u"General"_s }, { u"isActive"_s, u"1"_s } } };
    const QString profile = tree.path(u"photos.tnprofile"_s);
    ASSERT_TRUE(session().saveProfile(profile));
    settings().chooseGeneralOption(4);
    settings().chooseFilesOrFolders(1);
    session().setRules(rules);
    rename().setLivePreviewCoverage(false, u"50"_s);
    rename().setLivePreview(true);
    Preferences preferences = session().preferences();
    preferences.automaticSaveCurrProfile = true;
    session().setPreferences(preferences);
    controller.applicationShouldTerminate();

    TavrinAppController second;
    EXPECT_EQ(second.applicationDidFinishLaunching(), std::nullopt);
    EXPECT_TRUE(second.settings().isGeneralReverseFileName());
    EXPECT_TRUE(second.list().isFolders());
    EXPECT_EQ(second.session().rules(), rules);
    EXPECT_TRUE(second.rename().livePreview().isLivePreviewEnabled());
    EXPECT_EQ(second.rename().livePreview().recordLimit(), 50);
    EXPECT_EQ(second.session().currProfileFile(), profile);
}

TEST_F(SessionTest, ADamagedRuleChainIsDroppedFromTheDefaults)
{
    for (const QByteArray& stored : { QByteArray("not an archive"), keyedArchive(u"a string"_s) }) {
        session().userDefaults().setValue(QLatin1String(userdefaults::LastRule), stored);
        controller.applicationDidFinishLaunching();
        EXPECT_TRUE(session().rules().isEmpty());
        EXPECT_FALSE(session().userDefaults().contains(QLatin1String(userdefaults::LastRule)));
    }
}

TEST_F(SessionTest, ALastProfileThatIsGoneIsForgottenAndTheLastOptionsApply)
{
    settings().setReplaceRemoveWith(u"kept"_s);
    controller.applicationShouldTerminate();
    TavrinAppController second;
    second.session().userDefaults().setValue(
        QLatin1String(userdefaults::LastProfile), tree.path(u"gone.tnprofile"_s));
    const std::optional<ProfileOutcome> failure = second.applicationDidFinishLaunching();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->result, ProfileLoadResult::Failed);
    EXPECT_TRUE(failure->message.contains(u"gone.tnprofile"_s));
    EXPECT_FALSE(second.session().userDefaults().contains(QLatin1String(userdefaults::LastProfile)));
    EXPECT_EQ(second.settings().replaceRemoveWith(), u"kept"_s);
    EXPECT_TRUE(second.session().currProfileFile().isEmpty());
}

TEST_F(SessionTest, NoProfileIsOpenedWhileAJobWorksOnTheList)
{
    const QString profile = tree.path(u"p.tnprofile"_s);
    ASSERT_TRUE(session().saveProfile(profile));
    listFiles({ u"a.txt"_s });
    chooseUpperCase();
    ASSERT_TRUE(runAndWait(&rename(), &RenameController::previewFinished, [&] {
        rename().preview();
        EXPECT_EQ(session().setCurrentSettings(profile).message, localized("PROFILELOADBUSY"));
        return true;
    }));
}

TEST_F(SessionTest, FilesOpenedOneByOneArriveAsOneAddAndDocumentsAreToldApart)
{
    list().setMode(ListMode::Folders);
    DocumentOpener opener(list());
    QSignalSpy adds(&list(), &ListController::addFinished);
    QSignalSpy rules(&opener, &DocumentOpener::ruleFileOpened);
    QSignalSpy profiles(&opener, &DocumentOpener::profileFileOpened);
    for (int index = 0; index < 20; ++index)
        opener.openFile(tree.file(u"item%1.txt"_s.arg(index)));
    opener.openFiles({ tree.path(u"Clean Up.TNRULE"_s), tree.path(u"p.tnprofile"_s) });
    EXPECT_TRUE(opener.isBatchPending());
    EXPECT_EQ(list().shownCount(), 0);
    EXPECT_EQ(rules.count(), 1);
    EXPECT_EQ(profiles.count(), 1);

    ASSERT_TRUE(adds.wait(kWaitMilliseconds));
    QTest::qWait(2 * DocumentOpener::BatchMilliseconds);
    EXPECT_EQ(adds.count(), 1);
    EXPECT_EQ(list().shownCount(), 20);
    EXPECT_TRUE(list().isFiles());

    // With a folder among them, the user chooses how the items are listed.
    QSignalSpy sheet(&list(), &ListController::pasteboardItemsRequested);
    const QStringList items { tree.file(u"a.txt"_s), tree.folder(u"shots"_s) };
    opener.openFiles(items);
    ASSERT_TRUE(sheet.wait(kWaitMilliseconds));
    EXPECT_EQ(sheet.first().first().toStringList(), items);
}

// Rapid changes, a whole profile the last of them, collapse into one live preview after the
// last; with the live preview off or an empty list none is armed.
TEST_F(SessionTest, ChangesCollapseIntoOneLivePreviewAfterTheLast)
{
    rename().setLivePreview(true);
    settings().setGeneralFileNameCase(2);
    EXPECT_FALSE(rename().livePreview().isTimerActive()) << "empty list";
    listFiles({ u"a.txt"_s, u"b.txt"_s, u"c.txt"_s });
    rename().setLivePreview(false);
    settings().setGeneralFileNameCase(3);
    EXPECT_FALSE(rename().livePreview().isTimerActive()) << "live preview off";

    const QString profile = tree.path(u"upper.tnprofile"_s);
    chooseUpperCase();
    ASSERT_TRUE(session().saveProfile(profile));
    settings().setGeneralFileNameCase(2);
    ASSERT_TRUE(startLivePreview());
    QSignalSpy previews(&rename(), &RenameController::livePreviewFinished);
    for (const int caseCode : { 3, 2 }) {
        settings().setGeneralFileNameCase(caseCode);
        QTest::qWait(LivePreview::DelayMilliseconds / 10);
    }
    QElapsedTimer sinceLastChange;
    sinceLastChange.start();
    ASSERT_EQ(session().setCurrentSettings(profile).result, ProfileLoadResult::Loaded);
    ASSERT_TRUE(previews.wait(kWaitMilliseconds));
    // A coarse timer may fire up to 5 % early.
    EXPECT_GE(sinceLastChange.elapsed(), LivePreview::DelayMilliseconds * 9 / 10);
    QTest::qWait(2 * LivePreview::DelayMilliseconds);
    EXPECT_EQ(previews.count(), 1);
    EXPECT_EQ(newNames().first(), u"A.txt"_s);
}

// A live preview that covered only part of the list cannot be renamed.
TEST_F(SessionTest, ALimitedLivePreviewLeavesTheRestEmptyAndCannotBeRenamed)
{
    listFiles({ u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s });
    chooseUpperCase();
    for (const bool allFiles : { false, true }) {
        rename().setLivePreviewCoverage(allFiles, u"2"_s);
        QSignalSpy messages(&controller.status(), &ActivityStatus::progressMessage);
        ASSERT_TRUE(
            livePreviewAndWait([&] { return rename().quickPreview(rename().livePreview().recordLimit()); }));
        EXPECT_EQ(proposals(), allFiles ? 5 : 2);
        EXPECT_EQ(rename().isHasFilesForRenaming(), allFiles);
        // The status line says why Rename stays disabled.
        ASSERT_FALSE(messages.isEmpty());
        EXPECT_EQ(messages.last().first().toString(),
            allFiles ? QString() : localized("PARTIALLIVEPREVIEW").arg(2));
    }
}

// Regression: F5 pressed within the live-preview delay showed the full preview, then the
// still-armed live preview replaced it with a partial one and disabled Rename.
TEST_F(SessionTest, AFullPreviewDisarmsTheWaitingLivePreview)
{
    listFiles({ u"a.txt"_s, u"b.txt"_s, u"c.txt"_s });
    rename().setLivePreviewCoverage(false, u"1"_s);
    ASSERT_TRUE(startLivePreview());
    QSignalSpy livePreviews(&rename(), &RenameController::livePreviewFinished);
    chooseUpperCase();
    ASSERT_TRUE(rename().livePreview().isTimerActive());
    QSignalSpy previews(&rename(), &RenameController::previewFinished);
    ASSERT_FALSE(rename().preview().has_value());
    ASSERT_TRUE(previews.wait(kWaitMilliseconds));
    QTest::qWait(2 * LivePreview::DelayMilliseconds);
    EXPECT_EQ(livePreviews.count(), 0);
    EXPECT_EQ(newNames(), (QStringList { u"A.txt"_s, u"B.txt"_s, u"C.txt"_s }));
    EXPECT_TRUE(rename().isHasFilesForRenaming());
}

} // namespace
