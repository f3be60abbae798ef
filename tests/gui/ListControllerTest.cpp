#include "GuiFixture.h"

using namespace tavrin;
using namespace tavrin::test;

namespace {

class ListControllerTest : public ControllerFixture {
protected:
    ListControllerTest()
    {
        for (const char* name :
            { "top/b.txt", "top/a.jpg", "top/.hidden", "top/sub/c.txt", "top/sub/deeper/d.txt" })
            tree.file(QString::fromLatin1(name));
    }
};

// The window shows the lock and the time; the controller says what the scan does.
TEST_F(ListControllerTest, AScanReportsWhatItDoes)
{
    tree.file(u"top/x:y.txt"_s);
    list().setIncludeSubFolders(true);
    QSignalSpy messages(&controller.status(), &ActivityStatus::progressMessage);
    QSignalSpy found(&list(), &ListController::foundCountChanged);
    ASSERT_TRUE(addAndWait({ tree.path(u"top"_s) }));
    ASSERT_FALSE(messages.isEmpty());
    EXPECT_EQ(messages.first().at(0).toString(), u"Loading files…"_s);
    EXPECT_EQ(messages.last().at(0).toString(), QString()) << "the progress line is emptied at the end";
    EXPECT_TRUE(std::any_of(messages.cbegin(), messages.cend(), [&](const QVariantList& message) {
        return message.at(0).toString() == tree.path(u"top/x/y.txt"_s);
    })) << "paths are shown with a stored colon as a slash";
    EXPECT_EQ(found.first().at(0).toString(), u"Files found: 0"_s);
    EXPECT_EQ(found.last().at(0).toString(), u"Files found: 5"_s) << "the last report always arrives";
}

// While a job runs the table shows the list as it was, and every change of the list waits.
TEST_F(ListControllerTest, WhileAScanRunsTheListKeepsStillAndAfterwardsAModeChangeEmptiesIt)
{
    ASSERT_TRUE(addAndWait({ tree.path(u"top/b.txt"_s), tree.path(u"top/a.jpg"_s) }));
    QSignalSpy finished(&list(), &ListController::addFinished);
    ASSERT_TRUE(list().addFiles({ tree.path(u"top/sub/c.txt"_s) }));

    EXPECT_FALSE(list().addFiles({ tree.path(u"top/sub/deeper/d.txt"_s) }));
    list().removeRows({ 0 });
    list().clear();
    list().setMode(ListMode::Folders);
    EXPECT_EQ(list().moveDown({ 0 }), QList<int>({ 0 }));
    EXPECT_EQ(listedNames(), QStringList({ u"b.txt"_s, u"a.jpg"_s }));

    ASSERT_TRUE(finished.wait(kWaitMilliseconds));
    EXPECT_TRUE(list().isFiles());
    EXPECT_EQ(listedNames(), QStringList({ u"b.txt"_s, u"a.jpg"_s, u"c.txt"_s }));
    EXPECT_FALSE(list().addFiles({})) << "no path, no scan";

    // Once idle, whoever changes between files and folders, a profile or the window, empties
    // the list; the mode in force and sub-folders keep it.
    QSignalSpy modeChanged(&list(), &ListController::modeChanged);
    list().setMode(ListMode::Files);
    list().setIncludeSubFolders(true);
    EXPECT_EQ(list().shownCount(), 3);
    settings().chooseFilesOrFolders(1);
    EXPECT_EQ(list().shownCount(), 0);
    EXPECT_TRUE(list().isFolders());
    EXPECT_EQ(modeChanged.count(), 2) << "once for the sub-folders, once for the mode";
}

TEST_F(ListControllerTest, ACancelledScanFinishesAndTheNextOneRunsInFull)
{
    for (int folder = 0; folder < 40; ++folder) {
        for (int file = 0; file < 50; ++file)
            tree.file(u"many/f%1/file%2.txt"_s.arg(folder).arg(file));
    }
    list().setIncludeSubFolders(true);
    ASSERT_TRUE(runAndWait(&list(), &ListController::addFinished, [&] {
        const bool started = list().addFiles({ tree.path(u"many"_s) });
        list().cancelProcess();
        return started;
    }));
    EXPECT_LE(list().shownCount(), 2000);

    ASSERT_TRUE(addAndWait({ tree.path(u"many"_s) }));
    EXPECT_EQ(list().shownCount(), 2000);
}

TEST(BackgroundJobTest, ThrottlesProgressDeliversTheLastReportAndRunsOneJobAtATime)
{
    BackgroundJob job;
    QList<Progress> reports;
    QObject::connect(
        &job, &BackgroundJob::progressChanged, [&](const Progress& progress) { reports.append(progress); });
    std::atomic_bool release = false;

    ASSERT_TRUE(runAndWait(&job, &BackgroundJob::finished, [&] {
        const bool started = job.start([&](const std::atomic_bool&, ProgressObserver* observer) {
            for (int done = 1; done <= 1000; ++done)
                observer->progress({ QString(), done, 1000 });
            while (!release.load())
                QThread::yieldCurrentThread();
        });
        EXPECT_TRUE(job.isRunning());
        EXPECT_FALSE(job.start([](const std::atomic_bool&, ProgressObserver*) {})) << "one job at a time";
        release = true;
        return started;
    }));
    ASSERT_FALSE(reports.isEmpty());
    EXPECT_LT(reports.size(), 100) << "reports come in together";
    EXPECT_EQ(reports.last().done, 1000);
    EXPECT_FALSE(job.isRunning());
}

TEST(BackgroundJobTest, ACancelEndsAQuestionAndDestroyingTheJobCancelsIt)
{
    std::atomic_bool sawCancel = false;
    bool answer = true;
    {
        BackgroundJob job;
        job.start([&](const std::atomic_bool& cancel, ProgressObserver*) {
            answer = job.askOnGuiThread([] { return true; });
            while (!cancel.load())
                QThread::yieldCurrentThread();
            sawCancel = true;
        });
        job.cancel();
    }
    EXPECT_TRUE(sawCancel);
    EXPECT_FALSE(answer) << "a cancel always answers no";
}

} // namespace
