#include "gui/app/MainWindow.h"

#include "core/text/LocalizedStrings.h"

#include "GuiTestHelpers.h"
#include "gui/list/FileTableModel.h"
#include "gui/list/FileTableView.h"
#include "gui/ui/AttachedWindow.h"
#include "support/TempTree.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>
#include <QUrl>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::addAndWait;
using tavrin::test::listedNames;
using tavrin::test::TempTree;

namespace {

class MainWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    template <typename T>
    T* child(const char* name) const
    {
        T* found = window.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    QAction* action(const char* name) const { return child<QAction>(name); }

    // Lists files of the given names, in that order, from one folder.
    void listFiles(std::initializer_list<const char*> names)
    {
        QStringList paths;
        for (const char* name : names)
            paths.append(tree.file(QStringLiteral("files/") + QString::fromUtf8(name)));
        QSignalSpy finished(&controller, &TavrinAppController::addFinished);
        window.addPaths(paths);
        ASSERT_TRUE(finished.wait(20000));
        ASSERT_EQ(window.tableModel()->rowCount(), static_cast<int>(names.size()));
    }

    void selectRows(const QList<int>& rows)
    {
        QItemSelection selection;
        for (const int row : rows)
            selection.select(window.tableModel()->index(row, 0), window.tableModel()->index(row, 0));
        window.tableView()->selectionModel()->select(
            selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }

    QList<int> selectedRows() const
    {
        QList<int> rows;
        for (const QModelIndex& index : window.tableView()->selectionModel()->selectedRows())
            rows.append(index.row());
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    void clickHeader(int section)
    {
        QHeaderView* header = window.tableView()->horizontalHeader();
        const QPoint middle(header->sectionViewportPosition(section) + header->sectionSize(section) / 2,
                            header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    }

    TempTree tree;
    TavrinAppController controller;
    MainWindow window{&controller};
};

TEST_F(MainWindowTest, AnAddedFolderFillsTheTableAndTheStatusLine)
{
    tree.file(QStringLiteral("top/b.txt"));
    tree.file(QStringLiteral("top/a.txt"));
    tree.file(QStringLiteral("top/sub/c.txt"));
    controller.setIncludeSubFolders(true);
    QSignalSpy finished(&controller, &TavrinAppController::addFinished);

    window.addPaths({tree.path(QStringLiteral("top"))});

    EXPECT_FALSE(window.tableView()->isEnabled()) << "the list is locked while a worker fills it";
    EXPECT_TRUE(action("cancelAction")->isEnabled());
    EXPECT_FALSE(action("removeAction")->isEnabled());
    EXPECT_TRUE(child<QProgressBar>("busyIndicator")->isVisible());
    ASSERT_TRUE(finished.wait(20000));

    const FileTableModel* model = window.tableModel();
    ASSERT_EQ(model->rowCount(), 3);
    EXPECT_EQ(model->index(0, FileTableModel::NameColumn).data().toString(), QStringLiteral("a.txt"));
    EXPECT_EQ(model->index(2, FileTableModel::NameColumn).data().toString(), QStringLiteral("c.txt"));
    EXPECT_EQ(model->index(2, FileTableModel::LocationColumn).data().toString(), tree.path(QStringLiteral("top/sub")));
    EXPECT_TRUE(window.tableView()->isEnabled());
    EXPECT_FALSE(action("cancelAction")->isEnabled());
    EXPECT_FALSE(child<QProgressBar>("busyIndicator")->isVisible());
    EXPECT_EQ(child<QLabel>("countLabel")->text(), QStringLiteral("Files listed: 3"));
    EXPECT_TRUE(child<QLabel>("timeLabel")->text().startsWith(QStringLiteral("Loading time: ")));
}

TEST_F(MainWindowTest, TheEmptyListShowsAHint)
{
    EXPECT_EQ(window.tableView()->emptyHint(), QStringLiteral("Drop files or folders here, or click Add to choose them"));
    EXPECT_EQ(child<QLabel>("countLabel")->text(), QStringLiteral("Files listed: 0"));
}

TEST_F(MainWindowTest, ChangingTheModeEmptiesTheListAndOffersFolders)
{
    listFiles({"a.txt", "b.txt"});
    EXPECT_TRUE(action("addFilesAction")->isVisible());
    EXPECT_FALSE(action("addFoldersAction")->isVisible());
    EXPECT_EQ(action("addFilesAction")->shortcut(), QKeySequence(QKeySequence::Open));

    QTest::mouseClick(child<QRadioButton>("foldersModeButton"), Qt::LeftButton);

    EXPECT_TRUE(controller.isFolders());
    EXPECT_EQ(window.tableModel()->rowCount(), 0);
    EXPECT_EQ(child<QLabel>("countLabel")->text(), QStringLiteral("Folders listed: 0"));
    EXPECT_FALSE(action("addFilesAction")->isVisible());
    EXPECT_TRUE(action("addFoldersAction")->isVisible());
    EXPECT_EQ(action("addFoldersAction")->shortcut(), QKeySequence(QKeySequence::Open));
}

TEST_F(MainWindowTest, FilesWithSubFoldersOfferBothChoosers)
{
    controller.setIncludeSubFolders(true);
    EXPECT_TRUE(action("addFilesAction")->isVisible());
    EXPECT_TRUE(action("addFoldersAction")->isVisible());
    EXPECT_EQ(action("addFilesAction")->shortcut(), QKeySequence(QKeySequence::Open));
    EXPECT_EQ(action("addFoldersAction")->shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O));
    EXPECT_TRUE(action("addFoldersAction")->toolTip().contains(QStringLiteral("Ctrl+Shift+O")));
}

TEST_F(MainWindowTest, RemoveWithNothingSelectedPointsAtTheRemoveButton)
{
    listFiles({"a.txt"});
    auto* attached = child<AttachedWindow>("attachedWindow");
    ASSERT_NE(attached, nullptr);
    EXPECT_FALSE(attached->isVisible());

    action("removeAction")->trigger();

    EXPECT_TRUE(attached->isVisible());
    EXPECT_EQ(attached->text(), QStringLiteral("Select the items to remove from the list first."));
    QWidget* button = child<QToolBar>("mainToolBar")->widgetForAction(action("removeAction"));
    EXPECT_EQ(attached->anchor(), button);
    EXPECT_EQ(window.tableModel()->rowCount(), 1) << "nothing was removed";

    QTest::keyClick(window.tableView(), Qt::Key_Down);
    EXPECT_FALSE(attached->isVisible()) << "the next key press dismisses the message";
}

TEST_F(MainWindowTest, RemoveTakesTheSelectedRowsAndSelectsTheNextOne)
{
    listFiles({"a.txt", "b.txt", "c.txt", "d.txt"});
    selectRows({1, 2});

    action("removeAction")->trigger();

    EXPECT_EQ(listedNames(controller), QStringList({"a.txt", "d.txt"}));
    EXPECT_EQ(selectedRows(), QList<int>({1}));
    EXPECT_FALSE(child<AttachedWindow>("attachedWindow")->isVisible());
    EXPECT_EQ(child<QLabel>("countLabel")->text(), QStringLiteral("Files listed: 2"));
}

TEST_F(MainWindowTest, MoveButtonsFollowTheSelection)
{
    listFiles({"a.txt", "b.txt", "c.txt", "d.txt"});
    struct Row {
        QList<int> selection;
        bool up;
        bool down;
    };
    const Row rows[] = {
        {{}, false, false},    {{0}, false, true},    {{3}, true, false},     {{1, 2}, true, true},
        {{0, 3}, false, false}, {{0, 1, 2}, false, true}, {{1, 3}, true, false},
    };
    for (const Row& row : rows) {
        selectRows(row.selection);
        EXPECT_EQ(action("moveUpAction")->isEnabled(), row.up) << row.selection.size();
        EXPECT_EQ(action("moveDownAction")->isEnabled(), row.down) << row.selection.size();
    }
}

TEST_F(MainWindowTest, TheSelectionFollowsTheMovedRows)
{
    listFiles({"a.txt", "b.txt", "c.txt", "d.txt"});
    selectRows({0, 1});

    action("moveDownAction")->trigger();
    EXPECT_EQ(listedNames(controller), QStringList({"c.txt", "a.txt", "b.txt", "d.txt"}));
    EXPECT_EQ(selectedRows(), QList<int>({1, 2}));

    action("moveDownAction")->trigger();
    EXPECT_EQ(selectedRows(), QList<int>({2, 3}));
    EXPECT_FALSE(action("moveDownAction")->isEnabled());

    action("moveDownAction")->trigger();
    EXPECT_EQ(listedNames(controller), QStringList({"c.txt", "d.txt", "a.txt", "b.txt"}))
        << "rows at the bottom stay where they are";

    action("moveUpAction")->trigger();
    EXPECT_EQ(listedNames(controller), QStringList({"c.txt", "a.txt", "b.txt", "d.txt"}));
    EXPECT_EQ(selectedRows(), QList<int>({1, 2}));
}

TEST_F(MainWindowTest, AHeaderClickSortsNumericallyAndASecondClickReverses)
{
    listFiles({"a10.txt", "b2.txt", "A9.txt", "a1.txt"});
    QHeaderView* header = window.tableView()->horizontalHeader();
    EXPECT_EQ(header->sortIndicatorSection(), -1);

    clickHeader(FileTableModel::NameColumn);
    EXPECT_EQ(listedNames(controller), QStringList({"a1.txt", "A9.txt", "a10.txt", "b2.txt"}));
    EXPECT_EQ(header->sortIndicatorSection(), FileTableModel::NameColumn);
    EXPECT_EQ(header->sortIndicatorOrder(), Qt::AscendingOrder);

    clickHeader(FileTableModel::NameColumn);
    EXPECT_EQ(listedNames(controller), QStringList({"b2.txt", "a10.txt", "A9.txt", "a1.txt"}));
    EXPECT_EQ(header->sortIndicatorOrder(), Qt::DescendingOrder);

    clickHeader(FileTableModel::IconColumn);
    EXPECT_EQ(listedNames(controller), QStringList({"b2.txt", "a10.txt", "A9.txt", "a1.txt"}));
    EXPECT_EQ(header->sortIndicatorSection(), FileTableModel::NameColumn) << "the icon column does not sort";
}

TEST_F(MainWindowTest, MovingRowsClearsTheSortIndicator)
{
    listFiles({"b.txt", "a.txt"});
    clickHeader(FileTableModel::NameColumn);
    ASSERT_EQ(window.tableView()->horizontalHeader()->sortIndicatorSection(), FileTableModel::NameColumn);
    selectRows({0});

    action("moveDownAction")->trigger();

    EXPECT_EQ(window.tableView()->horizontalHeader()->sortIndicatorSection(), -1);
    clickHeader(FileTableModel::NameColumn);
    EXPECT_EQ(listedNames(controller), QStringList({"a.txt", "b.txt"})) << "the next click sorts ascending again";
}

TEST_F(MainWindowTest, DroppedFilesAreAddedInTheCurrentMode)
{
    const QString a = tree.file(QStringLiteral("drop/a.txt"));
    const QString folder = tree.folder(QStringLiteral("drop/inner"));
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(a), QUrl::fromLocalFile(folder), QUrl(QStringLiteral("https://example.org/x"))});
    QWidget* viewport = window.tableView()->viewport();
    const QPoint middle = viewport->rect().center();

    QDragEnterEvent enter(middle, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &enter);
    EXPECT_TRUE(enter.isAccepted());

    QSignalSpy finished(&controller, &TavrinAppController::addFinished);
    QDropEvent drop(QPointF(middle), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &drop);
    EXPECT_TRUE(drop.isAccepted());
    ASSERT_TRUE(finished.wait(20000));

    EXPECT_TRUE(controller.isFiles()) << "a drop keeps the mode";
    EXPECT_EQ(listedNames(controller), QStringList({"a.txt"})) << "a folder in file mode is not descended into";
}

TEST_F(MainWindowTest, DragsWithoutLocalFilesAreRefused)
{
    QMimeData remote;
    remote.setUrls({QUrl(QStringLiteral("https://example.org/a.txt"))});
    QMimeData plainText;
    plainText.setText(QStringLiteral("/etc/hostname"));
    QWidget* viewport = window.tableView()->viewport();
    for (QMimeData* mime : {&remote, &plainText}) {
        QDragEnterEvent enter(viewport->rect().center(), Qt::CopyAction, mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &enter);
        EXPECT_FALSE(enter.isAccepted());
    }
}

TEST_F(MainWindowTest, SkippedNamesAreToldOnceInTheStatusLine)
{
    const tavrin::test::RawFileRemover remover{tree.rawFile(QStringLiteral("raw"), QByteArray("bad\xfe.txt"))};
    tree.file(QStringLiteral("raw/good.txt"));
    controller.setIncludeSubFolders(true);
    QSignalSpy finished(&controller, &TavrinAppController::addFinished);
    window.addPaths({tree.path(QStringLiteral("raw"))});
    ASSERT_TRUE(finished.wait(20000));

    auto* skipped = child<QLabel>("skippedLabel");
    EXPECT_TRUE(skipped->isVisible());
    EXPECT_EQ(skipped->text(), QStringLiteral("1 items skipped: their names are not valid UTF-8"));
    EXPECT_TRUE(skipped->toolTip().startsWith(tree.path(QStringLiteral("raw/bad"))));

    action("clearAction")->trigger();
    EXPECT_FALSE(skipped->isVisible());
    EXPECT_TRUE(child<QLabel>("timeLabel")->text().isEmpty());
}

TEST_F(MainWindowTest, AddFilesOpensAChooserForSeveralFiles)
{
    action("addFilesAction")->trigger();
    auto* dialog = window.findChild<QFileDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Choose Files or Folders to Rename"));
    EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFiles);
    EXPECT_TRUE(dialog->testOption(QFileDialog::DontResolveSymlinks));
    EXPECT_TRUE(dialog->testOption(QFileDialog::ReadOnly)) << "the chooser makes no folders";
    EXPECT_EQ(dialog->windowModality(), Qt::WindowModal);

    const QString a = tree.file(QStringLiteral("chosen/a.txt"));
    const QString b = tree.file(QStringLiteral("chosen/b.txt"));
    QSignalSpy finished(&controller, &TavrinAppController::addFinished);
    emit dialog->filesSelected({a, b});
    ASSERT_TRUE(finished.wait(20000));
    EXPECT_EQ(listedNames(controller), QStringList({"a.txt", "b.txt"}));
    dialog->reject();
}

TEST_F(MainWindowTest, AddFoldersLetsSeveralFoldersBeChosen)
{
    controller.setMode(ListMode::Folders);
    action("addFoldersAction")->trigger();
    auto* dialog = window.findChild<QFileDialog*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->fileMode(), QFileDialog::Directory);
    EXPECT_TRUE(dialog->testOption(QFileDialog::ShowDirsOnly));
    const QList<QAbstractItemView*> views = dialog->findChildren<QAbstractItemView*>();
    int multiple = 0;
    for (const QAbstractItemView* view : views)
        multiple += view->selectionMode() == QAbstractItemView::ExtendedSelection ? 1 : 0;
    EXPECT_GE(multiple, 2) << "both the list and the detail view of the chooser";
    dialog->reject();
}

TEST_F(MainWindowTest, TheWindowIsTitledAndHasRoomForTheActions)
{
    EXPECT_EQ(window.windowTitle(), localized("DEFAULT"));
    EXPECT_FALSE(window.windowIcon().isNull());
    ASSERT_NE(window.actionArea(), nullptr);
    for (const char* name : {"addFilesAction", "addFoldersAction", "removeAction", "clearAction", "moveUpAction",
             "moveDownAction", "cancelAction", "undoBatchAction", "livePreviewAction", "pasteItemsAction",
             "selectAllAction", "saveProfileAction", "preferencesAction", "helpAction", "quitAction"}) {
        EXPECT_FALSE(action(name)->toolTip().isEmpty()) << name;
        EXPECT_FALSE(action(name)->shortcut().isEmpty()) << name;
    }
}

}  // namespace
