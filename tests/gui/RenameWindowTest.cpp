#include "GuiFixture.h"

#include "core/list/StatusTexts.h"
#include "gui/engine/ActionTab.h"
#include "gui/engine/ActionTabs.h"
#include "gui/engine/RenamePanel.h"
#include "gui/list/FileTableView.h"
#include "gui/list/ItemIconCache.h"
#include "gui/log/LogTableModel.h"
#include "gui/log/UndoSheetController.h"
#include "gui/ui/AttachedWindow.h"
#include "gui/ui/ElidedLabel.h"

#include <QTabBar>

using namespace tavrin;
using namespace tavrin::test;

namespace {

// The window renaming through its action tabs, the way a user does it.
class RenameWindowTest : public WindowFixture {
protected:
    QAction* previewAction() const { return window.renamePanel()->previewAction(); }
    QAction* applyAction() const { return window.renamePanel()->applyAction(); }
    QString progressLine() const { return child<ElidedLabel>(u"progressLabel"_s)->fullText(); }
    QString label(const QString& name) const { return child<QLabel>(name)->text(); }

    ActionTab* showTab(int tabNumber)
    {
        ActionTabs* tabs = window.renamePanel()->tabs();
        ActionTab* page = tabs->pageForTab(tabNumber);
        QTest::mouseClick(
            tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(tabs->indexOfTab(tabNumber)).center());
        EXPECT_EQ(settings().selectedTab(), tabNumber);
        return page;
    }

    QImage iconOf(int row) const
    {
        const QModelIndex index = window.tableModel()->index(row, FileTableModel::IconColumn);
        return index.data(Qt::DecorationRole).value<QIcon>().pixmap(QSize(16, 16)).toImage();
    }
};

// The whole road: a preview, a rename that logs and badges its rows, and the batch undone
// from the sheet the window opens.
TEST_F(RenameWindowTest, PreviewRenameAndUndoTheBatch)
{
    listFiles({ u"beach day.jpg"_s, u"notes.txt"_s, u"README.md"_s });
    ActionTab* page = showTab(tabs::General);
    press(part<QAbstractButton>(page, "generalOption0"));
    auto* chooser = qobject_cast<QComboBox*>(page->fieldForOption(u"generalFileNameCase"_s));
    chooser->setFocus();
    QTest::keyClick(chooser, Qt::Key_End);
    QTest::keyClick(chooser, Qt::Key_Home);
    EXPECT_FALSE(applyAction()->isEnabled()) << "nothing to rename before a preview";

    ASSERT_TRUE(clickPreviewAndWait());
    EXPECT_EQ(shownNewNames(),
        QStringList({ u"BEACH DAY.jpg"_s, u"NOTES.txt"_s, QLatin1String(status::NoChanges) }));
    EXPECT_TRUE(applyAction()->isEnabled());
    EXPECT_TRUE(label(u"timeLabel"_s).startsWith(u"Preview time: "_s));
    EXPECT_TRUE(progressLine().isEmpty()) << "a preview whose actions succeeded leaves no message";
    const QImage plainIcon = iconOf(1);

    ASSERT_TRUE(clickRenameAndWait());
    EXPECT_EQ(prompter->confirmations, 1);
    EXPECT_EQ(listedNames(), QStringList({ u"BEACH DAY.jpg"_s, u"NOTES.txt"_s, u"README.md"_s }));
    EXPECT_EQ(newName(0), QLatin1String(status::RenamingOk));
    EXPECT_NE(iconOf(1), plainIcon) << "the row wears a badge after the rename";
    EXPECT_FALSE(applyAction()->isEnabled()) << "a second rename needs a new preview";
    EXPECT_EQ(label(u"countLabel"_s), u"Files renamed: 2"_s);
    EXPECT_EQ(progressLine(), u"Log saved as "_s + rename().lastApplyOutcome().logPath);
    EXPECT_TRUE(label(u"timeLabel"_s).startsWith(u"Renaming time: "_s));

    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    auto* sheet = window.findChild<UndoSheetController*>();
    ASSERT_NE(sheet, nullptr);
    ASSERT_EQ(sheet->model()->rowCount(), 1);
    sheet->table()->selectRow(0);
    ASSERT_TRUE(runAndWait(sheet, &UndoSheetController::undoFinished, [&] {
        QTest::mouseClick(part<QPushButton>(sheet, "undoButton"), Qt::LeftButton);
        return true;
    }));
    EXPECT_EQ(tree.read(u"files/beach day.jpg"_s), QByteArray("beach day.jpg"));
    // Regression: the rows kept the undone names with their "Renaming (OK)" badges, and the
    // next preview said "File Not Found" on every one of them.
    EXPECT_EQ(listedNames(), QStringList({ u"beach day.jpg"_s, u"notes.txt"_s, u"README.md"_s }));
    EXPECT_EQ(shownNewNames(), QStringList({ QString(), QString(), QLatin1String(status::NoChanges) }));
    EXPECT_EQ(progressLine(), localized("ITEMSRESTORED").arg(2));
}

// Where the log cannot be written, the window asks on its own thread; the answer decides.
TEST_F(RenameWindowTest, AnUnwritableLogFolderAsksWhetherToRenameWithoutALog)
{
    listFiles({ u"a.txt"_s });
    controller.session().setLogFolderPath(tree.file(u"blocker"_s) + u"/Logs"_s);
    chooseUpperCase();
    const std::tuple<bool, QString, QString, const char*> rows[] = {
        { false, u"A.txt"_s, u"Files renamed: 0"_s, "RENAMINGABORTEDNOLOG" },
        { true, QLatin1String(status::RenamingOk), u"Files renamed: 1"_s, "LOGNOTWRITTEN" },
    };
    for (const auto& [goOn, shownName, countText, progressKey] : rows) {
        ASSERT_TRUE(clickPreviewAndWait());
        prompter->continueAnswer = goOn;
        ASSERT_TRUE(clickRenameAndWait());
        EXPECT_TRUE(prompter->logQuestionOnGuiThread) << "a dialog is never opened from the worker";
        EXPECT_EQ(tree.exists(u"files/A.txt"_s), goOn);
        EXPECT_EQ(newName(0), shownName);
        EXPECT_EQ(label(u"countLabel"_s), countText);
        EXPECT_EQ(progressLine(), localized(progressKey));
    }
    EXPECT_EQ(prompter->logQuestions, 2);
}

// Nothing starts without items or without the inputs the tab needs: the window points at
// the Preview button, or names what is missing and takes the focus to its field.
TEST_F(RenameWindowTest, APreviewThatCannotRunSaysWhyAndStartsNothing)
{
    QSignalSpy executing(&list(), &ListController::executingChanged);
    auto* attached = child<AttachedWindow>(u"attachedWindow"_s);
    QTest::keyClick(&window, Qt::Key_F5);
    EXPECT_TRUE(attached->isVisible());
    EXPECT_EQ(attached->text(), localized("NOITEMSTOPREVIEW"));
    EXPECT_EQ(attached->anchor(), window.renamePanel()->previewButton());
    EXPECT_TRUE(prompter->alerts.isEmpty());

    listFiles({ u"a_b.txt"_s });
    executing.clear();
    const std::tuple<int, const char*, const char*, const char*> rows[] = {
        { tabs::InsertDelete, "insertDeleteInsertAtBeforeText", "INSERTTEXTATBEFORETEXT", "ENTERSOMETEXT" },
        { tabs::ReplaceRemove, "replaceRemoveThis", "REPLACEREMOVEINVALIDINPUT", "ENTERVALIDVALUE" },
    };
    for (const auto& [tab, focusKey, titleKey, messageKey] : rows) {
        ActionTab* page = showTab(tab);
        if (tab == tabs::InsertDelete) {
            press(part<QAbstractButton>(page, "insertPlace3"));
            typeInto(page->fieldForOption(u"insertDeleteInsert"_s), u"X"_s);
        }
        window.tableView()->setFocus();
        prompter->alerts.clear();
        QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(prompter->alertTexts(), QStringList(localized(titleKey) + u'|' + localized(messageKey)));
        EXPECT_EQ(QApplication::focusWidget(), page->fieldForOption(QString::fromLatin1(focusKey)));
    }
    EXPECT_EQ(executing.count(), 0) << "no preview was started";
}

// Regression: proposals that collide looked like ordinary ones, and Rename then failed on all
// but one of them without a word beforehand.
TEST_F(RenameWindowTest, CollidingProposalsAreMarkedCountedAndAskedAbout)
{
    listFiles({ u"a-1.txt"_s, u"a-2.txt"_s, u"b.txt"_s });
    settings().setSelectedTab(tabs::General);
    settings().chooseGeneralOption(8);
    settings().setGeneralRemoveAfterString(u"-"_s);
    ASSERT_TRUE(clickPreviewAndWait());
    EXPECT_EQ(progressLine(), localized("CONFLICTSCOUNT").arg(2));
    const auto tooltip
        = [&](int row) { return window.tableModel()->index(row, 1).data(Qt::ToolTipRole).toString(); };
    EXPECT_TRUE(tooltip(0).endsWith(localized("CONFLICTTOOLTIP")));
    EXPECT_FALSE(tooltip(2).contains(localized("CONFLICTTOOLTIP")));
    FileSystemItem unmarked = list().shownItems()[0];
    ASSERT_TRUE(unmarked.isConflict());
    unmarked.setConflict(false);
    EXPECT_NE(iconOf(0), ItemIconCache().icon(unmarked).pixmap(QSize(16, 16)).toImage())
        << "the warning badge";

    prompter->confirmAnswer = false;
    QTest::mouseClick(child<QPushButton>(u"applyActionButton"_s), Qt::LeftButton);
    EXPECT_EQ(prompter->lastConflicts, 2) << "Rename says how many proposals collide";
    EXPECT_FALSE(list().isExecuting()) << "answered No";
    EXPECT_TRUE(tree.exists(u"files/a-1.txt"_s));
    EXPECT_TRUE(applyAction()->isEnabled()) << "the proposals are still there to apply";
}

TEST_F(RenameWindowTest, TheNumberingTabSaysWhenTheMaskCutsTheNumbers)
{
    listFiles({ u"a.jpg"_s, u"b.jpg"_s, u"c.jpg"_s });
    settings().setSelectedTab(tabs::AlphaNumeric);
    settings().chooseNumericOrAlphabetic(0);
    settings().setAlphaNumericNumericStartWith(u"10"_s);
    const auto* warning = child<QLabel>(u"paddingMaskWarning"_s);
    settings().setAlphaNumericPaddingMask(u"00"_s);
    EXPECT_TRUE(warning->isHidden());
    settings().setAlphaNumericPaddingMask(u"0"_s);
    EXPECT_FALSE(warning->isHidden());
    EXPECT_EQ(warning->text(), localized("SEQUENCEMASKCUTS"));
    list().clear();
    EXPECT_TRUE(warning->isHidden()) << "an empty list has no numbers to cut";
}

// A long preview runs off the GUI thread: the window repaints, the options wait, Escape
// reaches its cancel, and the undo sheet is refused until it ends.
TEST_F(RenameWindowTest, TheWindowKeepsRunningWhileALongPreviewWorks)
{
    QStringList names;
    for (int i = 0; i < 12000; ++i)
        names.append(u"file %1.txt"_s.arg(i));
    listFiles(names);
    // A finished preview by other options: its proposals must not survive the cancelled one.
    settings().setSelectedTab(tabs::General);
    settings().chooseGeneralOption(0);
    settings().setGeneralFileNameCase(3);
    ASSERT_TRUE(clickPreviewAndWait());
    ASSERT_TRUE(applyAction()->isEnabled());
    chooseUpperCase();
    int ticksWhileExecuting = 0;
    QTimer ticker;
    // Escape goes once the event loop has run during the preview.
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        if (list().isExecuting() && ++ticksWhileExecuting == 1)
            QTest::keyClick(&window, Qt::Key_Escape);
    });
    ticker.start(0);
    QSignalSpy cancelled(child<QAction>(u"cancelAction"_s), &QAction::triggered);

    ASSERT_TRUE(runAndWait(&rename(), &RenameController::previewFinished, [&] {
        QTest::keyClick(&window, Qt::Key_F5);
        EXPECT_TRUE(list().isExecuting()) << "the preview runs off the GUI thread";
        EXPECT_FALSE(previewAction()->isEnabled());
        EXPECT_FALSE(window.renamePanel()->tabs()->isEnabled()) << "no option changes meanwhile";
        EXPECT_TRUE(child<QPushButton>(u"cancelActionButton"_s)->isEnabled());
        EXPECT_EQ(progressLine(), localized("GENERATINGPREVIEWPLEASEWAIT"));
        EXPECT_EQ(window.tableModel()->rowCount(), 12000) << "the table keeps showing the list";
        QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(window.findChild<UndoSheetController*>(), nullptr) << "no undo while a batch runs";
        return true;
    }));
    EXPECT_GT(ticksWhileExecuting, 0) << "the event loop ran during the preview";
    EXPECT_EQ(cancelled.count(), 1);
    // Regression: Rename stayed enabled and applied the earlier preview's proposals to the
    // rows the cancelled one had not reached.
    EXPECT_FALSE(applyAction()->isEnabled()) << "Rename waits for a preview that finishes";
    EXPECT_TRUE(newNames().filter(u"File "_s).isEmpty()) << "no row keeps the earlier preview's proper case";
    EXPECT_TRUE(previewAction()->isEnabled());
    EXPECT_FALSE(child<QAction>(u"cancelAction"_s)->isEnabled());
}

} // namespace
