#include "gui/app/MainWindow.h"

#include "core/list/FileSystemItem.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/ClipboardPaths.h"
#include "gui/app/DocumentCommands.h"
#include "gui/app/DocumentOpener.h"
#include "gui/app/LivePreview.h"
#include "gui/app/TavrinAppController.h"
#include "gui/app/WindowSheets.h"
#include "gui/engine/RenamePanel.h"
#include "gui/list/FileTableModel.h"
#include "gui/list/FileTableView.h"
#include "gui/list/ListModeSelector.h"
#include "gui/log/UndoSheetController.h"
#include "gui/ui/AttachedWindow.h"
#include "gui/ui/ElidedLabel.h"
#include "gui/ui/MessageBoxPrompter.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QFileDialog>
#include <QHeaderView>
#include <QIcon>
#include <QItemSelection>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

namespace tavrin {

namespace {

// How many skipped paths the tooltip lists before it only counts the rest.
constexpr int kSkippedPathsShown = 25;

QIcon themeIcon(const char* name, QStyle::StandardPixmap fallback, const QStyle* style)
{
    return QIcon::fromTheme(QString::fromLatin1(name), style->standardIcon(fallback));
}

// Toolbar tooltips do not show the shortcut by themselves.
void setToolTipWithShortcut(QAction* action, const char* key)
{
    const QKeySequence shortcut = action->shortcut();
    QString tip = localized(key);
    if (!shortcut.isEmpty())
        tip += QStringLiteral(" (%1)").arg(shortcut.toString(QKeySequence::NativeText));
    action->setToolTip(tip);
}

// The flag of the language the tables speak.
QString flagResource(const QString& language)
{
    if (language == QLatin1String("fr"))
        return QStringLiteral(":/icons/flags/French_Flag.svg");
    if (language == QLatin1String("de"))
        return QStringLiteral(":/icons/flags/German_Flag.svg");
    if (language == QLatin1String("es"))
        return QStringLiteral(":/icons/flags/Spanish_Flag.svg");
    return QStringLiteral(":/icons/flags/English_Flag.svg");
}

QAction* makeAction(QObject* parent, const char* objectName, const char* textKey, const QIcon& icon,
                    const QKeySequence& shortcut)
{
    auto* action = new QAction(icon, localized(textKey), parent);
    action->setObjectName(QString::fromLatin1(objectName));
    action->setShortcut(shortcut);
    return action;
}

}  // namespace

MainWindow::MainWindow(TavrinAppController* controller, QWidget* parent)
    : QMainWindow(parent)
    , m_controller(controller)
    , m_model(new FileTableModel(controller, this))
    , m_attached(new AttachedWindow(this))
    , m_prompter(std::make_unique<MessageBoxPrompter>())
    , m_documents(new DocumentCommands(controller, this))
    , m_opener(new DocumentOpener(*controller, this))
    , m_sheets(new WindowSheets(controller, this))
{
    m_documents->setPrompter(m_prompter.get());
    m_sheets->setPrompter(m_prompter.get());
    setWindowIcon(QIcon(QStringLiteral(":/icons/tavrin.svg")));
    m_attached->setObjectName(QStringLiteral("attachedWindow"));

    createActions();
    createToolBar();
    setCentralWidget(createCentralArea());
    createMenus();
    createStatusArea();
    connectController();

    modeChanged();
    listChanged();
    executingChanged(false);
    updateWindowTitle();
    updateLivePreviewAction();

    const QRect screen = this->screen() ? this->screen()->availableGeometry() : QRect(0, 0, 1280, 800);
    resize(std::min(1180, screen.width() * 9 / 10), std::min(760, screen.height() * 9 / 10));
}

MainWindow::~MainWindow() = default;

void MainWindow::setPrompter(std::unique_ptr<Prompter> prompter)
{
    m_prompter = std::move(prompter);
    m_documents->setPrompter(m_prompter.get());
    m_sheets->setPrompter(m_prompter.get());
}

void MainWindow::createActions()
{
    const QStyle* style = this->style();
    m_addFilesAction = makeAction(this, "addFilesAction", "ADDFILES",
                                  themeIcon("document-open", QStyle::SP_DialogOpenButton, style), {});
    m_addFoldersAction = makeAction(this, "addFoldersAction", "ADDFOLDERS",
                                    themeIcon("folder-open", QStyle::SP_DirOpenIcon, style), {});
    m_removeAction = makeAction(this, "removeAction", "REMOVE", themeIcon("list-remove", QStyle::SP_TrashIcon, style),
                                QKeySequence::Delete);
    m_clearAction = makeAction(this, "clearAction", "CLEAR", themeIcon("edit-clear", QStyle::SP_DialogResetButton, style),
                               QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Delete));
    m_moveUpAction = makeAction(this, "moveUpAction", "MOVEUP", themeIcon("go-up", QStyle::SP_ArrowUp, style),
                                QKeySequence(Qt::ALT | Qt::Key_Up));
    m_moveDownAction = makeAction(this, "moveDownAction", "MOVEDOWN", themeIcon("go-down", QStyle::SP_ArrowDown, style),
                                  QKeySequence(Qt::ALT | Qt::Key_Down));
    m_cancelAction = makeAction(this, "cancelAction", "CANCELPROCESS",
                                themeIcon("process-stop", QStyle::SP_BrowserStop, style), QKeySequence::Cancel);
    m_undoAction = makeAction(this, "undoBatchAction", "UNDOBATCH", themeIcon("edit-undo", QStyle::SP_ArrowBack, style),
                              QKeySequence::Undo);
    m_quitAction = makeAction(this, "quitAction", "QUIT", QIcon::fromTheme(QStringLiteral("application-exit")),
                              QKeySequence(Qt::CTRL | Qt::Key_Q));
    m_pasteItemsAction = makeAction(this, "pasteItemsAction", "PASTEITEMS",
        QIcon::fromTheme(QStringLiteral("edit-paste")), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V));
    m_selectAllAction = makeAction(this, "selectAllAction", "SELECTALL",
        QIcon::fromTheme(QStringLiteral("edit-select-all")), QKeySequence::SelectAll);
    m_openProfileAction = makeAction(this, "openProfileAction", "OPENPROFILE",
        QIcon::fromTheme(QStringLiteral("document-open")), QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_O));
    m_saveProfileAction = makeAction(this, "saveProfileAction", "SAVEPROFILE",
        QIcon::fromTheme(QStringLiteral("document-save")), QKeySequence::Save);
    m_saveProfileAsAction = makeAction(this, "saveProfileAsAction", "SAVEASPROFILE",
        QIcon::fromTheme(QStringLiteral("document-save-as")), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    m_defaultProfileAction = makeAction(this, "defaultProfileAction", "DEFAULTPROFILE",
        QIcon::fromTheme(QStringLiteral("document-new")), {});
    m_preferencesAction = makeAction(this, "preferencesAction", "PREFERENCES",
        QIcon::fromTheme(QStringLiteral("preferences-system")), QKeySequence(Qt::CTRL | Qt::Key_Comma));
    m_livePreviewAction = makeAction(this, "livePreviewAction", "LIVEPREVIEWACTION",
        QIcon(QStringLiteral(":/icons/LivePreviewOff.svg")), QKeySequence(Qt::CTRL | Qt::Key_L));
    m_helpAction = makeAction(this, "helpAction", "HELPCONTENTS",
        QIcon::fromTheme(QStringLiteral("help-contents")), QKeySequence::HelpContents);
    m_aboutAction = makeAction(this, "aboutAction", "ABOUT", QIcon::fromTheme(QStringLiteral("help-about")), {});
    m_livePreviewAction->setCheckable(true);
    m_pasteItemsAction->setToolTip(localized("PASTEITEMSTOOLTIP"));

    setToolTipWithShortcut(m_removeAction, "REMOVETOOLTIP");
    setToolTipWithShortcut(m_clearAction, "CLEARTOOLTIP");
    setToolTipWithShortcut(m_moveUpAction, "MOVEUPTOOLTIP");
    setToolTipWithShortcut(m_moveDownAction, "MOVEDOWNTOOLTIP");
    setToolTipWithShortcut(m_cancelAction, "CANCELPROCESSTOOLTIP");
    setToolTipWithShortcut(m_undoAction, "UNDOBATCHTOOLTIP");

    connect(m_addFilesAction, &QAction::triggered, this, &MainWindow::chooseFiles);
    connect(m_addFoldersAction, &QAction::triggered, this, &MainWindow::chooseFolders);
    connect(m_removeAction, &QAction::triggered, this, &MainWindow::removeSelected);
    connect(m_clearAction, &QAction::triggered, this, &MainWindow::clearList);
    connect(m_moveUpAction, &QAction::triggered, this, &MainWindow::moveSelectedUp);
    connect(m_moveDownAction, &QAction::triggered, this, &MainWindow::moveSelectedDown);
    connect(m_cancelAction, &QAction::triggered, m_controller, &TavrinAppController::cancelProcess);
    connect(m_undoAction, &QAction::triggered, this, &MainWindow::openUndoSheet);
    connect(m_quitAction, &QAction::triggered, this, &QWidget::close);
    connect(m_pasteItemsAction, &QAction::triggered, this, &MainWindow::pasteItems);
    connect(m_selectAllAction, &QAction::triggered, this, &MainWindow::selectAll);
    connect(m_openProfileAction, &QAction::triggered, m_documents, &DocumentCommands::openProfile);
    connect(m_saveProfileAction, &QAction::triggered, m_documents, &DocumentCommands::saveProfile);
    connect(m_saveProfileAsAction, &QAction::triggered, m_documents, &DocumentCommands::saveProfileAs);
    connect(m_defaultProfileAction, &QAction::triggered, m_documents, &DocumentCommands::loadDefaultProfile);
    connect(m_preferencesAction, &QAction::triggered, m_sheets, &WindowSheets::openPreferences);
    connect(m_livePreviewAction, &QAction::triggered, this, [this] {
        // The action shows the state, not the click, until the user has chosen.
        updateLivePreviewAction();
        m_sheets->showLivePreview();
    });
    connect(m_helpAction, &QAction::triggered, this, [this] { m_sheets->showHelpPage(QStringLiteral("main.html")); });
    connect(m_aboutAction, &QAction::triggered, m_sheets, &WindowSheets::showAbout);
}

void MainWindow::createMenus()
{
    QMenu* file = menuBar()->addMenu(localized("FILEMENU"));
    file->addAction(m_addFilesAction);
    file->addAction(m_addFoldersAction);
    file->addSeparator();
    file->addAction(m_openProfileAction);
    file->addAction(m_saveProfileAction);
    file->addAction(m_saveProfileAsAction);
    file->addAction(m_defaultProfileAction);
    file->addSeparator();
    file->addAction(m_preferencesAction);
    file->addSeparator();
    file->addAction(m_quitAction);

    QMenu* edit = menuBar()->addMenu(localized("EDITMENU"));
    edit->addAction(m_undoAction);
    edit->addSeparator();
    edit->addAction(m_pasteItemsAction);
    edit->addAction(m_selectAllAction);
    edit->addAction(m_removeAction);
    edit->addAction(m_clearAction);
    edit->addSeparator();
    edit->addAction(m_moveUpAction);
    edit->addAction(m_moveDownAction);

    QMenu* rename = menuBar()->addMenu(localized("RENAMEMENU"));
    rename->addAction(m_renamePanel->previewAction());
    rename->addAction(m_renamePanel->applyAction());
    rename->addAction(m_livePreviewAction);
    rename->addSeparator();
    rename->addAction(m_cancelAction);

    QMenu* help = menuBar()->addMenu(localized("HELPMENU"));
    help->addAction(m_helpAction);
    help->addAction(m_aboutAction);
}

void MainWindow::createToolBar()
{
    m_toolBar = addToolBar(localized("APPTITLE"));
    m_toolBar->setObjectName(QStringLiteral("mainToolBar"));
    m_toolBar->setMovable(false);
    m_toolBar->setFloatable(false);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_toolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    m_toolBar->addAction(m_addFilesAction);
    m_toolBar->addAction(m_addFoldersAction);
    m_toolBar->addAction(m_removeAction);
    m_toolBar->addAction(m_clearAction);
    m_toolBar->addSeparator();
    m_toolBar->addAction(m_moveUpAction);
    m_toolBar->addAction(m_moveDownAction);
    m_toolBar->addSeparator();
    m_toolBar->addAction(m_undoAction);
    m_toolBar->addAction(m_livePreviewAction);
}

QWidget* MainWindow::createCentralArea()
{
    m_table = new FileTableView;
    m_table->setObjectName(QStringLiteral("fileTable"));
    m_table->setModel(m_model);
    setDefaultColumnWidths();

    m_actionArea = new QWidget;
    m_actionArea->setObjectName(QStringLiteral("actionArea"));
    auto* actionLayout = new QVBoxLayout(m_actionArea);
    actionLayout->setContentsMargins(0, 0, 0, 0);
    m_renamePanel = new RenamePanel(m_controller, m_attached, m_cancelAction);
    actionLayout->addWidget(m_renamePanel);

    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setObjectName(QStringLiteral("mainSplitter"));
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_table);
    splitter->addWidget(m_actionArea);
    // A taller window gives the list more rows; the options keep the room they need.
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);

    // Above the list rather than in the toolbar, so that longer translations of the toolbar's
    // buttons never push it out of sight.
    m_modeSelector = new ListModeSelector;
    auto* central = new QWidget;
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(6, 4, 6, 0);
    layout->addWidget(m_modeSelector, 0, Qt::AlignLeft);
    layout->addWidget(splitter);
    return central;
}

// Names get the room; the extension and the kind of item need little.
void MainWindow::setDefaultColumnWidths()
{
    QHeaderView* header = m_table->horizontalHeader();
    header->setMinimumSectionSize(28);
    header->setSectionResizeMode(FileTableModel::IconColumn, QHeaderView::Fixed);
    header->resizeSection(FileTableModel::IconColumn, 30);
    header->resizeSection(FileTableModel::NameColumn, 260);
    header->resizeSection(FileTableModel::NewNameColumn, 260);
    header->resizeSection(FileTableModel::LocationColumn, 360);
    header->resizeSection(FileTableModel::ExtensionColumn, 90);
    header->setStretchLastSection(true);
}

void MainWindow::createStatusArea()
{
    m_countLabel = new QLabel;
    m_countLabel->setObjectName(QStringLiteral("countLabel"));
    m_progressLabel = new ElidedLabel;
    m_progressLabel->setObjectName(QStringLiteral("progressLabel"));
    m_busyIndicator = new QProgressBar;
    m_busyIndicator->setObjectName(QStringLiteral("busyIndicator"));
    m_busyIndicator->setRange(0, 0);
    m_busyIndicator->setTextVisible(false);
    m_busyIndicator->setFixedWidth(120);
    m_busyIndicator->setMaximumHeight(m_countLabel->sizeHint().height());
    m_skippedLabel = new QLabel;
    m_skippedLabel->setObjectName(QStringLiteral("skippedLabel"));
    m_skippedLabel->hide();
    m_timeLabel = new QLabel;
    m_timeLabel->setObjectName(QStringLiteral("timeLabel"));

    statusBar()->addWidget(m_countLabel);
    statusBar()->addWidget(m_progressLabel, 1);
    statusBar()->addPermanentWidget(m_skippedLabel);
    statusBar()->addPermanentWidget(m_busyIndicator);
    statusBar()->addPermanentWidget(m_timeLabel);
    statusBar()->addPermanentWidget(createLanguageFlag());
}

QLabel* MainWindow::createLanguageFlag()
{
    auto* flag = new QLabel;
    flag->setObjectName(QStringLiteral("languageFlag"));
    const int height = fontMetrics().height() * 3 / 4;
    flag->setPixmap(QIcon(flagResource(LocalizedStrings::language())).pixmap(QSize(height * 3 / 2, height)));
    flag->setToolTip(localized("CURRENTLANGUAGE"));
    flag->setAccessibleName(localized("CURRENTLANGUAGE"));
    return flag;
}

void MainWindow::connectController()
{
    connect(m_controller, &TavrinAppController::executingChanged, this, &MainWindow::executingChanged);
    connect(m_controller, &TavrinAppController::listChanged, this, &MainWindow::listChanged);
    connect(m_controller, &TavrinAppController::modeChanged, this, &MainWindow::modeChanged);
    connect(m_controller, &TavrinAppController::progressMessage, m_progressLabel, &ElidedLabel::setFullText);
    connect(m_controller, &TavrinAppController::foundCountChanged, m_countLabel, &QLabel::setText);
    connect(m_controller, &TavrinAppController::renamedCountChanged, m_countLabel, &QLabel::setText);
    connect(m_controller, &TavrinAppController::progressChanged, this, &MainWindow::showProgress);
    connect(m_controller, &TavrinAppController::lastActionTimeTakenChanged, m_timeLabel, &QLabel::setText);
    connect(m_controller, &TavrinAppController::nonUtf8NamesSkipped, this, &MainWindow::showSkippedNames);

    connect(m_modeSelector, &ListModeSelector::modeChosen, m_controller, &TavrinAppController::setMode);
    connect(m_modeSelector, &ListModeSelector::includeSubFoldersChosen, m_controller,
            &TavrinAppController::setIncludeSubFolders);

    connect(m_controller, &TavrinAppController::currProfileFileChanged, this, &MainWindow::updateWindowTitle);
    connect(m_controller, &TavrinAppController::pasteboardItemsRequested, m_sheets,
        &WindowSheets::openPasteboardItemsSheet);
    connect(&m_controller->livePreview(), &LivePreview::stateChanged, this, &MainWindow::updateLivePreviewAction);
    connect(m_opener, &DocumentOpener::ruleFileOpened, m_documents, &DocumentCommands::openRuleDocument);
    connect(m_opener, &DocumentOpener::profileFileOpened, m_documents, &DocumentCommands::openProfileDocument);

    connect(m_table, &FileTableView::pathsDropped, this, &MainWindow::addPaths);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MainWindow::updateMoveActions);
    connect(m_model, &QAbstractItemModel::layoutChanged, this, &MainWindow::updateMoveActions);
    connect(m_table->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &MainWindow::sortIndicatorChanged);
}

void MainWindow::addPaths(const QStringList& paths)
{
    m_attached->hide();
    m_controller->addFiles(paths);
}

QFileDialog* MainWindow::makeChooser()
{
    m_attached->hide();
    auto* dialog = new QFileDialog(this, localized("CHOOSEFILESORFOLDERSTITLE"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOptions(QFileDialog::DontResolveSymlinks | QFileDialog::ReadOnly);
    dialog->setDirectory(m_lastChosenFolder.isEmpty() ? QDir::homePath() : m_lastChosenFolder);
    connect(dialog, &QFileDialog::filesSelected, this, [this, dialog](const QStringList& paths) {
        m_lastChosenFolder = dialog->directory().absolutePath();
        addPaths(paths);
    });
    return dialog;
}

void MainWindow::chooseFiles()
{
    QFileDialog* dialog = makeChooser();
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->open();
}

void MainWindow::chooseFolders()
{
    QFileDialog* dialog = makeChooser();
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOptions(dialog->options() | QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    // Qt's own dialog picks one folder at a time unless its views are told otherwise.
    for (QAbstractItemView* view : dialog->findChildren<QAbstractItemView*>())
        view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    dialog->open();
}

QList<int> MainWindow::selectedRows() const
{
    QList<int> rows;
    for (const QItemSelectionRange& range : m_table->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

// Consecutive rows become one range, so selecting a long block stays cheap.
void MainWindow::selectRows(const QList<int>& rows)
{
    QItemSelection selection;
    const int lastColumn = FileTableModel::ColumnCount - 1;
    for (qsizetype first = 0; first < rows.size();) {
        qsizetype last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1)
            ++last;
        selection.select(m_model->index(rows[first], 0), m_model->index(rows[last], lastColumn));
        first = last + 1;
    }
    m_table->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.isEmpty())
        m_table->selectionModel()->setCurrentIndex(m_model->index(rows.last(), FileTableModel::NameColumn),
                                                   QItemSelectionModel::NoUpdate);
}

void MainWindow::removeSelected()
{
    const QList<int> rows = selectedRows();
    if (rows.isEmpty()) {
        showAttachedMessage(m_removeAction, "NOITEMSTOREMOVE");
        return;
    }
    m_attached->hide();
    m_controller->removeRows(rows);
    // The row that took the place of the first removed one is the natural next target.
    const int count = m_model->rowCount();
    if (count > 0)
        selectRows({std::min(rows.first(), count - 1)});
    m_table->setFocus();
}

void MainWindow::clearList()
{
    m_attached->hide();
    m_controller->clear();
}

void MainWindow::moveSelectedUp()
{
    showMovedSelection(m_controller->moveUp(selectedRows()));
}

void MainWindow::moveSelectedDown()
{
    showMovedSelection(m_controller->moveDown(selectedRows()));
}

void MainWindow::showMovedSelection(const QList<int>& rows)
{
    selectRows(rows);
    clearSortIndicator();
    if (!rows.isEmpty())
        m_table->scrollTo(m_model->index(rows.last(), FileTableModel::NameColumn));
    updateMoveActions();
}

void MainWindow::sortIndicatorChanged(int section, Qt::SortOrder order)
{
    if (section >= 0 && !FileTableModel::isSortableColumn(section)) {
        const QSignalBlocker blocker(m_table->horizontalHeader());
        m_table->horizontalHeader()->setSortIndicator(m_sortSection, m_sortOrder);
        return;
    }
    m_sortSection = section;
    m_sortOrder = order;
    if (section < 0)
        return;
    // A long list takes a moment to sort; the pointer says so.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_model->sort(section, order);
    QApplication::restoreOverrideCursor();
}

// The list is no longer in the order the header shows.
void MainWindow::clearSortIndicator()
{
    m_sortSection = -1;
    const QSignalBlocker blocker(m_table->horizontalHeader());
    m_table->horizontalHeader()->setSortIndicator(-1, m_sortOrder);
}

void MainWindow::executingChanged(bool executing)
{
    for (QAction* action : {m_addFilesAction, m_addFoldersAction, m_removeAction, m_clearAction, m_undoAction,
             m_pasteItemsAction, m_selectAllAction, m_openProfileAction, m_defaultProfileAction})
        action->setEnabled(!executing);
    m_cancelAction->setEnabled(executing);
    m_modeSelector->setEnabled(!executing);
    m_table->setEnabled(!executing);
    m_busyIndicator->setVisible(executing);
    // Busy until the operation says how far it has come.
    m_busyIndicator->setRange(0, 0);
    m_table->setEmptyHint(executing ? QString() : localized("EMPTYLISTHINT"));
    if (executing) {
        m_skippedLabel->hide();
    } else {
        m_progressLabel->setFullText(QString());
        m_table->setFocus();
    }
    updateMoveActions();
}

void MainWindow::showProgress(int done, int total)
{
    m_busyIndicator->setRange(0, total);
    m_busyIndicator->setValue(done);
}

void MainWindow::listChanged()
{
    if (!m_controller->isExecuting())
        m_countLabel->setText(m_controller->countText());
    if (m_model->rowCount() == 0)
        clearSortIndicator();
    if (m_controller->lastSkippedPaths().isEmpty())
        m_skippedLabel->hide();
    updateMoveActions();
}

void MainWindow::modeChanged()
{
    m_modeSelector->showMode(m_controller->isFolders() ? ListMode::Folders : ListMode::Files,
                             m_controller->isIncludeSubFolders());
    m_countLabel->setText(m_controller->countText());
    updateAddActions();
}

// The file dialog cannot offer files and folders at once, so each kind has its own action,
// shown when the mode can take it; the one shown alone answers Ctrl+O.
void MainWindow::updateAddActions()
{
    const bool files = m_controller->isFiles();
    const bool folders = m_controller->isFolders() || m_controller->isIncludeSubFolders();
    m_addFilesAction->setVisible(files);
    m_addFoldersAction->setVisible(folders);
    m_addFilesAction->setShortcut(files ? QKeySequence(QKeySequence::Open) : QKeySequence());
    m_addFoldersAction->setShortcut(files ? QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O)
                                          : QKeySequence(QKeySequence::Open));
    setToolTipWithShortcut(m_addFilesAction, "ADDFILESTOOLTIP");
    setToolTipWithShortcut(m_addFoldersAction, "ADDFOLDERSTOOLTIP");
}

void MainWindow::updateMoveActions()
{
    int first = -1;
    int last = -1;
    for (const QItemSelectionRange& range : m_table->selectionModel()->selection()) {
        first = first < 0 ? range.top() : std::min(first, range.top());
        last = std::max(last, range.bottom());
    }
    const bool idle = !m_controller->isExecuting();
    const bool hasSelection = first >= 0;
    m_moveUpAction->setEnabled(idle && hasSelection && first != 0);
    m_moveDownAction->setEnabled(idle && hasSelection && last != m_model->rowCount() - 1);
}

void MainWindow::showSkippedNames(const QStringList& paths)
{
    QStringList shown;
    for (const QString& path : paths.mid(0, kSkippedPathsShown))
        shown.append(getDisplayFilePath(path));
    if (paths.size() > kSkippedPathsShown)
        shown.append(localized("SKIPPEDNONUTF8NAMESMORE").arg(paths.size() - kSkippedPathsShown));
    m_skippedLabel->setText(localized("SKIPPEDNONUTF8NAMES").arg(paths.size()));
    m_skippedLabel->setToolTip(shown.join(QLatin1Char('\n')));
    m_skippedLabel->show();
}

void MainWindow::showAttachedMessage(QAction* besideAction, const char* key)
{
    QWidget* anchor = m_toolBar->widgetForAction(besideAction);
    m_attached->showMessage(anchor ? anchor : m_table, localized(key));
}

// An undo renames items the list may hold, so it waits until no batch runs.
void MainWindow::openUndoSheet()
{
    if (m_controller->isExecuting())
        return;
    m_attached->hide();
    auto* sheet = new UndoSheetController(m_controller, this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_attached->hide();
    m_controller->cancelProcess();
    m_controller->applicationShouldTerminate();
    QMainWindow::closeEvent(event);
}

// Qt adds the application's name to the title itself.
void MainWindow::updateWindowTitle()
{
    const QString profile = m_controller->currProfileFile();
    setWindowTitle(profile.isEmpty() ? localized("DEFAULT") : QFileInfo(profile).completeBaseName());
}

void MainWindow::updateLivePreviewAction()
{
    const bool on = m_controller->livePreview().isLivePreviewEnabled();
    m_livePreviewAction->setChecked(on);
    m_livePreviewAction->setIcon(QIcon(on ? QStringLiteral(":/icons/LivePreview.svg")
                                          : QStringLiteral(":/icons/LivePreviewOff.svg")));
    setToolTipWithShortcut(m_livePreviewAction, on ? "LIVEPREVIEWONTOOLTIP" : "LIVEPREVIEWOFFTOOLTIP");
}

void MainWindow::pasteItems()
{
    const QStringList paths = pathsFromClipboard(QGuiApplication::clipboard()->mimeData());
    if (paths.isEmpty()) {
        showAttachedMessage(m_pasteItemsAction, "NOITEMSONCLIPBOARD");
        return;
    }
    m_opener->openFiles(paths);
}

void MainWindow::selectAll()
{
    m_table->selectAll();
    m_table->setFocus();
}

}  // namespace tavrin
