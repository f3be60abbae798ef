#include "gui/app/MainWindow.h"

#include "GuiTestHelpers.h"
#include "core/list/StatusTexts.h"
#include "core/log/RenameLogReader.h"
#include "core/profiles/Preferences.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/RenamePanel.h"
#include "gui/list/FileTableModel.h"
#include "gui/list/FileTableView.h"
#include "gui/list/ItemIconCache.h"
#include "gui/ui/AttachedWindow.h"
#include "gui/ui/ElidedLabel.h"
#include "support/TempTree.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::listedNames;
using tavrin::test::ScriptedPrompter;
using tavrin::test::TempTree;

namespace {

QImage imageOf(const QIcon& icon)
{
    return icon.pixmap(QSize(16, 16)).toImage();
}

// The window over a temporary folder, with the questions answered by the test and the
// logs written where the preferences of the test's home put them.
class PreviewApplyTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const ApplicationSupport support = prepareApplicationSupport();
        ASSERT_TRUE(support.isReady()) << support.errorMessage.toStdString();
        logFolder = support.preferences.defaultLogFolderPath;
        controller.setLogFolderPath(logFolder);
        auto scripted = std::make_unique<ScriptedPrompter>();
        prompter = scripted.get();
        window.renamePanel()->setPrompter(std::move(scripted));
        // These tests rename through the General tab, which is not the first one.
        controller.settings().setSelectedTab(tabs::General);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <typename T> T* child(const QString& name) const
    {
        T* found = window.findChild<T*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }

    QAction* previewAction() const { return window.renamePanel()->previewAction(); }
    QAction* applyAction() const { return window.renamePanel()->applyAction(); }
    QString progressLine() const { return child<ElidedLabel>(QStringLiteral("progressLabel"))->fullText(); }

    // Lists the files of one folder, made with the given names.
    void listFolder(const QStringList& names)
    {
        for (const QString& name : names)
            tree.file(QStringLiteral("photos/") + name);
        controller.setIncludeSubFolders(true);
        QSignalSpy finished(&controller, &TavrinAppController::addFinished);
        window.addPaths({ tree.path(QStringLiteral("photos")) });
        ASSERT_TRUE(finished.wait(20000));
        ASSERT_EQ(window.tableModel()->rowCount(), names.size());
    }

    void chooseUpperCase()
    {
        QTest::mouseClick(child<QRadioButton>(QStringLiteral("generalOption0")), Qt::LeftButton);
        auto* chooser = child<QComboBox>(QStringLiteral("generalFileNameCase"));
        chooser->setFocus();
        QTest::keyClick(chooser, Qt::Key_End);
        QTest::keyClick(chooser, Qt::Key_Home);
        ASSERT_EQ(controller.settings().generalFileNameCase(), 1);
    }

    bool clickAndWait(QPushButton* button, void (TavrinAppController::*finished)())
    {
        QSignalSpy spy(&controller, finished);
        QTest::mouseClick(button, Qt::LeftButton);
        return spy.wait(20000);
    }

    bool previewAndWait()
    {
        return clickAndWait(window.renamePanel()->previewButton(), &TavrinAppController::previewFinished);
    }

    bool applyAndWait()
    {
        return clickAndWait(
            child<QPushButton>(QStringLiteral("applyActionButton")), &TavrinAppController::applyFinished);
    }

    QString newName(int row) const
    {
        return window.tableModel()->index(row, FileTableModel::NewNameColumn).data().toString();
    }

    QStringList newNames() const
    {
        QStringList names;
        for (int row = 0; row < window.tableModel()->rowCount(); ++row)
            names.append(newName(row));
        return names;
    }

    QStringList logFiles() const { return QDir(logFolder).entryList(QDir::Files); }

    TempTree tree;
    TavrinAppController controller;
    MainWindow window { &controller };
    ScriptedPrompter* prompter = nullptr;
    QString logFolder;
};

TEST_F(PreviewApplyTest, PreviewShowsTheUpperCaseNamesAndEnablesRename)
{
    listFolder({ QStringLiteral("beach day.jpg"), QStringLiteral("notes.txt"), QStringLiteral("README.md") });
    chooseUpperCase();
    EXPECT_EQ(controller.settings().selectedTab(), tabs::General) << "the setting names the visible tab";
    EXPECT_FALSE(applyAction()->isEnabled()) << "nothing to rename before a preview";

    ASSERT_TRUE(previewAndWait());

    EXPECT_EQ(listedNames(controller),
        QStringList(
            { QStringLiteral("beach day.jpg"), QStringLiteral("notes.txt"), QStringLiteral("README.md") }));
    EXPECT_EQ(newNames(),
        QStringList({ QStringLiteral("BEACH DAY.jpg"), QStringLiteral("NOTES.txt"),
            QLatin1String(status::NoChanges) }));
    EXPECT_TRUE(applyAction()->isEnabled());
    EXPECT_TRUE(child<QPushButton>(QStringLiteral("applyActionButton"))->isEnabled());
    EXPECT_TRUE(
        child<QLabel>(QStringLiteral("timeLabel"))->text().startsWith(QStringLiteral("Preview time: ")));
    EXPECT_TRUE(progressLine().isEmpty()) << "a preview whose actions succeeded leaves no message";
    EXPECT_TRUE(tree.exists(QStringLiteral("photos/beach day.jpg"))) << "a preview changes nothing on disk";
}

TEST_F(PreviewApplyTest, RenameAnsweredYesRenamesLogsAndBadgesTheRows)
{
    listFolder({ QStringLiteral("beach day.jpg"), QStringLiteral("notes.txt"), QStringLiteral("README.md") });
    chooseUpperCase();
    ASSERT_TRUE(previewAndWait());
    const QStringList logsBefore = logFiles();
    const QImage plainIcon = imageOf(
        window.tableModel()->index(1, FileTableModel::IconColumn).data(Qt::DecorationRole).value<QIcon>());

    ASSERT_TRUE(applyAndWait());

    EXPECT_EQ(prompter->confirmations, 1);
    EXPECT_EQ(prompter->logQuestions, 0) << "the log folder is writable";
    EXPECT_TRUE(tree.exists(QStringLiteral("photos/BEACH DAY.jpg")));
    EXPECT_TRUE(tree.exists(QStringLiteral("photos/NOTES.txt")));
    EXPECT_FALSE(tree.exists(QStringLiteral("photos/beach day.jpg")));
    EXPECT_TRUE(tree.exists(QStringLiteral("photos/README.md")));
    EXPECT_EQ(listedNames(controller),
        QStringList(
            { QStringLiteral("BEACH DAY.jpg"), QStringLiteral("NOTES.txt"), QStringLiteral("README.md") }));
    EXPECT_EQ(newNames(),
        QStringList({ QLatin1String(status::RenamingOk), QLatin1String(status::RenamingOk),
            QLatin1String(status::NoChanges) }));

    const QImage renamedIcon = imageOf(
        window.tableModel()->index(1, FileTableModel::IconColumn).data(Qt::DecorationRole).value<QIcon>());
    const QImage successIcon = imageOf(ItemIconCache().icon(controller.shownItems()[1]));
    EXPECT_EQ(ItemIconCache::badgeFor(newName(1)), ItemIconCache::Badge::Success);
    EXPECT_NE(renamedIcon, plainIcon) << "the row wears a badge after the rename";
    EXPECT_EQ(renamedIcon, successIcon);

    const QString logPath = controller.lastApplyOutcome().logPath;
    EXPECT_EQ(QFileInfo(logPath).absolutePath(), QFileInfo(logFolder).absoluteFilePath());
    EXPECT_TRUE(logPath.endsWith(QStringLiteral("-2.xml"))) << logPath.toStdString();
    EXPECT_EQ(logFiles().size(), logsBefore.size() + 1);
    const std::optional<RenameLogContents> log = readLogEntries(logPath);
    ASSERT_TRUE(log.has_value());
    EXPECT_EQ(log->entries.size(), 2);

    EXPECT_FALSE(applyAction()->isEnabled()) << "a second rename needs a new preview";
    EXPECT_EQ(child<QLabel>(QStringLiteral("countLabel"))->text(), QStringLiteral("Files renamed: 2"));
    EXPECT_EQ(progressLine(), QStringLiteral("Log saved as ") + logPath);
    EXPECT_TRUE(
        child<QLabel>(QStringLiteral("timeLabel"))->text().startsWith(QStringLiteral("Renaming time: ")));
}

TEST_F(PreviewApplyTest, RenameAnsweredNoRenamesNothing)
{
    listFolder({ QStringLiteral("a.txt"), QStringLiteral("b.txt") });
    chooseUpperCase();
    ASSERT_TRUE(previewAndWait());
    const QStringList logsBefore = logFiles();
    prompter->confirmAnswer = false;
    QSignalSpy applied(&controller, &TavrinAppController::applyFinished);

    QTest::mouseClick(child<QPushButton>(QStringLiteral("applyActionButton")), Qt::LeftButton);

    EXPECT_EQ(prompter->confirmations, 1);
    EXPECT_FALSE(controller.isExecuting());
    QCoreApplication::processEvents();
    EXPECT_EQ(applied.count(), 0);
    EXPECT_TRUE(tree.exists(QStringLiteral("photos/a.txt")));
    EXPECT_TRUE(tree.exists(QStringLiteral("photos/b.txt")));
    EXPECT_EQ(newNames(), QStringList({ QStringLiteral("A.txt"), QStringLiteral("B.txt") }));
    EXPECT_TRUE(applyAction()->isEnabled()) << "the proposals are still there to apply";
    EXPECT_EQ(logFiles(), logsBefore);
}

TEST_F(PreviewApplyTest, PreviewWithAnEmptyListPointsAtThePreviewButton)
{
    auto* attached = child<AttachedWindow>(QStringLiteral("attachedWindow"));
    QSignalSpy executing(&controller, &TavrinAppController::executingChanged);

    QTest::keyClick(&window, Qt::Key_F5);

    EXPECT_TRUE(attached->isVisible());
    EXPECT_EQ(attached->text(), localized("NOITEMSTOPREVIEW"));
    EXPECT_EQ(attached->anchor(), window.renamePanel()->previewButton());
    EXPECT_EQ(executing.count(), 0) << "no preview was started";
    EXPECT_TRUE(prompter->warnings.isEmpty());
}

TEST_F(PreviewApplyTest, AMissingInputWarnsAndTakesTheFocusToItsField)
{
    listFolder({ QStringLiteral("a-b-c.txt") });
    QTest::mouseClick(child<QRadioButton>(QStringLiteral("generalOption8")), Qt::LeftButton);
    auto* field = child<QLineEdit>(QStringLiteral("generalRemoveAfterString"));
    window.tableView()->setFocus();
    QSignalSpy executing(&controller, &TavrinAppController::executingChanged);

    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);

    ASSERT_EQ(prompter->warnings.size(), 1);
    EXPECT_EQ(prompter->warnings.first(),
        localized("GENERALINVALIDINPUT") + QLatin1Char('|') + localized("ENTERVALIDVALUE"));
    EXPECT_EQ(QApplication::focusWidget(), field);
    EXPECT_EQ(executing.count(), 0) << "no preview was started";
    EXPECT_TRUE(newName(0).isEmpty());

    QTest::keyClicks(field, QStringLiteral("-"));
    ASSERT_TRUE(previewAndWait());
    EXPECT_EQ(prompter->warnings.size(), 1);
    EXPECT_EQ(newName(0), QStringLiteral("a-.txt"));
}

TEST_F(PreviewApplyTest, AnUnwritableLogFolderAsksAndAbortRenamesNothing)
{
    listFolder({ QStringLiteral("a.txt") });
    controller.setLogFolderPath(tree.file(QStringLiteral("blocker")) + QStringLiteral("/Logs"));
    chooseUpperCase();
    ASSERT_TRUE(previewAndWait());
    prompter->continueAnswer = false;

    ASSERT_TRUE(applyAndWait());

    EXPECT_EQ(prompter->logQuestions, 1);
    EXPECT_TRUE(prompter->logQuestionOnGuiThread) << "a dialog is never opened from the worker";
    EXPECT_TRUE(controller.lastApplyOutcome().aborted);
    EXPECT_TRUE(tree.exists(QStringLiteral("photos/a.txt")));
    EXPECT_FALSE(tree.exists(QStringLiteral("photos/A.txt")));
    EXPECT_EQ(newName(0), QStringLiteral("A.txt")) << "the proposal stays for a later try";
    EXPECT_EQ(child<QLabel>(QStringLiteral("countLabel"))->text(), QStringLiteral("Files renamed: 0"));
    EXPECT_EQ(progressLine(), localized("RENAMINGABORTEDNOLOG"));
}

TEST_F(PreviewApplyTest, AnUnwritableLogFolderAsksAndContinueRenames)
{
    listFolder({ QStringLiteral("a.txt") });
    controller.setLogFolderPath(tree.file(QStringLiteral("blocker")) + QStringLiteral("/Logs"));
    chooseUpperCase();
    ASSERT_TRUE(previewAndWait());
    prompter->continueAnswer = true;

    ASSERT_TRUE(applyAndWait());

    EXPECT_EQ(prompter->logQuestions, 1);
    EXPECT_FALSE(tree.exists(QStringLiteral("photos/a.txt")));
    EXPECT_TRUE(tree.exists(QStringLiteral("photos/A.txt")));
    EXPECT_EQ(newName(0), QLatin1String(status::RenamingOk));
    EXPECT_TRUE(controller.lastApplyOutcome().logPath.isEmpty());
    EXPECT_EQ(child<QLabel>(QStringLiteral("countLabel"))->text(), QStringLiteral("Files renamed: 1"));
    EXPECT_EQ(progressLine(), localized("LOGNOTWRITTEN"));
}

TEST_F(PreviewApplyTest, TheWindowKeepsRunningWhileALongPreviewWorks)
{
    QStringList names;
    for (int i = 0; i < 4000; ++i)
        names.append(QStringLiteral("file %1.txt").arg(i));
    listFolder(names);
    chooseUpperCase();
    int ticksWhileExecuting = 0;
    QTimer ticker;
    QObject::connect(
        &ticker, &QTimer::timeout, [&] { ticksWhileExecuting += controller.isExecuting() ? 1 : 0; });
    ticker.start(0);
    QSignalSpy finished(&controller, &TavrinAppController::previewFinished);

    QTest::mouseClick(window.renamePanel()->previewButton(), Qt::LeftButton);

    ASSERT_TRUE(controller.isExecuting()) << "the preview runs off the GUI thread";
    EXPECT_FALSE(previewAction()->isEnabled());
    EXPECT_FALSE(child<QTabWidget>(QStringLiteral("actionTabs"))->isEnabled())
        << "no option changes meanwhile";
    EXPECT_TRUE(child<QPushButton>(QStringLiteral("cancelActionButton"))->isEnabled());
    EXPECT_EQ(progressLine(), localized("GENERATINGPREVIEWPLEASEWAIT"));
    EXPECT_EQ(window.tableModel()->rowCount(), 4000) << "the table keeps showing the list";

    ASSERT_TRUE(finished.wait(60000));
    EXPECT_GT(ticksWhileExecuting, 0) << "the event loop ran during the preview";
    EXPECT_TRUE(previewAction()->isEnabled());
    EXPECT_TRUE(child<QTabWidget>(QStringLiteral("actionTabs"))->isEnabled());
    EXPECT_EQ(newName(0), QStringLiteral("FILE 0.txt"));
    EXPECT_EQ(newName(3999), QStringLiteral("FILE 3999.txt"));
}

TEST_F(PreviewApplyTest, EscapeReachesTheCancelOfARunningPreview)
{
    QStringList names;
    for (int i = 0; i < 2000; ++i)
        names.append(QStringLiteral("file %1.txt").arg(i));
    listFolder(names);
    QAction* cancel = child<QAction>(QStringLiteral("cancelAction"));
    QSignalSpy cancelled(cancel, &QAction::triggered);
    QSignalSpy finished(&controller, &TavrinAppController::previewFinished);

    QTest::keyClick(&window, Qt::Key_F5);
    ASSERT_TRUE(controller.isExecuting());
    QTest::keyClick(&window, Qt::Key_Escape);

    EXPECT_EQ(cancelled.count(), 1);
    ASSERT_TRUE(finished.wait(60000));
    EXPECT_FALSE(cancel->isEnabled());
}

TEST_F(PreviewApplyTest, TheShortcutsAndTooltipsOfTheButtons)
{
    EXPECT_EQ(previewAction()->shortcuts(),
        QList<QKeySequence>({ QKeySequence(Qt::Key_F5), QKeySequence(Qt::CTRL | Qt::Key_R) }));
    EXPECT_EQ(applyAction()->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Return));
    EXPECT_TRUE(previewAction()->toolTip().contains(QStringLiteral("F5")));
    EXPECT_TRUE(applyAction()->toolTip().contains(
        QKeySequence(Qt::CTRL | Qt::Key_Return).toString(QKeySequence::NativeText)));
    EXPECT_EQ(window.renamePanel()->previewButton()->toolTip(), previewAction()->toolTip());

    listFolder({ QStringLiteral("a.txt") });
    chooseUpperCase();
    QSignalSpy previewed(&controller, &TavrinAppController::previewFinished);
    QTest::keyClick(&window, Qt::Key_F5);
    ASSERT_TRUE(previewed.wait(20000));
    QSignalSpy applied(&controller, &TavrinAppController::applyFinished);
    QTest::keyClick(&window, Qt::Key_Return, Qt::ControlModifier);
    ASSERT_TRUE(applied.wait(20000));
    EXPECT_TRUE(tree.exists(QStringLiteral("photos/A.txt")));
}

} // namespace
