#include "GuiFixture.h"

#include "core/list/StatusTexts.h"

using namespace tavrin;
using namespace tavrin::test;

namespace {

class RenameControllerTest : public ControllerFixture {
protected:
    RenameControllerTest() { chooseUpperCase(); }
};

TEST_F(RenameControllerTest, PreviewIsRefusedWithNothingToWorkOnAndNamesWhatIsMissing)
{
    EXPECT_FALSE(rename().preview().has_value()) << "an empty list is the window's hint, not an alert";
    EXPECT_FALSE(list().isExecuting());

    listFiles({ u"a-b.txt"_s });
    settings().chooseGeneralOption(10);
    const std::optional<ValidationFailure> failure = rename().preview();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->titleKey, u"GENERALINVALIDINPUT"_s);
    EXPECT_EQ(failure->messageKey, u"ENTERVALIDVALUE"_s);
    EXPECT_EQ(failure->focusOption, u"generalFilenameMask"_s);
    EXPECT_FALSE(list().isExecuting());
    EXPECT_EQ(newNames(), QStringList({ QString() }));
}

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
    listFiles({ u"A.txt"_s, u"b.txt"_s });
    QSignalSpy changed(&rename(), &RenameController::hasFilesForRenamingChanged);
    EXPECT_FALSE(rename().apply(nullptr)) << "nothing proposed yet";

    ASSERT_TRUE(previewAndWait());
    EXPECT_TRUE(rename().isHasFilesForRenaming());
    ASSERT_TRUE(applyAndWait());
    EXPECT_FALSE(rename().isHasFilesForRenaming());
    EXPECT_EQ(
        newNames(), QStringList({ QLatin1String(status::NoChanges), QLatin1String(status::RenamingOk) }));

    ASSERT_TRUE(previewAndWait());
    EXPECT_FALSE(rename().isHasFilesForRenaming()) << "every name is upper case already";

    settings().setGeneralFileNameCase(2);
    ASSERT_TRUE(previewAndWait());
    list().clear();
    EXPECT_FALSE(rename().isHasFilesForRenaming());
    EXPECT_EQ(changed.count(), 4);
}

struct CountRow {
    ListMode mode;
    bool takenTarget;
    QString countText;
};

TEST_F(RenameControllerTest, ApplyCountsWhatItRenamedAndReportsItsWay)
{
    const CountRow rows[] = {
        { ListMode::Files, false, u"Files renamed: 2"_s },
        { ListMode::Files, true, u"Files renamed: 1 (not renamed: 1)"_s },
        { ListMode::Folders, false, u"Folders renamed: 2"_s },
    };
    for (const CountRow& row : rows) {
        const QString folder = u"run%1"_s.arg(&row - rows);
        list().setMode(row.mode);
        list().clear();
        const QStringList paths = row.mode == ListMode::Files
            ? QStringList { tree.file(folder + u"/a.txt"_s), tree.file(folder + u"/b.txt"_s) }
            : QStringList { tree.folder(folder + u"/a"_s), tree.folder(folder + u"/b"_s) };
        ASSERT_TRUE(addAndWait(paths));
        ASSERT_TRUE(previewAndWait());
        if (row.takenTarget)
            tree.file(folder + u"/B.txt"_s);
        QSignalSpy counts(&rename(), &RenameController::renamedCountChanged);
        QSignalSpy messages(&controller.status(), &ActivityStatus::progressMessage);
        QList<Progress> progress;
        const QObject receiver;
        QObject::connect(&list(), &ListController::progressChanged, &receiver,
            [&progress](const Progress& report) { progress.append(report); });

        ASSERT_TRUE(applyAndWait());

        EXPECT_EQ(counts.first().at(0).toString(), row.countText);
        const QString mode = row.mode == ListMode::Files ? u"files"_s : u"folders"_s;
        EXPECT_EQ(messages.first().at(0).toString(), u"Renaming %1…"_s.arg(mode));
        EXPECT_EQ(messages.last().at(0).toString(), u"Log saved as "_s + rename().lastApplyOutcome().logPath);
        ASSERT_FALSE(progress.isEmpty());
        EXPECT_EQ(progress.last().done, 2) << "the last report of a run always arrives";
        EXPECT_EQ(progress.last().total, 2);
        EXPECT_TRUE(controller.status().lastActionTimeTaken().startsWith(u"Renaming time: "_s));
    }
}

TEST_F(RenameControllerTest, ACancelledPreviewEndsAndLeavesTheRestUnproposed)
{
    QStringList names;
    for (int i = 0; i < 3000; ++i)
        names.append(u"f%1.txt"_s.arg(i));
    listFiles(names);
    ASSERT_TRUE(runAndWait(&rename(), &RenameController::previewFinished, [&] {
        const bool started = !rename().preview().has_value();
        list().cancelProcess();
        return started;
    }));
    EXPECT_TRUE(rename().lastPreviewOutcome().cancelled);
    EXPECT_TRUE(newNames().last().isEmpty());
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
