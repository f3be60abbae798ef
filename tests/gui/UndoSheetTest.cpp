#include "gui/log/UndoSheetController.h"

#include "GuiFixture.h"
#include "gui/log/LogTableModel.h"
#include "gui/ui/ElidedLabel.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPointer>
#include <QProgressBar>

using namespace tavrin;
using namespace tavrin::test;
using Severity = Prompter::Severity;

namespace {

// Three logs in the log folder, and the sheet that the window opens with Ctrl+Z.
class UndoSheetTest : public WindowFixture {
protected:
    void SetUp() override
    {
        WindowFixture::SetUp();
        // The newest first in time and in name, so either order the listing uses agrees.
        oldest = logOfRenames(u"Log 14-11-2026 08-00-00-1.xml"_s, { u"x"_s }, { u"X"_s });
        middle = logOfRenames(u"Log 15-11-2026 09-05-07-2.xml"_s, { u"p"_s, u"q"_s }, { u"P"_s, u"Q"_s });
        newest = logOfRenames(u"Log 16-11-2026 10-30-00-3.xml"_s, { u"a.txt"_s, u"b.txt"_s, u"c.txt"_s },
            { u"A.txt"_s, u"B.txt"_s, u"C.txt"_s });
    }

    void openSheet()
    {
        QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
        sheet = window.findChild<UndoSheetController*>();
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
            tree.file(u"d/"_s + to[i], from[i].toUtf8());
            entries.append(entry(u"d/"_s + from[i], u"d/"_s + to[i]));
        }
        return writeLog(controller.session().logFolderPath(), fileName, entries);
    }

    QString text(const char* labelName) const { return part<QLabel>(sheet, labelName)->text(); }
    void click(const char* name) const { QTest::mouseClick(part<QPushButton>(sheet, name), Qt::LeftButton); }
    void clickHelp() const
    {
        QTest::mouseClick(
            sheet->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Help), Qt::LeftButton);
    }
    int selectedRow() const
    {
        const QModelIndexList rows = sheet->table()->selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }

    bool clickAndWait(const char* button, void (UndoSheetController::*finished)()) const
    {
        return runAndWait(sheet, finished, [this, button] {
            click(button);
            return true;
        });
    }
    bool undoAndWait() const { return clickAndWait("undoButton", &UndoSheetController::undoFinished); }
    bool openAndWait(const QString& path) const
    {
        prompter->chosenFile = path;
        return clickAndWait("openLogButton", &UndoSheetController::checkFinished);
    }

    UndoSheetController* sheet = nullptr;
    QString oldest;
    QString middle;
    QString newest;
};

// Without a current log the commands wait; a selected row is the current log.
TEST_F(UndoSheetTest, ListsTheLogsNewestFirstAndASelectedRowIsTheCurrentLog)
{
    openSheet();
    ASSERT_EQ(sheet->model()->rowCount(), 3);
    const auto cell
        = [&](int row, int column) { return sheet->model()->index(row, column).data().toString(); };
    EXPECT_EQ(cell(0, LogTableModel::FileNameColumn), u"Log 16-11-2026 10-30-00-3.xml"_s);
    EXPECT_EQ(cell(2, LogTableModel::FileNameColumn), u"Log 14-11-2026 08-00-00-1.xml"_s);
    EXPECT_EQ(cell(0, LogTableModel::FilesCountColumn), u"3"_s);
    EXPECT_EQ(text("logCountLabel"), u"Logs: 3"_s);
    EXPECT_EQ(text("logStatusLabel"), u"Renamed items in the log: 0"_s);
    EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
    // Regression: Undo, View and Delete were offered before a log was chosen.
    for (const char* name : { "undoButton", "deleteLogButton", "viewLogButton" })
        EXPECT_FALSE(part<QPushButton>(sheet, name)->isEnabled()) << name;
    EXPECT_TRUE(part<QPushButton>(sheet, "openLogButton")->isEnabled());

    sheet->table()->selectRow(1);
    for (const char* name : { "undoButton", "deleteLogButton", "viewLogButton" })
        EXPECT_TRUE(part<QPushButton>(sheet, name)->isEnabled()) << name;
    EXPECT_EQ(sheet->currLogFilePath(), middle);
    EXPECT_EQ(sheet->totalFilesCanBeUndoFromLog(), 2);
    EXPECT_EQ(text("logStatusLabel"), u"Renamed items in the log: 2"_s);
    EXPECT_TRUE(part<ElidedLabel>(sheet, "currentLogLabel")->fullText().endsWith(middle));
    sheet->table()->clearSelection();
    EXPECT_EQ(sheet->currLogFilePath(), middle) << "no selection changes nothing";

    const QPointer<UndoSheetController> closing(sheet);
    click("closeButton");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(closing.isNull()) << "each opening makes a sheet of its own";
}

// The log keeps the entry not restored, so it is listed again for another try.
TEST_F(UndoSheetTest, UndoGivesTheNamesBackReportsAndMovesToTheNextLog)
{
    tree.file(u"d/c.txt"_s, "a newcomer took the old name");
    openSheet();
    sheet->table()->selectRow(0);
    QString statusDuringSummary;
    int rowsDuringSummary = 0;
    prompter->onAlert = [&] {
        statusDuringSummary = text("logStatusLabel");
        rowsDuringSummary = sheet->model()->rowCount();
    };
    ASSERT_TRUE(undoAndWait());
    ASSERT_EQ(prompter->alerts.size(), 1);
    EXPECT_EQ(prompter->alerts.first().severity, Severity::Information);
    EXPECT_TRUE(prompter->alerts.first().text().startsWith(localized("UNDOFILESFOLDERSTITLE")
        + u"|Items in the log: 3\nItems given back their old names: 2\n"_s));
    EXPECT_EQ(statusDuringSummary, u"Items restored: 2"_s);
    EXPECT_EQ(rowsDuringSummary, 3) << "the row goes once the summary was read";
    EXPECT_EQ(sheet->model()->rowCount(), 3);
    EXPECT_EQ(selectedRow(), 0);
    EXPECT_EQ(sheet->currLogFilePath(), newest);
    EXPECT_EQ(text("logStatusLabel"), u"Items restored: 2"_s);
    EXPECT_TRUE(child<QLabel>(u"timeLabel"_s)->text().startsWith(u"Undo time: "_s));
}

TEST_F(UndoSheetTest, DeleteAsksFirstAndUndoMovesTheSelectionToTheNextLog)
{
    openSheet();
    sheet->table()->selectRow(1);
    prompter->yesNoAnswer = false;
    click("deleteLogButton");
    EXPECT_EQ(prompter->questions.size(), 1);
    EXPECT_TRUE(QFileInfo::exists(middle));
    EXPECT_EQ(sheet->currLogFilePath(), middle);

    prompter->yesNoAnswer = true;
    sheet->table()->setFocus();
    QTest::keyClick(sheet->table(), Qt::Key_Delete);
    EXPECT_EQ(prompter->questions.size(), 2) << "the Delete key asks the same question";
    EXPECT_FALSE(QFileInfo::exists(middle));
    EXPECT_EQ(sheet->model()->rowCount(), 2);
    EXPECT_EQ(sheet->currLogFilePath(), oldest) << "the row below moved up and is selected";
    EXPECT_TRUE(tree.exists(u"d/P"_s)) << "deleting a log undoes nothing";
    EXPECT_TRUE(prompter->alerts.isEmpty());

    // Undoing the last row selects the row above, and the last log leaves nothing selected.
    ASSERT_TRUE(undoAndWait());
    EXPECT_EQ(selectedRow(), 0);
    EXPECT_EQ(sheet->currLogFilePath(), newest);
    ASSERT_TRUE(undoAndWait());
    EXPECT_EQ(selectedRow(), -1);
    EXPECT_TRUE(sheet->currLogFilePath().isEmpty());
    EXPECT_EQ(text("logCountLabel"), u"Logs: 0"_s);
}

// A log of another version changes nothing; one without entries is told about and only
// deleted; a good one is checked, then undone.
TEST_F(UndoSheetTest, ALogFromDiskIsCheckedThenUndone)
{
    const QString foreign = writeLog(tree.path(u"elsewhere"_s), u"Log 01-01-2020 00-00-00-1.xml"_s,
        { entry(u"d/X"_s, u"d/Y"_s) }, u"2.4.1"_s);
    const QString empty = writeLog(tree.path(u"elsewhere"_s), u"Log 01-01-2026 00-00-00-0.xml"_s, {});
    tree.file(u"d/renamed"_s, "kept aside");
    const QString aside
        = writeLog(tree.path(u"elsewhere"_s), u"my batch.xml"_s, { entry(u"d/original"_s, u"d/renamed"_s) });
    openSheet();
    sheet->table()->selectRow(1);

    ASSERT_TRUE(openAndWait(foreign));
    EXPECT_EQ(prompter->alerts.last().severity, Severity::Critical);
    EXPECT_EQ(prompter->alerts.last().message, localized("UNDOFILESFOLDERSINCOMPATIBLE"));
    EXPECT_EQ(selectedRow(), 1);
    EXPECT_EQ(text("logStatusLabel"), u"Renamed items in the log: 2"_s);
    EXPECT_EQ(prompter->chooserQuestions,
        QStringList(localized("SELECTLOGFILETITLE").arg(localized("APPTITLE")) + u'|'
            + controller.session().logFolderPath()));
    EXPECT_EQ(prompter->choices, QList({ Prompter::Choice::LogFile }));

    ASSERT_TRUE(openAndWait(empty));
    EXPECT_EQ(prompter->alerts.last().message, localized("UNDOFILESFOLDERSINVALIDFILE"));
    EXPECT_EQ(selectedRow(), -1);
    EXPECT_EQ(sheet->currLogFilePath(), empty);
    click("undoButton");
    EXPECT_FALSE(sheet->isUndoing()) << "nothing to give back: no undo runs";
    EXPECT_FALSE(QFileInfo::exists(empty));
    EXPECT_TRUE(sheet->currLogFilePath().isEmpty());

    ASSERT_TRUE(openAndWait(aside));
    EXPECT_EQ(prompter->alerts.size(), 2);
    EXPECT_EQ(text("logStatusLabel"), u"Renamed items in the log: 1"_s);
    ASSERT_TRUE(undoAndWait());
    EXPECT_EQ(tree.read(u"d/original"_s), QByteArray("kept aside"));
    EXPECT_EQ(sheet->model()->rowCount(), 3) << "the listed logs are not the one undone";
    EXPECT_TRUE(sheet->currLogFilePath().isEmpty());
}

// Without a browser, the alerts say which log could not be shown and where the manual is.
TEST_F(UndoSheetTest, ViewAndHelpHandFilesToTheDesktop)
{
    openSheet();
    sheet->table()->selectRow(2);
    click("viewLogButton");
    clickHelp();
    ASSERT_EQ(prompter->opened.size(), 2);
    EXPECT_EQ(prompter->opened[0], oldest);
    EXPECT_TRUE(prompter->opened[1].endsWith(u"/undo.html"_s))
        << "the help page is a file a browser can open";
    EXPECT_TRUE(prompter->alerts.isEmpty());

    prompter->openAnswer = false;
    click("viewLogButton");
    clickHelp();
    ASSERT_EQ(prompter->alerts.size(), 2);
    EXPECT_EQ(prompter->alerts.first().message, localized("VIEWLOGFAILED").arg(oldest));
    EXPECT_TRUE(prompter->alerts.last().message.contains(prompter->opened.last()));
}

TEST_F(UndoSheetTest, TheSheetStaysResponsiveThroughALongUndo)
{
    QStringList from;
    QStringList to;
    for (int i = 0; i < 4000; ++i) {
        from.append(u"item %1.txt"_s.arg(i));
        to.append(u"ITEM %1.txt"_s.arg(i));
    }
    const QString big = logOfRenames(u"Log 17-11-2026 10-30-00-4000.xml"_s, from, to);
    openSheet();
    sheet->table()->selectRow(0);
    int ticksWhileUndoing = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] { ticksWhileUndoing += sheet->isUndoing() ? 1 : 0; });
    ticker.start(0);
    QSignalSpy finished(sheet, &UndoSheetController::undoFinished);

    click("undoButton");
    ASSERT_TRUE(sheet->isUndoing()) << "the undo runs off the GUI thread";
    EXPECT_EQ(text("logStatusLabel"), localized("UNDOINGITEMS"));
    auto* busy = part<QProgressBar>(sheet, "undoBusyIndicator");
    EXPECT_TRUE(busy->isVisible());
    EXPECT_FALSE(sheet->table()->isEnabled() || part<QPushButton>(sheet, "deleteLogButton")->isEnabled());
    EXPECT_TRUE(part<QPushButton>(sheet, "cancelUndoButton")->isVisible());
    // Esc stops the undo after the item at hand; the sheet stays to say what was done.
    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_TRUE(sheet->isVisible()) << "the sheet waits for the undo to end";

    ASSERT_TRUE(finished.wait(kWaitMilliseconds));
    EXPECT_GT(ticksWhileUndoing, 0) << "the event loop ran during the undo";
    EXPECT_FALSE(busy->isVisible() || part<QPushButton>(sheet, "cancelUndoButton")->isVisible());
    EXPECT_TRUE(sheet->table()->isEnabled());
    ASSERT_EQ(prompter->alerts.size(), 1);
    const UndoSummary& summary = sheet->lastSummary();
    // Counts in the user's number format ("4,000" in English).
    EXPECT_TRUE(prompter->alerts.first().message.contains(u"Items in the log: "_s + QLocale().toString(4000)));
    ASSERT_LT(summary.restored, 4000) << "the undo ran to its end before Esc";
    const int row = sheet->model()->rowOfPath(big);
    ASSERT_GE(row, 0);
    EXPECT_EQ(sheet->model()->log(row).filesCount, 4000 - summary.restored) << "the row counts what the log keeps";
}

} // namespace
