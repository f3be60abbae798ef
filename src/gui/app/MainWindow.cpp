#include "gui/app/MainWindow.h"

#include "core/list/FileSystemItem.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/ClipboardPaths.h"
#include "gui/app/DocumentCommands.h"
#include "gui/app/DocumentOpener.h"
#include "gui/app/TavrinAppController.h"
#include "gui/app/TableContextMenus.h"
#include "gui/app/WindowActions.h"
#include "gui/app/WindowSheets.h"
#include "gui/control/LivePreview.h"
#include "gui/engine/RenamePanel.h"
#include "gui/list/FileTableModel.h"
#include "gui/list/FileTableView.h"
#include "gui/ui/ThumbnailPreview.h"
#include "gui/list/ListModeSelector.h"
#include "gui/log/UndoSheetController.h"
#include "gui/rules/RulesCommands.h"
#include "gui/ui/AttachedWindow.h"
#include "gui/ui/ElidedLabel.h"
#include "gui/ui/MessageBoxPrompter.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QIcon>
#include <QItemSelection>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
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

} // namespace

MainWindow::MainWindow(TavrinAppController* controller, QWidget* parent)
    : QMainWindow(parent)
    , m_controller(controller)
    , m_model(new FileTableModel(&controller->list(), this))
    , m_attached(new AttachedWindow(this))
    , m_prompter(std::make_unique<MessageBoxPrompter>())
    , m_documents(new DocumentCommands(&controller->session(), this))
    , m_opener(new DocumentOpener(controller->list(), this))
    , m_sheets(new WindowSheets(controller, this))
    , m_actions(new WindowActions(this))
{
    setWindowIcon(QIcon(QStringLiteral(":/icons/tavrin.svg")));
    m_attached->setObjectName(QStringLiteral("attachedWindow"));

    createToolBar();
    setCentralWidget(createCentralArea());
    m_contextMenus = new TableContextMenus({ m_table, m_actions, &controller->rename() }, this);
    m_contextMenus->restoreHiddenColumns();
    m_actions->fillMenuBar(menuBar(), { m_renamePanel->previewAction(), m_renamePanel->applyAction() });
    m_rules = new RulesCommands({ controller, m_sheets, m_renamePanel }, this);
    menuBar()->insertMenu(menuBar()->actions().constLast(), m_rules->menu());
    createStatusArea();
    handOutPrompter();
    connectActions();
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
    handOutPrompter();
}

void MainWindow::handOutPrompter()
{
    m_documents->setPrompter(m_prompter.get());
    m_sheets->setPrompter(m_prompter.get());
    m_renamePanel->setPrompter(m_prompter.get());
    m_contextMenus->setPrompter(m_prompter.get());
    m_rules->setPrompter(m_prompter.get());
}

void MainWindow::connectActions()
{
    connect(m_actions->addFiles(), &QAction::triggered, this, &MainWindow::chooseFiles);
    connect(m_actions->addFolders(), &QAction::triggered, this, &MainWindow::chooseFolders);
    connect(m_actions->remove(), &QAction::triggered, this, &MainWindow::removeSelected);
    connect(m_actions->clear(), &QAction::triggered, this, &MainWindow::clearList);
    connect(m_actions->moveUp(), &QAction::triggered, this, &MainWindow::moveSelectedUp);
    connect(m_actions->moveDown(), &QAction::triggered, this, &MainWindow::moveSelectedDown);
    connect(m_actions->cancel(), &QAction::triggered, &m_controller->list(), &ListController::cancelProcess);
    connect(m_actions->undo(), &QAction::triggered, this, &MainWindow::openUndoSheet);
    connect(m_actions->quit(), &QAction::triggered, this, &QWidget::close);
    connect(m_actions->pasteItems(), &QAction::triggered, this, &MainWindow::pasteItems);
    connect(m_actions->selectAll(), &QAction::triggered, this, &MainWindow::selectAll);
    connect(m_actions->openProfile(), &QAction::triggered, m_documents, &DocumentCommands::openProfile);
    connect(m_actions->saveProfile(), &QAction::triggered, m_documents, &DocumentCommands::saveProfile);
    connect(m_actions->saveProfileAs(), &QAction::triggered, m_documents, &DocumentCommands::saveProfileAs);
    connect(
        m_actions->defaultProfile(), &QAction::triggered, m_documents, &DocumentCommands::loadDefaultProfile);
    connect(m_actions->showProfiles(), &QAction::triggered, m_sheets, &WindowSheets::openProfilesSheet);
    connect(m_actions->preferences(), &QAction::triggered, m_sheets, &WindowSheets::openPreferences);
    connect(m_actions->exportList(), &QAction::triggered, m_sheets, &WindowSheets::openExportSheet);
    connect(m_actions->livePreview(), &QAction::triggered, this, &MainWindow::toggleLivePreview);
    connect(m_actions->help(), &QAction::triggered, this,
        [this] { m_sheets->showHelpPage(QStringLiteral("main.html")); });
    connect(m_actions->about(), &QAction::triggered, m_sheets, &WindowSheets::showAbout);
}

void MainWindow::createToolBar()
{
    m_toolBar = addToolBar(localized("APPTITLE"));
    m_toolBar->setObjectName(QStringLiteral("mainToolBar"));
    m_toolBar->setMovable(false);
    m_toolBar->setFloatable(false);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_toolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    m_actions->fillToolBar(m_toolBar);
}

QWidget* MainWindow::createCentralArea()
{
    m_table = new FileTableView;
    m_table->setObjectName(QStringLiteral("fileTable"));
    m_table->setModel(m_model);
    setDefaultColumnWidths();
    new ThumbnailPreview(m_table);

    m_actionArea = new QWidget;
    m_actionArea->setObjectName(QStringLiteral("actionArea"));
    auto* actionLayout = new QVBoxLayout(m_actionArea);
    actionLayout->setContentsMargins(0, 0, 0, 0);
    m_renamePanel = new RenamePanel(&m_controller->rename(), m_attached, m_actions->cancel());
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
    const ListController* list = &m_controller->list();
    const ActivityStatus* status = &m_controller->status();
    connect(list, &ListController::executingChanged, this, &MainWindow::executingChanged);
    connect(list, &ListController::listChanged, this, &MainWindow::listChanged);
    connect(list, &ListController::modeChanged, this, &MainWindow::modeChanged);
    connect(list, &ListController::foundCountChanged, m_countLabel, &QLabel::setText);
    connect(list, &ListController::progressChanged, this, &MainWindow::showProgress);
    connect(list, &ListController::nonUtf8NamesSkipped, this, &MainWindow::showSkippedNames);
    connect(
        list, &ListController::pasteboardItemsRequested, m_sheets, &WindowSheets::openPasteboardItemsSheet);
    connect(&m_controller->rename(), &RenameController::renamedCountChanged, m_countLabel, &QLabel::setText);
    connect(status, &ActivityStatus::progressMessage, m_progressLabel, &ElidedLabel::setFullText);
    connect(status, &ActivityStatus::lastActionTimeTakenChanged, m_timeLabel, &QLabel::setText);

    connect(m_modeSelector, &ListModeSelector::modeChosen, list, [this](ListMode mode) { chooseMode(mode); });
    connect(m_modeSelector, &ListModeSelector::includeSubFoldersChosen, list,
        [this](bool include) { m_controller->list().setIncludeSubFolders(include); });

    connect(&m_controller->session(), &SessionController::currProfileFileChanged, this,
        &MainWindow::updateWindowTitle);
    connect(&m_controller->rename().livePreview(), &LivePreview::stateChanged, this,
        &MainWindow::updateLivePreviewAction);
    connect(m_opener, &DocumentOpener::ruleFileOpened, m_documents, &DocumentCommands::openRuleDocument);
    connect(m_documents, &DocumentCommands::ruleInLibrary, m_rules, &RulesCommands::ruleMenuItemClick);
    connect(
        m_opener, &DocumentOpener::profileFileOpened, m_documents, &DocumentCommands::openProfileDocument);

    connect(m_table, &FileTableView::pathsDropped, this, &MainWindow::addPaths);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &MainWindow::updateMoveActions);
    connect(m_model, &QAbstractItemModel::layoutChanged, this, &MainWindow::updateMoveActions);
    connect(m_table->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
        &MainWindow::sortIndicatorChanged);
}

void MainWindow::addPaths(const QStringList& paths)
{
    m_attached->hide();
    m_controller->list().addFiles(paths);
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
        m_table->selectionModel()->setCurrentIndex(
            m_model->index(rows.last(), FileTableModel::NameColumn), QItemSelectionModel::NoUpdate);
}

void MainWindow::removeSelected()
{
    const QList<int> rows = selectedRows();
    if (rows.isEmpty()) {
        showAttachedMessage(m_actions->remove(), "NOITEMSTOREMOVE");
        return;
    }
    m_attached->hide();
    m_controller->list().removeRows(rows);
    // The row that took the place of the first removed one is the natural next target.
    const int count = m_model->rowCount();
    if (count > 0)
        selectRows({ std::min(rows.first(), count - 1) });
    m_table->setFocus();
}

// A list is never lost without a word: emptying one that holds items asks first.
bool MainWindow::confirmEmptyingList(const char* messageKey)
{
    const int count = m_controller->list().shownCount();
    return count == 0
        || m_prompter->askYesNo(this, { localized("APPTITLE"), localized(messageKey).arg(QLocale().toString(count)) });
}

void MainWindow::clearList()
{
    m_attached->hide();
    if (confirmEmptyingList("CLEARLISTCONFIRM"))
        m_controller->list().clear();
}

// A change between files and folders empties the list; answered No, the choice goes back.
void MainWindow::chooseMode(ListMode mode)
{
    const ListController& list = m_controller->list();
    const bool changes = (mode == ListMode::Folders) != list.isFolders();
    if (changes && !confirmEmptyingList("MODECHANGECONFIRM")) {
        modeChanged();
        return;
    }
    m_controller->list().setMode(mode);
}

void MainWindow::moveSelectedUp()
{
    showMovedSelection(m_controller->list().moveUp(selectedRows()));
}

void MainWindow::moveSelectedDown()
{
    showMovedSelection(m_controller->list().moveDown(selectedRows()));
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

// The header shows the order the list is kept in, when it is kept in one.
void MainWindow::showArrivalOrder()
{
    const std::optional<SortKey> order = m_controller->list().arrivalOrder();
    m_sortSection = order ? FileTableModel::columnOfKey(order->key) : -1;
    if (order)
        m_sortOrder = order->ascending ? Qt::AscendingOrder : Qt::DescendingOrder;
    const QSignalBlocker blocker(m_table->horizontalHeader());
    m_table->horizontalHeader()->setSortIndicator(m_sortSection, m_sortOrder);
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
    m_actions->setExecuting(executing);
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

void MainWindow::showProgress(const Progress& progress)
{
    m_busyIndicator->setRange(0, progress.total);
    m_busyIndicator->setValue(progress.done);
}

void MainWindow::listChanged()
{
    const ListController& list = m_controller->list();
    if (!list.isExecuting())
        m_countLabel->setText(list.countText());
    if (!list.isExecuting())
        showArrivalOrder();
    if (list.lastSkippedPaths().isEmpty())
        m_skippedLabel->hide();
    updateMoveActions();
}

void MainWindow::modeChanged()
{
    const ListController& list = m_controller->list();
    m_modeSelector->showMode(
        list.isFolders() ? ListMode::Folders : ListMode::Files, list.isIncludeSubFolders());
    m_countLabel->setText(list.countText());
    m_actions->showListMode(list.isFiles(), list.isFolders() || list.isIncludeSubFolders());
}

void MainWindow::updateMoveActions()
{
    int first = -1;
    int last = -1;
    for (const QItemSelectionRange& range : m_table->selectionModel()->selection()) {
        first = first < 0 ? range.top() : std::min(first, range.top());
        last = std::max(last, range.bottom());
    }
    const bool idle = !m_controller->list().isExecuting();
    const bool hasSelection = first >= 0;
    m_actions->moveUp()->setEnabled(idle && hasSelection && first != 0);
    m_actions->moveDown()->setEnabled(idle && hasSelection && last != m_model->rowCount() - 1);
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
    if (m_controller->list().isExecuting())
        return;
    m_attached->hide();
    const UndoSheetContext context { m_controller->session().logFolderPath(), &m_controller->status(),
        m_prompter.get() };
    auto* sheet = new UndoSheetController(context, this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    // The list follows the items given back their old names, and the status line says so.
    connect(sheet, &UndoSheetController::undoFinished, this, [this, sheet] {
        const UndoSummary& summary = sheet->lastSummary();
        m_controller->list().followUndo(summary.restoredEntries);
        m_controller->status().showMessage(localized("ITEMSRESTORED").arg(QLocale().toString(summary.restored)));
    });
    sheet->open();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_attached->hide();
    m_controller->list().cancelProcess();
    m_controller->applicationShouldTerminate();
    QMainWindow::closeEvent(event);
}

// Qt adds the application's name to the title itself.
void MainWindow::updateWindowTitle()
{
    const QString profile = m_controller->session().currProfileFile();
    setWindowTitle(profile.isEmpty() ? localized("DEFAULT") : QFileInfo(profile).completeBaseName());
}

void MainWindow::updateLivePreviewAction()
{
    m_actions->showLivePreview(m_controller->rename().livePreview().isLivePreviewEnabled());
}

// The action shows the state, not the click, until the user has chosen.
void MainWindow::toggleLivePreview()
{
    updateLivePreviewAction();
    m_sheets->showLivePreview();
}

void MainWindow::pasteItems()
{
    const QStringList paths = pathsFromClipboard(QGuiApplication::clipboard()->mimeData());
    if (paths.isEmpty()) {
        showAttachedMessage(m_actions->pasteItems(), "NOITEMSONCLIPBOARD");
        return;
    }
    m_opener->openFiles(paths);
}

void MainWindow::selectAll()
{
    m_table->selectAll();
    m_table->setFocus();
}

} // namespace tavrin
