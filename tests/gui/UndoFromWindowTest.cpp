#include "gui/app/MainWindow.h"

#include "GuiTestHelpers.h"
#include "UndoSheetTestHelpers.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "gui/engine/RenamePanel.h"
#include "gui/log/LogTableModel.h"
#include "support/TempTree.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::ScriptedPrompter;
using tavrin::test::ScriptedUndoPrompter;
using tavrin::test::TempTree;

namespace {

// The whole road: items renamed in the window, the batch undone from the sheet it opens.
class UndoFromWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        logFolder = tree.folder(QStringLiteral("Logs"));
        controller.setLogFolderPath(logFolder);
        auto scripted = std::make_unique<ScriptedPrompter>();
        window.renamePanel()->setPrompter(std::move(scripted));
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void listFolder(const QStringList& names)
    {
        for (const QString& name : names)
            tree.file(QStringLiteral("photos/") + name, name.toUtf8());
        controller.setIncludeSubFolders(true);
        QSignalSpy finished(&controller, &TavrinAppController::addFinished);
        window.addPaths({ tree.path(QStringLiteral("photos")) });
        ASSERT_TRUE(finished.wait(20000));
    }

    // Upper case for every name, through the settings the General tab edits.
    void renameToUpperCase()
    {
        controller.settings().setSelectedTab(tabs::General);
        ASSERT_TRUE(controller.settings().chooseGeneralOption(0));
        controller.settings().setGeneralFileNameCase(1);
        QSignalSpy previewed(&controller, &TavrinAppController::previewFinished);
        window.renamePanel()->previewAction()->trigger();
        ASSERT_TRUE(previewed.wait(20000));
        QSignalSpy applied(&controller, &TavrinAppController::applyFinished);
        window.renamePanel()->applyAction()->trigger();
        ASSERT_TRUE(applied.wait(20000));
    }

    QAction* undoAction() const { return window.findChild<QAction*>(QStringLiteral("undoBatchAction")); }

    TempTree tree;
    QString logFolder;
    TavrinAppController controller;
    MainWindow window { &controller };
};

TEST_F(UndoFromWindowTest, ABatchRenamedInTheWindowIsUndoneFromTheSheet)
{
    listFolder({ QStringLiteral("beach.jpg"), QStringLiteral("notes.txt") });
    renameToUpperCase();
    ASSERT_TRUE(tree.exists(QStringLiteral("photos/BEACH.jpg")));
    const QString logPath = controller.lastApplyOutcome().logPath;
    ASSERT_FALSE(logPath.isEmpty());

    auto scripted = std::make_unique<ScriptedUndoPrompter>();
    ScriptedUndoPrompter* prompter = scripted.get();
    UndoSheetController* sheet = test::openUndoSheet(window, std::move(scripted));
    ASSERT_NE(sheet, nullptr);
    ASSERT_EQ(sheet->model()->rowCount(), 1);
    EXPECT_EQ(sheet->model()->log(0).path, logPath);
    EXPECT_EQ(sheet->model()->log(0).filesCount, 2);

    sheet->table()->selectRow(0);
    QSignalSpy undone(sheet, &UndoSheetController::undoFinished);
    QTest::mouseClick(sheet->findChild<QPushButton*>(QStringLiteral("undoButton")), Qt::LeftButton);
    ASSERT_TRUE(undone.wait(20000));

    EXPECT_EQ(tree.read(QStringLiteral("photos/beach.jpg")), QByteArray("beach.jpg"));
    EXPECT_EQ(tree.read(QStringLiteral("photos/notes.txt")), QByteArray("notes.txt"));
    EXPECT_FALSE(tree.exists(QStringLiteral("photos/BEACH.jpg")));
    EXPECT_FALSE(QFile::exists(logPath));
    EXPECT_EQ(sheet->model()->rowCount(), 0);
    ASSERT_EQ(prompter->alerts.size(), 1);
    EXPECT_TRUE(
        prompter->alerts.first().message.contains(QStringLiteral("Items given back their old names: 2")));
    EXPECT_TRUE(window.findChild<QLabel*>(QStringLiteral("timeLabel"))
                    ->text()
                    .startsWith(QStringLiteral("Undo time: ")));
}

TEST_F(UndoFromWindowTest, TheSheetIsRefusedWhileABatchRunsAndGoesWhenClosed)
{
    QStringList names;
    for (int i = 0; i < 2000; ++i)
        names.append(QStringLiteral("file %1.txt").arg(i));
    listFolder(names);
    controller.settings().setSelectedTab(tabs::General);
    ASSERT_TRUE(controller.settings().chooseGeneralOption(0));
    controller.settings().setGeneralFileNameCase(1);
    QSignalSpy previewed(&controller, &TavrinAppController::previewFinished);

    window.renamePanel()->previewAction()->trigger();
    ASSERT_TRUE(controller.isExecuting());
    EXPECT_FALSE(undoAction()->isEnabled());
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window.findChild<UndoSheetController*>(), nullptr) << "no undo while a batch runs";

    ASSERT_TRUE(previewed.wait(60000));
    EXPECT_TRUE(undoAction()->isEnabled());
    EXPECT_EQ(undoAction()->shortcut(), QKeySequence(QKeySequence::Undo));
    QPointer<UndoSheetController> sheet
        = test::openUndoSheet(window, std::make_unique<ScriptedUndoPrompter>());
    ASSERT_NE(sheet, nullptr);
    EXPECT_TRUE(sheet->isVisible());

    sheet->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Close)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(sheet.isNull()) << "each opening makes a sheet of its own";
}

} // namespace
