#include "gui/app/TavrinAppController.h"

#include "GuiTestHelpers.h"
#include "core/list/StatusTexts.h"
#include "core/profiles/Tabs.h"
#include "support/TempTree.h"

#include <QDir>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::addAndWait;
using tavrin::test::listedNames;
using tavrin::test::TempTree;

namespace {

class ControllerRenameTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        controller.setLogFolderPath(tree.folder(QStringLiteral("logs")));
        controller.settings().setSelectedTab(tabs::General);
        controller.settings().chooseGeneralOption(0);
        controller.settings().setGeneralFileNameCase(1);
    }

    void listFiles(const QStringList& names)
    {
        QStringList paths;
        for (const QString& name : names)
            paths.append(tree.file(QStringLiteral("files/") + name));
        ASSERT_TRUE(addAndWait(controller, paths));
    }

    bool previewAndWait()
    {
        QSignalSpy finished(&controller, &TavrinAppController::previewFinished);
        if (controller.preview().has_value() || !controller.isExecuting())
            return false;
        return finished.wait(20000);
    }

    bool applyAndWait(const TavrinAppController::ContinueWithoutLogQuestion& question = nullptr)
    {
        QSignalSpy finished(&controller, &TavrinAppController::applyFinished);
        return controller.apply(question) && finished.wait(20000);
    }

    QStringList newNames() const
    {
        QStringList names;
        for (const FileSystemItem& item : controller.shownItems())
            names.append(item.newFilename());
        return names;
    }

    TempTree tree;
    TavrinAppController controller;
};

TEST_F(ControllerRenameTest, TheListModeLivesInTheSettings)
{
    Settings& settings = controller.settings();
    EXPECT_TRUE(settings.isFiles());
    EXPECT_FALSE(settings.isFolders());
    EXPECT_FALSE(settings.isIncludeSubFolders()) << "the application starts without sub-folders";

    controller.setMode(ListMode::Folders);
    EXPECT_TRUE(settings.isFolders());
    EXPECT_FALSE(settings.isFiles());
    EXPECT_EQ(settings.fileFolderIndex(), 1);
    controller.setIncludeSubFolders(true);
    EXPECT_TRUE(settings.isIncludeSubFolders());
}

TEST_F(ControllerRenameTest, AModeChangedThroughTheSettingsEmptiesTheListToo)
{
    listFiles({ QStringLiteral("a.txt") });
    QSignalSpy modeChanged(&controller, &TavrinAppController::modeChanged);

    controller.settings().chooseFilesOrFolders(1);

    EXPECT_EQ(controller.shownCount(), 0);
    EXPECT_TRUE(controller.isFolders());
    EXPECT_EQ(modeChanged.count(), 1);
}

TEST_F(ControllerRenameTest, PreviewIsRefusedWithNothingToWorkOn)
{
    EXPECT_FALSE(controller.preview().has_value()) << "an empty list is the window's hint, not an alert";
    EXPECT_FALSE(controller.isExecuting());

    listFiles({ QStringLiteral("a-b.txt") });
    controller.settings().chooseGeneralOption(10);
    const std::optional<ValidationFailure> failure = controller.preview();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->titleKey, QStringLiteral("GENERALINVALIDINPUT"));
    EXPECT_EQ(failure->messageKey, QStringLiteral("ENTERVALIDVALUE"));
    EXPECT_EQ(failure->focusOption, QStringLiteral("generalFilenameMask"));
    EXPECT_FALSE(controller.isExecuting());
    EXPECT_EQ(newNames(), QStringList({ QString() }));
}

TEST_F(ControllerRenameTest, PreviewNormalisesTheOptionsItRunsWith)
{
    listFiles({ QStringLiteral("abcdef.txt") });
    controller.settings().chooseGeneralOption(7);
    controller.settings().setGeneralSwapPosition(QString());

    ASSERT_TRUE(previewAndWait());

    EXPECT_EQ(controller.settings().generalSwapPosition(), QStringLiteral("1"));
    EXPECT_EQ(newNames(), QStringList({ QStringLiteral("bcdefa.txt") }));
}

TEST_F(ControllerRenameTest, APreviewRunsWithTheOptionsOfItsStart)
{
    QStringList names;
    for (int i = 0; i < 2000; ++i)
        names.append(QStringLiteral("f%1.txt").arg(i));
    listFiles(names);
    QSignalSpy finished(&controller, &TavrinAppController::previewFinished);
    ASSERT_FALSE(controller.preview().has_value());

    // What the window would write if a field were still live while the worker runs.
    controller.settings().setGeneralFileNameCase(2);
    ASSERT_TRUE(finished.wait(20000));

    const QStringList proposed = newNames();
    EXPECT_EQ(proposed.first(), QStringLiteral("F0.txt"));
    EXPECT_EQ(proposed.filter(QStringLiteral("F")).size(), 2000) << "every name in the case of the start";
}

TEST_F(ControllerRenameTest, HasFilesForRenamingFollowsPreviewApplyAndClear)
{
    listFiles({ QStringLiteral("A.txt"), QStringLiteral("b.txt") });
    QSignalSpy changed(&controller, &TavrinAppController::hasFilesForRenamingChanged);
    EXPECT_FALSE(controller.isHasFilesForRenaming());
    EXPECT_FALSE(controller.apply(nullptr)) << "nothing proposed yet";

    ASSERT_TRUE(previewAndWait());
    EXPECT_TRUE(controller.isHasFilesForRenaming());
    ASSERT_TRUE(applyAndWait());
    EXPECT_FALSE(controller.isHasFilesForRenaming());
    EXPECT_EQ(controller.lastApplyOutcome().renamed, 1);
    EXPECT_EQ(
        newNames(), QStringList({ QLatin1String(status::NoChanges), QLatin1String(status::RenamingOk) }));

    ASSERT_TRUE(previewAndWait());
    EXPECT_FALSE(controller.isHasFilesForRenaming()) << "every name is upper case already";

    controller.settings().setGeneralFileNameCase(2);
    ASSERT_TRUE(previewAndWait());
    EXPECT_TRUE(controller.isHasFilesForRenaming());
    controller.clear();
    EXPECT_FALSE(controller.isHasFilesForRenaming());
    EXPECT_EQ(changed.count(), 4);
}

TEST_F(ControllerRenameTest, ApplyReportsItsCountTimeAndLog)
{
    listFiles({ QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("C.txt") });
    ASSERT_TRUE(previewAndWait());
    QSignalSpy counts(&controller, &TavrinAppController::renamedCountChanged);
    QSignalSpy messages(&controller, &TavrinAppController::progressMessage);
    QSignalSpy progress(&controller, &TavrinAppController::progressChanged);

    ASSERT_TRUE(applyAndWait());

    ASSERT_EQ(counts.count(), 1);
    EXPECT_EQ(counts.first().at(0).toString(), QStringLiteral("Files renamed: 2"));
    ASSERT_FALSE(messages.isEmpty());
    EXPECT_EQ(messages.first().at(0).toString(), QStringLiteral("Renaming files…"));
    const QString logPath = controller.lastApplyOutcome().logPath;
    EXPECT_EQ(messages.last().at(0).toString(), QStringLiteral("Log saved as ") + logPath);
    EXPECT_EQ(QDir(tree.path(QStringLiteral("logs"))).entryList(QDir::Files).size(), 1);
    ASSERT_FALSE(progress.isEmpty()) << "the last report of a run always arrives";
    EXPECT_EQ(progress.last().at(1).toInt(), 3);
    EXPECT_TRUE(controller.lastActionTimeTaken().startsWith(QStringLiteral("Renaming time: ")));
}

TEST_F(ControllerRenameTest, ATargetTakenSinceThePreviewIsCountedAsNotRenamed)
{
    listFiles({ QStringLiteral("a.txt"), QStringLiteral("b.txt") });
    controller.settings().chooseGeneralOption(3);
    controller.settings().setGeneralChangeExtension(QStringLiteral("md"));
    ASSERT_TRUE(previewAndWait());
    tree.file(QStringLiteral("files/b.md"), "someone else's");
    QSignalSpy counts(&controller, &TavrinAppController::renamedCountChanged);

    ASSERT_TRUE(applyAndWait());

    EXPECT_EQ(counts.first().at(0).toString(), QStringLiteral("Files renamed: 1 (not renamed: 1)"));
    EXPECT_EQ(tree.read(QStringLiteral("files/b.md")), QByteArray("someone else's"));
    EXPECT_TRUE(tree.exists(QStringLiteral("files/b.txt")));
    EXPECT_EQ(newNames(),
        QStringList({ QLatin1String(status::RenamingOk), QLatin1String(status::FileAlreadyExists) }));
}

TEST_F(ControllerRenameTest, FoldersAreCountedAsFolders)
{
    tree.folder(QStringLiteral("top/one"));
    tree.folder(QStringLiteral("top/two"));
    controller.setMode(ListMode::Folders);
    ASSERT_TRUE(addAndWait(
        controller, { tree.path(QStringLiteral("top/one")), tree.path(QStringLiteral("top/two")) }));
    ASSERT_TRUE(previewAndWait());
    QSignalSpy counts(&controller, &TavrinAppController::renamedCountChanged);

    ASSERT_TRUE(applyAndWait());

    EXPECT_EQ(counts.first().at(0).toString(), QStringLiteral("Folders renamed: 2"));
    EXPECT_EQ(listedNames(controller), QStringList({ QStringLiteral("ONE"), QStringLiteral("TWO") }));
}

TEST_F(ControllerRenameTest, ACancelledPreviewEndsAndLeavesTheRestUnproposed)
{
    QStringList names;
    for (int i = 0; i < 3000; ++i)
        names.append(QStringLiteral("f%1.txt").arg(i));
    listFiles(names);
    QSignalSpy finished(&controller, &TavrinAppController::previewFinished);
    ASSERT_FALSE(controller.preview().has_value());
    controller.cancelProcess();
    ASSERT_TRUE(finished.wait(20000));

    EXPECT_TRUE(controller.lastPreviewOutcome().cancelled);
    EXPECT_FALSE(controller.isExecuting());
    EXPECT_TRUE(newNames().last().isEmpty());
}

TEST_F(ControllerRenameTest, ACancelDuringTheLogQuestionAbortsTheApply)
{
    listFiles({ QStringLiteral("a.txt") });
    controller.setLogFolderPath(tree.file(QStringLiteral("blocker")) + QStringLiteral("/Logs"));
    ASSERT_TRUE(previewAndWait());
    int asked = 0;
    // Cancel pressed while the question was up, then the question answered.
    const auto question = [&] {
        ++asked;
        controller.cancelProcess();
        return true;
    };

    ASSERT_TRUE(applyAndWait(question));

    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(controller.lastApplyOutcome().aborted);
    EXPECT_TRUE(tree.exists(QStringLiteral("files/a.txt")));
}

} // namespace
