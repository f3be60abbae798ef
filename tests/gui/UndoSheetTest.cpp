#include "gui/log/UndoSheetController.h"

#include "UndoSheetTestHelpers.h"
#include "core/log/UndoRenaming.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/TavrinAppController.h"
#include "gui/log/LogTableModel.h"
#include "gui/log/LogWorker.h"
#include "gui/ui/ElidedLabel.h"
#include "support/TempTree.h"

#include <QApplication>
#include <QFileInfo>
#include <QItemSelectionModel>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::ScriptedUndoPrompter;
using tavrin::test::TempTree;
using Severity = UndoSheetPrompter::Severity;

namespace {

// The sheet over a log folder of its own, opened from the window with Ctrl+Z.
class UndoSheetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        logFolder = tree.folder(QStringLiteral("Logs"));
        controller.setLogFolderPath(logFolder);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void openSheet()
    {
        auto scripted = std::make_unique<ScriptedUndoPrompter>();
        prompter = scripted.get();
        sheet = test::openUndoSheet(window, std::move(scripted));
        ASSERT_NE(sheet, nullptr);
        // A dialog counts as active as soon as its parent is; the keyboard needs the dialog itself.
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == sheet; }));
    }

    RenameLogEntry entry(const QString& from, const QString& to) const
    {
        return RenameLogEntry::fromPaths(tree.path(from), tree.path(to));
    }

    // A log of renames from `from` to `to` in the folder "d", whose items carry the new names.
    QString logOfRenames(const QString& fileName, const QStringList& from, const QStringList& to)
    {
        QList<RenameLogEntry> entries;
        for (qsizetype i = 0; i < from.size(); ++i) {
            tree.file(QStringLiteral("d/") + to[i], from[i].toUtf8());
            entries.append(entry(QStringLiteral("d/") + from[i], QStringLiteral("d/") + to[i]));
        }
        return test::writeLog(logFolder, fileName, entries);
    }

    // Three logs; the newest first in time and in name, so either order the listing uses agrees.
    void writeThreeLogs()
    {
        oldest = logOfRenames(QStringLiteral("Log 14-11-2026 08-00-00-1.xml"), { QStringLiteral("x") },
            { QStringLiteral("X") });
        middle = logOfRenames(QStringLiteral("Log 15-11-2026 09-05-07-2.xml"),
            { QStringLiteral("p"), QStringLiteral("q") }, { QStringLiteral("P"), QStringLiteral("Q") });
        newest = logOfRenames(QStringLiteral("Log 16-11-2026 10-30-00-3.xml"),
            { QStringLiteral("a.txt"), QStringLiteral("b.txt"), QStringLiteral("c.txt") },
            { QStringLiteral("A.txt"), QStringLiteral("B.txt"), QStringLiteral("C.txt") });
    }

    template <typename T> T* child(const char* name) const
    {
        T* found = sheet->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    QString text(const char* labelName) const { return child<QLabel>(labelName)->text(); }
    QString cell(int row, int column) const { return sheet->model()->index(row, column).data().toString(); }
    void click(const char* buttonName) const
    {
        QTest::mouseClick(child<QPushButton>(buttonName), Qt::LeftButton);
    }
    void selectRow(int row) const { sheet->table()->selectRow(row); }
    int selectedRow() const
    {
        const QModelIndexList rows = sheet->table()->selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }

    bool undoAndWait() const
    {
        QSignalSpy finished(sheet, &UndoSheetController::undoFinished);
        click("undoButton");
        return finished.wait(30000);
    }

    bool openAndWait(const QString& path) const
    {
        prompter->chosenFile = path;
        QSignalSpy finished(sheet, &UndoSheetController::checkFinished);
        click("openLogButton");
        return finished.wait(30000);
    }

    TempTree tree;
    QString logFolder;
    TavrinAppController controller;
    MainWindow window { &controller };
    UndoSheetController* sheet = nullptr;
    ScriptedUndoPrompter* prompter = nullptr;
    QString oldest;
    QString middle;
    QString newest;
};

TEST_F(UndoSheetTest, ListsTheLogsNewestFirstAndASelectedRowIsTheCurrentLog)
{
    writeThreeLogs();
    openSheet();

    ASSERT_EQ(sheet->model()->rowCount(), 3);
    EXPECT_EQ(cell(0, LogTableModel::FileNameColumn), QStringLiteral("Log 16-11-2026 10-30-00-3.xml"));
    EXPECT_EQ(cell(1, LogTableModel::FileNameColumn), QStringLiteral("Log 15-11-2026 09-05-07-2.xml"));
    EXPECT_EQ(cell(2, LogTableModel::FileNameColumn), QStringLiteral("Log 14-11-2026 08-00-00-1.xml"));
    EXPECT_EQ(cell(0, LogTableModel::FilesCountColumn), QStringLiteral("3"));
    EXPECT_FALSE(cell(0, LogTableModel::DateCreatedColumn).isEmpty());
    EXPECT_EQ(text("logCountLabel"), QStringLiteral("Logs: 3"));
    EXPECT_EQ(text("logStatusLabel"), QStringLiteral("Renamed items in the log: 0"));
    EXPECT_TRUE(sheet->currLogFilePath().isEmpty());
    EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);

    selectRow(1);
    EXPECT_EQ(sheet->currLogFilePath(), middle);
    EXPECT_EQ(sheet->totalFilesCanBeUndoFromLog(), 2);
    EXPECT_EQ(text("logStatusLabel"), QStringLiteral("Renamed items in the log: 2"));
    EXPECT_TRUE(child<ElidedLabel>("currentLogLabel")->fullText().endsWith(middle));

    sheet->table()->clearSelection();
    EXPECT_EQ(sheet->currLogFilePath(), middle) << "no selection changes nothing";
}

TEST_F(UndoSheetTest, UndoGivesTheNamesBackReportsAndMovesToTheNextLog)
{
    writeThreeLogs();
    tree.file(QStringLiteral("d/c.txt"), "a newcomer took the old name");
    openSheet();
    selectRow(0);
    QString statusDuringSummary;
    int rowsDuringSummary = 0;
    prompter->onAlert = [&] {
        statusDuringSummary = text("logStatusLabel");
        rowsDuringSummary = sheet->model()->rowCount();
    };

    ASSERT_TRUE(undoAndWait());

    EXPECT_EQ(tree.read(QStringLiteral("d/a.txt")), QByteArray("a.txt"));
    EXPECT_EQ(tree.read(QStringLiteral("d/b.txt")), QByteArray("b.txt"));
    EXPECT_FALSE(tree.exists(QStringLiteral("d/A.txt")));
    EXPECT_EQ(tree.read(QStringLiteral("d/c.txt")), QByteArray("a newcomer took the old name"));
    EXPECT_EQ(tree.read(QStringLiteral("d/C.txt")), QByteArray("c.txt")) << "nothing is overwritten";

    ASSERT_EQ(prompter->alerts.size(), 1);
    const ScriptedUndoPrompter::Alert& summary = prompter->alerts.first();
    EXPECT_EQ(summary.severity, Severity::Information);
    EXPECT_EQ(summary.title, localized("UNDOFILESFOLDERSTITLE"));
    EXPECT_EQ(summary.message,
        QStringLiteral("Items in the log: 3\nItems given back their old names: 2\nItems not restored: 1\n"
                       "“%1” keeps its name: another item already has its old name “c.txt”.\n"
                       "The log keeps the items not restored, so the undo can be tried again.")
            .arg(tree.path(QStringLiteral("d/C.txt"))));
    EXPECT_EQ(statusDuringSummary, QStringLiteral("Items restored: 2"));
    EXPECT_EQ(rowsDuringSummary, 3) << "the row goes once the summary was read";

    // The log keeps the entry not restored, so it is listed again for another try.
    EXPECT_TRUE(QFileInfo::exists(newest));
    ASSERT_EQ(sheet->model()->rowCount(), 3);
    EXPECT_EQ(text("logCountLabel"), QStringLiteral("Logs: 3"));
    EXPECT_EQ(selectedRow(), 0);
    EXPECT_EQ(sheet->currLogFilePath(), newest);
    EXPECT_EQ(text("logStatusLabel"), QStringLiteral("Items restored: 2"));
    EXPECT_FALSE(sheet->isUndoing());
    EXPECT_TRUE(controller.lastActionTimeTaken().startsWith(QStringLiteral("Undo time: ")));
    EXPECT_EQ(
        window.findChild<QLabel*>(QStringLiteral("timeLabel"))->text(), controller.lastActionTimeTaken());
}

TEST_F(UndoSheetTest, UndoingTheLastRowSelectsTheRowAboveAndTheLastLogNothing)
{
    writeThreeLogs();
    openSheet();
    selectRow(2);
    ASSERT_TRUE(undoAndWait());
    EXPECT_EQ(selectedRow(), 1);
    EXPECT_EQ(sheet->currLogFilePath(), middle);

    ASSERT_TRUE(undoAndWait());
    ASSERT_TRUE(undoAndWait());
    EXPECT_EQ(sheet->model()->rowCount(), 0);
    EXPECT_EQ(selectedRow(), -1);
    EXPECT_TRUE(sheet->currLogFilePath().isEmpty());
    EXPECT_EQ(text("logCountLabel"), QStringLiteral("Logs: 0"));
}

TEST_F(UndoSheetTest, CommandsWithoutACurrentLogOnlyAlert)
{
    writeThreeLogs();
    openSheet();

    click("undoButton");
    click("deleteLogButton");
    click("viewLogButton");

    ASSERT_EQ(prompter->alerts.size(), 3);
    EXPECT_EQ(prompter->alerts[0].message, localized("UNDOFILESFOLDERSNOLOGSELECTED"));
    EXPECT_EQ(prompter->alerts[1].message, localized("UNDOFILESFOLDERSNOLOGSELECTED"));
    EXPECT_EQ(prompter->alerts[2].title, localized("VIEWLOGFILETITLE"));
    EXPECT_EQ(prompter->alerts[2].message, localized("VIEWLOGFILETITLEMESSAGE"));
    EXPECT_EQ(prompter->deleteQuestions, 0);
    EXPECT_TRUE(prompter->opened.isEmpty());
    EXPECT_EQ(sheet->model()->rowCount(), 3);
    EXPECT_TRUE(tree.exists(QStringLiteral("d/A.txt")));
}

TEST_F(UndoSheetTest, DeleteAnsweredNoKeepsTheLogAndYesRemovesIt)
{
    writeThreeLogs();
    openSheet();
    selectRow(1);

    prompter->deleteAnswer = false;
    click("deleteLogButton");
    EXPECT_EQ(prompter->deleteQuestions, 1);
    EXPECT_TRUE(QFileInfo::exists(middle));
    EXPECT_EQ(sheet->model()->rowCount(), 3);
    EXPECT_EQ(sheet->currLogFilePath(), middle);

    prompter->deleteAnswer = true;
    sheet->table()->setFocus();
    QTest::keyClick(sheet->table(), Qt::Key_Delete);
    EXPECT_EQ(prompter->deleteQuestions, 2) << "the Delete key asks the same question";
    EXPECT_FALSE(QFileInfo::exists(middle));
    EXPECT_EQ(sheet->model()->rowCount(), 2);
    EXPECT_EQ(sheet->currLogFilePath(), oldest) << "the row below moved up and is selected";
    EXPECT_TRUE(tree.exists(QStringLiteral("d/P"))) << "deleting a log undoes nothing";
    EXPECT_TRUE(prompter->alerts.isEmpty());
}

TEST_F(UndoSheetTest, AnIncompatibleLogFromDiskAlertsAndChangesNothing)
{
    writeThreeLogs();
    const QString foreign = test::writeLog(tree.path(QStringLiteral("elsewhere")),
        QStringLiteral("Log 01-01-2020 00-00-00-1.xml"),
        { entry(QStringLiteral("d/X"), QStringLiteral("d/Y")) }, QStringLiteral("2.4.1"));
    const QString notALog = tree.file(QStringLiteral("elsewhere/notes.xml"), "<notes/>");
    openSheet();
    selectRow(1);

    for (const QString& path : { foreign, notALog }) {
        ASSERT_TRUE(openAndWait(path)) << path.toStdString();
        ASSERT_FALSE(prompter->alerts.isEmpty());
        EXPECT_EQ(prompter->alerts.last().severity, Severity::Critical);
        EXPECT_EQ(prompter->alerts.last().message, localized("UNDOFILESFOLDERSINCOMPATIBLE"));
        EXPECT_TRUE(QFileInfo::exists(path));
        EXPECT_EQ(sheet->currLogFilePath(), middle);
        EXPECT_EQ(selectedRow(), 1);
        EXPECT_EQ(text("logStatusLabel"), QStringLiteral("Renamed items in the log: 2"));
    }
    EXPECT_EQ(prompter->chooserFolders, QStringList({ logFolder, logFolder }));
    EXPECT_EQ(sheet->model()->rowCount(), 3);
}

TEST_F(UndoSheetTest, ALogFromDiskIsCheckedThenUndone)
{
    writeThreeLogs();
    tree.file(QStringLiteral("d/renamed"), "kept aside");
    const QString aside = test::writeLog(tree.path(QStringLiteral("elsewhere")),
        QStringLiteral("my batch.xml"), { entry(QStringLiteral("d/original"), QStringLiteral("d/renamed")) });
    openSheet();
    selectRow(0);

    ASSERT_TRUE(openAndWait(aside));
    EXPECT_TRUE(prompter->alerts.isEmpty());
    EXPECT_EQ(selectedRow(), -1);
    EXPECT_EQ(sheet->currLogFilePath(), aside);
    EXPECT_EQ(sheet->totalFilesCanBeUndoFromLog(), 1);
    EXPECT_EQ(text("logStatusLabel"), QStringLiteral("Renamed items in the log: 1"));

    ASSERT_TRUE(undoAndWait());
    EXPECT_EQ(tree.read(QStringLiteral("d/original")), QByteArray("kept aside"));
    EXPECT_FALSE(QFileInfo::exists(aside));
    EXPECT_EQ(sheet->model()->rowCount(), 3) << "the listed logs are not the one undone";
    EXPECT_TRUE(sheet->currLogFilePath().isEmpty());
}

TEST_F(UndoSheetTest, ALogWithoutEntriesAlertsAndUndoOnlyDeletesIt)
{
    const QString empty = test::writeLog(
        tree.path(QStringLiteral("elsewhere")), QStringLiteral("Log 01-01-2026 00-00-00-0.xml"), {});
    openSheet();

    ASSERT_TRUE(openAndWait(empty));
    ASSERT_EQ(prompter->alerts.size(), 1);
    EXPECT_EQ(prompter->alerts.first().message, localized("UNDOFILESFOLDERSINVALIDFILE"));
    EXPECT_EQ(sheet->currLogFilePath(), empty);
    EXPECT_EQ(sheet->totalFilesCanBeUndoFromLog(), 0);

    click("undoButton");
    EXPECT_FALSE(sheet->isUndoing()) << "nothing to give back: no undo runs";
    EXPECT_FALSE(QFileInfo::exists(empty));
    EXPECT_TRUE(sheet->currLogFilePath().isEmpty());
    EXPECT_EQ(prompter->alerts.size(), 1);
}

TEST_F(UndoSheetTest, ViewAndHelpHandFilesToTheDesktop)
{
    writeThreeLogs();
    openSheet();
    selectRow(2);

    click("viewLogButton");
    QTest::mouseClick(sheet->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Help), Qt::LeftButton);

    ASSERT_EQ(prompter->opened.size(), 2);
    EXPECT_EQ(prompter->opened[0], oldest);
    QFile page(prompter->opened[1]);
    ASSERT_TRUE(page.open(QIODevice::ReadOnly)) << "the help page is a file a browser can open";
    EXPECT_TRUE(page.readAll().contains("Undo a batch"));
    EXPECT_TRUE(prompter->alerts.isEmpty());

    prompter->openAnswer = false;
    click("viewLogButton");
    ASSERT_EQ(prompter->alerts.size(), 1);
    EXPECT_EQ(prompter->alerts.first().message, localized("VIEWLOGFAILED").arg(oldest));
}

TEST_F(UndoSheetTest, TheSheetStaysResponsiveThroughALongUndo)
{
    QStringList from;
    QStringList to;
    for (int i = 0; i < 4000; ++i) {
        from.append(QStringLiteral("item %1.txt").arg(i));
        to.append(QStringLiteral("ITEM %1.txt").arg(i));
    }
    logOfRenames(QStringLiteral("Log 16-11-2026 10-30-00-4000.xml"), from, to);
    openSheet();
    selectRow(0);
    int ticksWhileUndoing = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] { ticksWhileUndoing += sheet->isUndoing() ? 1 : 0; });
    ticker.start(0);
    QSignalSpy finished(sheet, &UndoSheetController::undoFinished);

    click("undoButton");

    ASSERT_TRUE(sheet->isUndoing()) << "the undo runs off the GUI thread";
    EXPECT_EQ(text("logStatusLabel"), localized("UNDOINGITEMS"));
    EXPECT_TRUE(child<QProgressBar>("undoBusyIndicator")->isVisible());
    EXPECT_FALSE(sheet->table()->isEnabled());
    EXPECT_FALSE(child<QPushButton>("deleteLogButton")->isEnabled());
    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_TRUE(sheet->isVisible()) << "the sheet waits for the undo to end";

    ASSERT_TRUE(finished.wait(60000));
    EXPECT_GT(ticksWhileUndoing, 0) << "the event loop ran during the undo";
    EXPECT_FALSE(child<QProgressBar>("undoBusyIndicator")->isVisible());
    EXPECT_TRUE(sheet->table()->isEnabled());
    EXPECT_TRUE(tree.exists(QStringLiteral("d/item 0.txt")));
    EXPECT_TRUE(tree.exists(QStringLiteral("d/item 3999.txt")));
    EXPECT_FALSE(tree.exists(QStringLiteral("d/ITEM 3999.txt")));
    ASSERT_EQ(prompter->alerts.size(), 1);
    EXPECT_TRUE(
        prompter->alerts.first().message.contains(QStringLiteral("Items given back their old names: 4000")));
}

TEST(LogWorkerTest, ReportsProgressThenFinishesAndRunsOneJobAtATime)
{
    LogWorker worker;
    QSignalSpy progress(&worker, &LogWorker::progressChanged);
    QSignalSpy finished(&worker, &LogWorker::finished);
    std::atomic_bool release = false;

    ASSERT_TRUE(worker.start([&](const std::atomic_bool&, ProgressObserver* observer) {
        observer->progress({ QStringLiteral("/a"), 3, 10 });
        while (!release.load())
            QThread::yieldCurrentThread();
    }));
    EXPECT_TRUE(worker.isRunning());
    EXPECT_FALSE(worker.start([](const std::atomic_bool&, ProgressObserver*) {})) << "one job at a time";
    release = true;

    ASSERT_TRUE(finished.wait(20000));
    ASSERT_EQ(progress.size(), 1);
    EXPECT_EQ(progress.first(), QVariantList({ 3, 10 }));
    EXPECT_FALSE(worker.isRunning());
}

TEST(LogWorkerTest, DestroyingTheWorkerCancelsItsJob)
{
    std::atomic_bool sawCancel = false;
    {
        LogWorker worker;
        worker.start([&](const std::atomic_bool& cancel, ProgressObserver*) {
            while (!cancel.load())
                QThread::yieldCurrentThread();
            sawCancel = true;
        });
    }
    EXPECT_TRUE(sawCancel);
}

} // namespace
