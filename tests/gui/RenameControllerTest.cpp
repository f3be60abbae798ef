#include "GuiFixture.h"

using namespace tavrin;
using namespace tavrin::test;

namespace {

class RenameControllerTest : public ControllerFixture {
protected:
    RenameControllerTest() { chooseUpperCase(); }
};

// The options are read once, when the run starts: a change meanwhile waits for the next run.
TEST_F(RenameControllerTest, APreviewRunsWithTheOptionsOfItsStart)
{
    QStringList names;
    for (int i = 0; i < 2000; ++i)
        names.append(u"f%1.txt"_s.arg(i));
    listFiles(names);
    ASSERT_TRUE(runAndWait(&rename(), &RenameController::previewFinished, [&] {
        const bool started = !rename().preview().has_value();
        settings().setGeneralFileNameCase(2);
        return started;
    }));
    EXPECT_EQ(newNames().filter(u"F"_s).size(), 2000) << "every name in the case of the start";
}

TEST_F(RenameControllerTest, HasFilesForRenamingFollowsPreviewApplyAndClear)
{
    ASSERT_FALSE(rename().preview().has_value());
    EXPECT_FALSE(list().isExecuting()) << "an empty list is the window's hint, not a run";
    listFiles({ u"A.txt"_s, u"b.txt"_s });
    QSignalSpy changed(&rename(), &RenameController::hasFilesForRenamingChanged);
    EXPECT_FALSE(rename().apply(nullptr)) << "nothing proposed yet";
    ASSERT_TRUE(previewAndWait());
    EXPECT_TRUE(rename().isHasFilesForRenaming());
    ASSERT_TRUE(applyAndWait());
    EXPECT_FALSE(rename().isHasFilesForRenaming());
    ASSERT_TRUE(previewAndWait());
    EXPECT_FALSE(rename().isHasFilesForRenaming()) << "every name is upper case already";
    settings().setGeneralFileNameCase(2);
    ASSERT_TRUE(previewAndWait());
    list().clear();
    EXPECT_FALSE(rename().isHasFilesForRenaming());
    EXPECT_EQ(changed.count(), 4);
}

TEST_F(RenameControllerTest, ApplyCountsWhatItRenamedByTheKindOfItems)
{
    const std::tuple<ListMode, bool, QString> rows[] = {
        { ListMode::Files, false, u"Files renamed: 2"_s },
        { ListMode::Files, true, u"Files renamed: 1 (not renamed: 1)"_s },
        { ListMode::Folders, false, u"Folders renamed: 2"_s },
    };
    for (const auto& row : rows) {
        const auto& [mode, takenTarget, countText] = row;
        const QString folder = u"run%1"_s.arg(&row - rows);
        list().setMode(mode);
        const QStringList paths = mode == ListMode::Files
            ? QStringList { tree.file(folder + u"/a.txt"_s), tree.file(folder + u"/b.txt"_s) }
            : QStringList { tree.folder(folder + u"/a"_s), tree.folder(folder + u"/b"_s) };
        list().clear();
        ASSERT_TRUE(addAndWait(paths));
        ASSERT_TRUE(previewAndWait());
        if (takenTarget)
            tree.file(folder + u"/B.txt"_s);
        QSignalSpy counts(&rename(), &RenameController::renamedCountChanged);
        ASSERT_TRUE(applyAndWait());
        EXPECT_EQ(counts.first().at(0).toString(), countText);
    }
}

TEST_F(RenameControllerTest, ACancelDuringTheLogQuestionAbortsTheApply)
{
    listFiles({ u"a.txt"_s });
    controller.session().setLogFolderPath(tree.file(u"blocker"_s) + u"/Logs"_s);
    ASSERT_TRUE(previewAndWait());
    int asked = 0;
    // Cancel pressed while the question was up, then the question answered.
    ASSERT_TRUE(applyAndWait([&] {
        ++asked;
        list().cancelProcess();
        return true;
    }));
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(rename().lastApplyOutcome().aborted);
    EXPECT_TRUE(tree.exists(u"files/a.txt"_s));
}

} // namespace
