#include "GuiFixture.h"

#include "gui/list/FileTableView.h"
#include "gui/ui/AttachedWindow.h"

#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QScreen>
#include <QToolBar>
#include <QUrl>

using namespace tavrin;
using namespace tavrin::test;

namespace {

class MainWindowTest : public WindowFixture {
protected:
    QAction* action(const char* name) const { return child<QAction>(QString::fromLatin1(name)); }
    QString label(const char* name) const { return child<QLabel>(QString::fromLatin1(name))->text(); }

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
};

// Names that are not valid UTF-8 are skipped and told once in the status line.
TEST_F(MainWindowTest, AnAddedFolderFillsTheTableAndTheStatusLine)
{
    EXPECT_EQ(window.tableView()->emptyHint(), u"Drop files or folders here, or click Add to choose them"_s);
    EXPECT_EQ(label("countLabel"), u"Files listed: 0"_s);
    const RawFileRemover remover { tree.rawFile(u"top"_s, QByteArray("bad\xfe.txt")) };
    tree.file(u"top/b.txt"_s);
    tree.file(u"top/sub/c.txt"_s);
    list().setIncludeSubFolders(true);
    auto* busy = child<QProgressBar>(u"busyIndicator"_s);
    ASSERT_TRUE(runAndWait(&list(), &ListController::addFinished, [&] {
        window.addPaths({ tree.path(u"top"_s) });
        EXPECT_FALSE(window.tableView()->isEnabled()) << "the list is locked while a worker fills it";
        EXPECT_TRUE(action("cancelAction")->isEnabled());
        EXPECT_TRUE(busy->isVisible());
        return true;
    }));
    EXPECT_EQ(listedNames(), QStringList({ u"b.txt"_s, u"c.txt"_s }));
    EXPECT_TRUE(window.tableView()->isEnabled());
    EXPECT_FALSE(action("cancelAction")->isEnabled() || busy->isVisible());
    EXPECT_EQ(label("countLabel"), u"Files listed: 2"_s);
    EXPECT_TRUE(label("timeLabel").startsWith(u"Loading time: "_s));
    auto* skipped = child<QLabel>(u"skippedLabel"_s);
    EXPECT_TRUE(skipped->isVisible());
    EXPECT_EQ(skipped->text(), u"1 items skipped: their names are not valid UTF-8"_s);
    EXPECT_TRUE(skipped->toolTip().startsWith(tree.path(u"top/bad"_s)));

    ASSERT_TRUE(addAndWait({ tree.file(u"d.txt"_s) }));
    EXPECT_FALSE(skipped->isVisible()) << "a clean scan tells nothing";
    action("clearAction")->trigger();
    EXPECT_TRUE(label("timeLabel").isEmpty());
}

// The file dialog offers files or folders, so the mode decides which add command is shown
// and which one Ctrl+O triggers. A list is never lost silently: Clear and a switch between
// files and folders ask first, and No keeps the list and the window's choice.
TEST_F(MainWindowTest, TheModeChoosesTheAddCommandsAndEmptyingAListAsksFirst)
{
    listFiles({ u"a.txt"_s, u"b.txt"_s });
    prompter->yesNoAnswer = false;
    action("clearAction")->trigger();
    QTest::mouseClick(child<QRadioButton>(u"foldersModeButton"_s), Qt::LeftButton);
    EXPECT_EQ(prompter->questions.size(), 2);
    EXPECT_EQ(listedNames().size(), 2);
    EXPECT_TRUE(child<QRadioButton>(u"filesModeButton"_s)->isChecked()) << "the choice goes back";

    prompter->yesNoAnswer = true;
    const QKeySequence ctrlShiftO(Qt::CTRL | Qt::SHIFT | Qt::Key_O);
    const std::tuple<const char*, bool, bool, bool, QKeySequence, QString> rows[] = {
        { "filesModeButton", true, true, true, ctrlShiftO, u"Files listed: 2"_s },
        { "foldersModeButton", false, false, true, QKeySequence::Open, u"Folders listed: 0"_s },
        { "filesModeButton", false, true, false, ctrlShiftO, u"Files listed: 0"_s },
    };
    for (const auto& [mode, subFolders, filesShown, foldersShown, foldersShortcut, count] : rows) {
        QTest::mouseClick(child<QRadioButton>(QString::fromLatin1(mode)), Qt::LeftButton);
        if (child<QAbstractButton>(u"includeSubFoldersBox"_s)->isChecked() != subFolders)
            QTest::mouseClick(child<QAbstractButton>(u"includeSubFoldersBox"_s), Qt::LeftButton);
        EXPECT_EQ(list().isIncludeSubFolders(), subFolders) << mode;
        EXPECT_EQ(action("addFilesAction")->isVisible(), filesShown) << mode;
        EXPECT_EQ(action("addFoldersAction")->isVisible(), foldersShown) << mode;
        EXPECT_EQ(action("addFoldersAction")->shortcut(), foldersShortcut) << mode;
        EXPECT_TRUE(action("addFoldersAction")->toolTip().contains(foldersShortcut.toString())) << mode;
        EXPECT_EQ(label("countLabel"), count);
    }
    EXPECT_EQ(action("addFilesAction")->shortcut(), QKeySequence(QKeySequence::Open));
    listFiles({ u"c.txt"_s });
    action("clearAction")->trigger();
    EXPECT_TRUE(listedNames().isEmpty());
    action("clearAction")->trigger();
    EXPECT_EQ(prompter->questions.size(), 4) << "a switch or Clear on an empty list asks nothing";
}

// Opens a context menu, answers it with the action of that text (none: closes it), and
// answers the texts it offered.
QStringList useContextMenu(QWidget* owner, const QPoint& position, const QString& choice)
{
    QStringList offered;
    QTimer::singleShot(0, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        for (QAction* action : menu->actions()) {
            offered << action->text();
            if (action->text() == choice)
                action->trigger();
        }
        menu->close();
    });
    emit owner->customContextMenuRequested(position);
    return offered;
}

TEST_F(MainWindowTest, ContextMenusOnRowsAndOnTheHeader)
{
    listFiles({ u"a.txt"_s });
    auto* table = child<FileTableView>(u"fileTable"_s);
    const QPoint row = table->visualRect(table->model()->index(0, FileTableModel::NameColumn)).center();
    const QStringList offered = useContextMenu(table, row, localized("COPYNAME"));
    for (const QString& text :
        { localized("OPENCONTAININGFOLDER"), localized("COPYNAME"), localized("COPYNEWNAME") })
        EXPECT_TRUE(offered.contains(text)) << text.toStdString();
    EXPECT_TRUE(offered.contains(action("removeAction")->text()));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"a.txt"_s);

    const QString location
        = table->model()->headerData(FileTableModel::LocationColumn, Qt::Horizontal).toString();
    useContextMenu(table->horizontalHeader(), QPoint(5, 5), location);
    EXPECT_TRUE(table->isColumnHidden(FileTableModel::LocationColumn));
    // Kept between runs: a new window hides it too.
    MainWindow again(&controller);
    EXPECT_TRUE(
        again.findChild<FileTableView*>(u"fileTable"_s)->isColumnHidden(FileTableModel::LocationColumn));
    useContextMenu(table->horizontalHeader(), QPoint(5, 5), location);
    EXPECT_FALSE(table->isColumnHidden(FileTableModel::LocationColumn));
}

TEST_F(MainWindowTest, RemoveWithNothingSelectedPointsAtItsButtonElseTakesTheRows)
{
    listFiles({ u"a.txt"_s, u"b.txt"_s, u"c.txt"_s, u"d.txt"_s });
    auto* attached = child<AttachedWindow>(u"attachedWindow"_s);

    action("removeAction")->trigger();
    EXPECT_TRUE(attached->isVisible());
    EXPECT_EQ(attached->text(), u"Select the items to remove from the list first."_s);
    EXPECT_EQ(attached->anchor(), child<QToolBar>(u"mainToolBar"_s)->widgetForAction(action("removeAction")));
    EXPECT_EQ(window.tableModel()->rowCount(), 4) << "nothing was removed";

    selectRows({ 1, 2 });
    action("removeAction")->trigger();
    EXPECT_EQ(listedNames(), QStringList({ u"a.txt"_s, u"d.txt"_s }));
    EXPECT_EQ(selectedRows(), QList<int>({ 1 })) << "the row that took the place of the first removed one";
    EXPECT_FALSE(attached->isVisible());
    EXPECT_EQ(label("countLabel"), u"Files listed: 2"_s);
}

// A header click sorts by its column, numbers within names by their value, and a second
// click reverses; a move takes the list out of that order.
TEST_F(MainWindowTest, TheHeaderSortsAndTheMoveCommandsFollowTheSelection)
{
    listFiles({ u"a10.txt"_s, u"b2.txt"_s, u"A9.txt"_s, u"a1.txt"_s });
    QHeaderView* header = window.tableView()->horizontalHeader();
    clickHeader(FileTableModel::NameColumn);
    EXPECT_EQ(listedNames(), QStringList({ u"a1.txt"_s, u"A9.txt"_s, u"a10.txt"_s, u"b2.txt"_s }));
    EXPECT_EQ(header->sortIndicatorOrder(), Qt::AscendingOrder);
    clickHeader(FileTableModel::NameColumn);
    clickHeader(FileTableModel::IconColumn);
    EXPECT_EQ(listedNames(), QStringList({ u"b2.txt"_s, u"a10.txt"_s, u"A9.txt"_s, u"a1.txt"_s }));
    EXPECT_EQ(header->sortIndicatorSection(), FileTableModel::NameColumn) << "the icon column does not sort";

    const std::tuple<QList<int>, bool, bool> rows[] = { { {}, false, false }, { { 0 }, false, true },
        { { 3 }, true, false }, { { 1, 2 }, true, true }, { { 0, 3 }, false, false } };
    for (const auto& [selection, up, down] : rows) {
        selectRows(selection);
        EXPECT_EQ(action("moveUpAction")->isEnabled(), up) << selection.size();
        EXPECT_EQ(action("moveDownAction")->isEnabled(), down) << selection.size();
    }
    selectRows({ 0, 1 });
    action("moveDownAction")->trigger();
    action("moveDownAction")->trigger();
    EXPECT_EQ(listedNames(), QStringList({ u"A9.txt"_s, u"a1.txt"_s, u"b2.txt"_s, u"a10.txt"_s }));
    EXPECT_EQ(selectedRows(), QList<int>({ 2, 3 }));
    EXPECT_FALSE(action("moveDownAction")->isEnabled());
    EXPECT_EQ(header->sortIndicatorSection(), -1) << "the list is no longer in the order the header shows";
}

TEST_F(MainWindowTest, LocalFilesDroppedAreAddedInTheCurrentModeAndOtherDragsRefused)
{
    QMimeData local;
    local.setUrls({ QUrl::fromLocalFile(tree.file(u"drop/a.txt"_s)),
        QUrl::fromLocalFile(tree.folder(u"drop/inner"_s)), QUrl(u"https://example.org/x"_s) });
    QMimeData remote;
    remote.setUrls({ QUrl(u"https://example.org/a.txt"_s) });
    QMimeData plainText;
    plainText.setText(u"/etc/hostname"_s);
    QWidget* viewport = window.tableView()->viewport();
    const QPoint middle = viewport->rect().center();
    for (QMimeData* refused : { &remote, &plainText }) {
        QDragEnterEvent enter(middle, Qt::CopyAction, refused, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &enter);
        EXPECT_FALSE(enter.isAccepted());
    }

    QDragEnterEvent enter(middle, Qt::CopyAction, &local, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &enter);
    EXPECT_TRUE(enter.isAccepted());
    ASSERT_TRUE(runAndWait(&list(), &ListController::addFinished, [&] {
        QDropEvent drop(QPointF(middle), Qt::CopyAction, &local, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &drop);
        return drop.isAccepted();
    }));
    EXPECT_EQ(listedNames(), QStringList({ u"a.txt"_s })) << "a folder in file mode is not descended into";
}

// Qt's own chooser selects several items in both its list and its detail view.
TEST_F(MainWindowTest, TheChoosersTakeSeveralItemsAndAddThem)
{
    for (const auto& [name, fileMode, multipleViews] :
        { std::tuple("addFoldersAction", QFileDialog::Directory, 2),
            std::tuple("addFilesAction", QFileDialog::ExistingFiles, 0) }) {
        action(name)->trigger();
        auto* dialog = window.findChild<QFileDialog*>();
        ASSERT_NE(dialog, nullptr) << name;
        EXPECT_EQ(dialog->windowTitle(), u"Choose Files or Folders to Rename"_s);
        EXPECT_EQ(dialog->fileMode(), fileMode);
        EXPECT_TRUE(dialog->testOption(QFileDialog::DontResolveSymlinks));
        EXPECT_TRUE(dialog->testOption(QFileDialog::ReadOnly)) << "the chooser makes no folders";
        EXPECT_EQ(dialog->windowModality(), Qt::WindowModal);
        const QList<QAbstractItemView*> views = dialog->findChildren<QAbstractItemView*>();
        EXPECT_GE(std::count_if(views.begin(), views.end(),
                      [](const QAbstractItemView* view) {
                          return view->selectionMode() == QAbstractItemView::ExtendedSelection;
                      }),
            multipleViews);
        if (fileMode == QFileDialog::ExistingFiles) {
            ASSERT_TRUE(runAndWait(&list(), &ListController::addFinished, [&] {
                emit dialog->filesSelected({ tree.file(u"chosen/a.txt"_s), tree.file(u"chosen/b.txt"_s) });
                return true;
            }));
        }
        dialog->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(listedNames(), QStringList({ u"a.txt"_s, u"b.txt"_s }));
}

TEST_F(MainWindowTest, TheWindowIsTitledAndEveryCommandHasAShortcutAndATooltip)
{
    EXPECT_EQ(window.windowTitle(), localized("DEFAULT"));
    EXPECT_FALSE(window.windowIcon().isNull());
    for (const char* name : { "addFilesAction", "addFoldersAction", "removeAction", "clearAction",
             "moveUpAction", "moveDownAction", "cancelAction", "undoBatchAction", "livePreviewAction",
             "pasteItemsAction", "selectAllAction", "saveProfileAction", "preferencesAction", "helpAction",
             "quitAction", "previewAction", "applyAction" }) {
        EXPECT_FALSE(action(name)->toolTip().isEmpty()) << name;
        EXPECT_FALSE(action(name)->shortcut().isEmpty()) << name;
    }
    EXPECT_EQ(action("previewAction")->shortcuts(),
        QList<QKeySequence>({ QKeySequence(Qt::Key_F5), QKeySequence(Qt::CTRL | Qt::Key_R) }));
    EXPECT_TRUE(action("previewAction")->toolTip().contains(u"F5"_s));
    EXPECT_EQ(action("applyAction")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Return));
}

class AttachedWindowTest : public ::testing::Test {
protected:
    // The button of a small window placed at the given spot of the screen.
    QPushButton* buttonAt(const QPoint& topLeft)
    {
        host.setGeometry(QRect(topLeft, QSize(120, 60)));
        host.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&host));
        return &button;
    }

    QRect globalRect(const QWidget* widget) const
    {
        return { widget->mapToGlobal(QPoint(0, 0)), widget->size() };
    }

    QWidget host;
    QPushButton button { u"Remove"_s, &host };
    AttachedWindow attached { &host };
};

TEST_F(AttachedWindowTest, PointsAtTheControlFromItsRightOrWhereTheScreenEndsFromItsLeft)
{
    QPushButton* anchor = buttonAt(QPoint(50, 50));
    attached.showMessage(anchor, u"First."_s);
    attached.showMessage(anchor, u"Select something first."_s);
    ASSERT_TRUE(attached.isVisible());
    EXPECT_EQ(attached.text(), u"Select something first."_s) << "a new message replaces the shown one";
    EXPECT_EQ(attached.side(), AttachedWindow::Side::Right);
    const QRect control = globalRect(anchor);
    const QRect bubble = attached.frameGeometry();
    EXPECT_EQ(bubble.left(), std::max(control.center().x() + 30, control.right() + 4));
    EXPECT_NEAR(bubble.center().y(), control.center().y(), 1) << "the arrow is level with the control";

    anchor = buttonAt(QPoint(host.screen()->availableGeometry().right() - 130, 50));
    attached.showMessage(anchor, u"No room on the right."_s);
    EXPECT_EQ(attached.side(), AttachedWindow::Side::Left);
    EXPECT_LT(attached.frameGeometry().right(), globalRect(anchor).left());
}

TEST_F(AttachedWindowTest, ALongTextWrapsInsteadOfGrowingWithoutEnd)
{
    attached.showMessage(buttonAt(QPoint(10, 10)), u"word "_s.repeated(60));
    EXPECT_LE(attached.width(), 320 + 2 * 10 + 15 + 2);
    EXPECT_GT(attached.height(), 2 * attached.fontMetrics().height());
}

TEST_F(AttachedWindowTest, TheNextClickKeyPressOrMoveOfTheWindowDismissesIt)
{
    QPushButton* anchor = buttonAt(QPoint(50, 50));
    const std::function<void()> dismissals[]
        = { [&] { QTest::keyClick(&host, Qt::Key_A); }, [&] { QTest::mouseClick(&host, Qt::LeftButton); },
              [&] {
                  host.move(host.pos() + QPoint(40, 0));
                  QTest::qWait(0);
              } };
    for (const auto& dismiss : dismissals) {
        attached.showMessage(anchor, u"Here."_s);
        ASSERT_TRUE(attached.isVisible());
        dismiss();
        EXPECT_FALSE(attached.isVisible());
    }
}

} // namespace
