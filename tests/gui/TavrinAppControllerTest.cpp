#include "gui/app/TavrinAppController.h"

#include "GuiTestHelpers.h"
#include "support/TempTree.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::addAndWait;
using tavrin::test::listedNames;
using tavrin::test::TempTree;

namespace {

QStringList strings(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list.append(QString::fromUtf8(text));
    return list;
}

class ControllerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        tree.file(QStringLiteral("top/b.txt"));
        tree.file(QStringLiteral("top/a.jpg"));
        tree.file(QStringLiteral("top/.hidden"));
        tree.file(QStringLiteral("top/sub/c.txt"));
        tree.file(QStringLiteral("top/sub/deeper/d.txt"));
    }

    TempTree tree;
    TavrinAppController controller;
};

TEST_F(ControllerTest, ListsAFolderTreeOffTheGuiThread)
{
    controller.setIncludeSubFolders(true);
    QSignalSpy executing(&controller, &TavrinAppController::executingChanged);

    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top"))}));

    EXPECT_EQ(listedNames(controller), strings({"a.jpg", "b.txt", "c.txt", "d.txt"}));
    EXPECT_FALSE(controller.isExecuting());
    ASSERT_EQ(executing.count(), 2);
    EXPECT_TRUE(executing.at(0).at(0).toBool());
    EXPECT_FALSE(executing.at(1).at(0).toBool());
    EXPECT_EQ(controller.countText(), QStringLiteral("Files listed: 4"));
}

TEST_F(ControllerTest, AFolderIsSkippedInFileModeWithoutSubFolders)
{
    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top")), tree.path(QStringLiteral("top/b.txt"))}));
    EXPECT_EQ(listedNames(controller), strings({"b.txt"}));
}

TEST_F(ControllerTest, FolderModeWithSubFoldersListsTheFoldersBelowTheChosenOne)
{
    controller.setMode(ListMode::Folders);
    controller.setIncludeSubFolders(true);
    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top"))}));
    EXPECT_EQ(listedNames(controller), strings({"sub", "deeper"}));
    EXPECT_EQ(controller.countText(), QStringLiteral("Folders listed: 2"));
}

TEST_F(ControllerTest, ReportsWhatTheScanDoesAndTheTimeItTook)
{
    QSignalSpy messages(&controller, &TavrinAppController::progressMessage);
    QSignalSpy found(&controller, &TavrinAppController::foundCountChanged);
    QSignalSpy timeTaken(&controller, &TavrinAppController::lastActionTimeTakenChanged);
    controller.setIncludeSubFolders(true);

    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top"))}));

    ASSERT_FALSE(messages.isEmpty());
    EXPECT_EQ(messages.first().at(0).toString(), QStringLiteral("Loading files…"));
    EXPECT_EQ(messages.last().at(0).toString(), QString()) << "the progress line is emptied at the end";
    ASSERT_FALSE(found.isEmpty());
    EXPECT_EQ(found.first().at(0).toString(), QStringLiteral("Files found: 0"));
    EXPECT_EQ(found.last().at(0).toString(), QStringLiteral("Files found: 4"));
    ASSERT_EQ(timeTaken.count(), 1);
    EXPECT_TRUE(controller.lastActionTimeTaken().startsWith(QStringLiteral("Loading time: ")));
    EXPECT_TRUE(controller.lastActionTimeTaken().endsWith(QStringLiteral(" s")));
    EXPECT_GE(controller.endTime(), controller.startTime());
}

TEST_F(ControllerTest, ProgressPathsAreShownWithColonsAsSlashes)
{
    tree.file(QStringLiteral("colon/x:y.txt"));
    QSignalSpy messages(&controller, &TavrinAppController::progressMessage);
    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("colon/x:y.txt"))}));
    QStringList shown;
    for (const QList<QVariant>& message : messages)
        shown.append(message.at(0).toString());
    EXPECT_TRUE(shown.contains(tree.path(QStringLiteral("colon/x/y.txt")))) << shown.join(QLatin1Char('|')).toStdString();
}

TEST_F(ControllerTest, RefusesASecondOperationWhileOneRuns)
{
    QSignalSpy finished(&controller, &TavrinAppController::addFinished);
    ASSERT_TRUE(controller.addFiles({tree.path(QStringLiteral("top/b.txt"))}));
    EXPECT_TRUE(controller.isExecuting());
    EXPECT_FALSE(controller.addFiles({tree.path(QStringLiteral("top/a.jpg"))}));
    ASSERT_TRUE(finished.wait(20000));
    EXPECT_EQ(listedNames(controller), strings({"b.txt"}));
    EXPECT_FALSE(controller.addFiles({}));
}

TEST_F(ControllerTest, TheTableKeepsShowingTheOldRowsWhileAWorkerAppends)
{
    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top/b.txt"))}));
    QSignalSpy finished(&controller, &TavrinAppController::addFinished);
    ASSERT_TRUE(controller.addFiles({tree.path(QStringLiteral("top/a.jpg"))}));
    EXPECT_EQ(listedNames(controller), strings({"b.txt"}));
    ASSERT_TRUE(finished.wait(20000));
    EXPECT_EQ(listedNames(controller), strings({"b.txt", "a.jpg"}));
}

TEST_F(ControllerTest, ListOperationsWaitForTheRunningScan)
{
    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top/b.txt")), tree.path(QStringLiteral("top/a.jpg"))}));
    QSignalSpy finished(&controller, &TavrinAppController::addFinished);
    ASSERT_TRUE(controller.addFiles({tree.path(QStringLiteral("top/sub/c.txt"))}));

    controller.removeRows({0});
    controller.clear();
    controller.setMode(ListMode::Folders);
    EXPECT_EQ(controller.moveDown({0}), QList<int>({0}));

    ASSERT_TRUE(finished.wait(20000));
    EXPECT_TRUE(controller.isFiles());
    EXPECT_EQ(listedNames(controller), strings({"b.txt", "a.jpg", "c.txt"}));
}

TEST_F(ControllerTest, ChangingBetweenFilesAndFoldersEmptiesTheList)
{
    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top/b.txt"))}));
    QSignalSpy modeChanged(&controller, &TavrinAppController::modeChanged);

    controller.setMode(ListMode::Files);
    EXPECT_EQ(controller.shownCount(), 1) << "choosing the mode in force changes nothing";
    EXPECT_EQ(modeChanged.count(), 0);

    controller.setMode(ListMode::Folders);
    EXPECT_EQ(controller.shownCount(), 0);
    EXPECT_TRUE(controller.isFolders());
    EXPECT_FALSE(controller.isFiles());
    EXPECT_EQ(modeChanged.count(), 1);

    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top/sub"))}));
    EXPECT_EQ(listedNames(controller), strings({"sub"}));
    controller.setMode(ListMode::Files);
    EXPECT_EQ(controller.shownCount(), 0);
}

TEST_F(ControllerTest, IncludingSubFoldersKeepsTheList)
{
    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top/b.txt"))}));
    QSignalSpy modeChanged(&controller, &TavrinAppController::modeChanged);
    controller.setIncludeSubFolders(true);
    EXPECT_TRUE(controller.isIncludeSubFolders());
    EXPECT_EQ(controller.shownCount(), 1);
    EXPECT_EQ(modeChanged.count(), 1);
}

TEST_F(ControllerTest, ClearEmptiesTheListAndTheTimeTaken)
{
    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top/b.txt"))}));
    ASSERT_FALSE(controller.lastActionTimeTaken().isEmpty());
    QSignalSpy reset(&controller, &TavrinAppController::listChanged);

    controller.clear();

    EXPECT_EQ(controller.shownCount(), 0);
    EXPECT_TRUE(controller.lastActionTimeTaken().isEmpty());
    EXPECT_EQ(reset.count(), 1);
    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top/b.txt"))}))
        << "a cleared path can be listed again";
    EXPECT_EQ(controller.shownCount(), 1);
}

TEST_F(ControllerTest, RemoveMoveAndSortWorkOnTheList)
{
    for (const char* name : {"n10.txt", "n9.txt", "N1.txt", "n2.txt"})
        tree.file(QStringLiteral("sort/") + QString::fromLatin1(name));
    controller.setIncludeSubFolders(true);
    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("sort"))}));
    ASSERT_EQ(listedNames(controller), strings({"N1.txt", "n2.txt", "n9.txt", "n10.txt"}));

    QSignalSpy orderChanged(&controller, &TavrinAppController::orderChanged);
    EXPECT_EQ(controller.moveDown({0}), QList<int>({1}));
    EXPECT_EQ(listedNames(controller), strings({"n2.txt", "N1.txt", "n9.txt", "n10.txt"}));
    EXPECT_EQ(controller.moveUp({3}), QList<int>({2}));
    EXPECT_EQ(listedNames(controller), strings({"n2.txt", "N1.txt", "n10.txt", "n9.txt"}));
    EXPECT_EQ(orderChanged.count(), 2);

    controller.sort({QStringLiteral("filenameWithExtension"), false});
    EXPECT_EQ(listedNames(controller), strings({"n10.txt", "n9.txt", "n2.txt", "N1.txt"}));

    controller.removeRows({0, 2});
    EXPECT_EQ(listedNames(controller), strings({"n9.txt", "N1.txt"}));
}

TEST_F(ControllerTest, NamesThatAreNotUtf8AreReportedOnceAtTheEnd)
{
    const tavrin::test::RawFileRemover remover{tree.rawFile(QStringLiteral("raw"), QByteArray("bad\xff.txt"))};
    tree.file(QStringLiteral("raw/good.txt"));
    controller.setIncludeSubFolders(true);
    QSignalSpy skipped(&controller, &TavrinAppController::nonUtf8NamesSkipped);

    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("raw"))}));

    EXPECT_EQ(listedNames(controller), strings({"good.txt"}));
    ASSERT_EQ(skipped.count(), 1);
    EXPECT_EQ(skipped.first().at(0).toStringList().size(), 1);
    EXPECT_EQ(controller.lastSkippedPaths().size(), 1);

    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("top/b.txt"))}));
    EXPECT_EQ(skipped.count(), 1) << "a clean scan reports nothing";
    EXPECT_TRUE(controller.lastSkippedPaths().isEmpty());
}

TEST_F(ControllerTest, ACancelledScanFinishesAndTheNextOneRunsInFull)
{
    for (int folder = 0; folder < 40; ++folder) {
        for (int file = 0; file < 50; ++file)
            tree.file(QStringLiteral("many/f%1/file%2.txt").arg(folder).arg(file));
    }
    controller.setIncludeSubFolders(true);
    QSignalSpy finished(&controller, &TavrinAppController::addFinished);
    ASSERT_TRUE(controller.addFiles({tree.path(QStringLiteral("many"))}));
    controller.cancelProcess();
    ASSERT_TRUE(finished.wait(20000));
    EXPECT_FALSE(controller.isExecuting());
    EXPECT_LE(controller.shownCount(), 2000);

    ASSERT_TRUE(addAndWait(controller, {tree.path(QStringLiteral("many"))}));
    EXPECT_EQ(controller.shownCount(), 2000);
}

}  // namespace
