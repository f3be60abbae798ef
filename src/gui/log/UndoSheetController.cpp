#include "gui/log/UndoSheetController.h"

#include "core/log/LogListing.h"
#include "core/log/RenameLogReader.h"
#include "core/text/LocalizedStrings.h"
#include "gui/control/ActivityStatus.h"
#include "gui/control/BackgroundJob.h"
#include "gui/log/HelpPage.h"
#include "gui/log/LogTableModel.h"
#include "gui/ui/ElidedLabel.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

namespace tavrin {

namespace {

using Severity = Prompter::Severity;

constexpr char kTitleKey[] = "UNDOFILESFOLDERSTITLE";

QString formattedCount(int count)
{
    return QLocale().toString(count);
}

} // namespace

UndoSheetController::UndoSheetController(UndoSheetContext context, QWidget* parent)
    : Sheet({ "undoSheet", kTitleKey }, parent)
    , m_context(std::move(context))
    , m_model(new LogTableModel(this))
    , m_worker(new BackgroundJob(this))
    , m_counter(new BackgroundJob(this))
{
    createWidgets();
    connect(m_worker, &BackgroundJob::progressChanged, this, &UndoSheetController::showProgress);
    connect(this, &Sheet::helpRequested, this, &UndoSheetController::showHelp);
    loadUserLogFiles();
    resize(680, 440);
}

// The worker's destructor stops an undo in flight; its log stays, naming what is left.
UndoSheetController::~UndoSheetController() = default;

void UndoSheetController::createWidgets()
{
    auto* intro = new QLabel(localized("UNDOSHEETINTRO"));
    intro->setWordWrap(true);
    auto* logs = new QHBoxLayout;
    logs->addWidget(createTable(), 1);
    logs->addWidget(createLogCommands());
    m_buttons = createButtons();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addLayout(logs, 1);
    layout->addWidget(createStatusArea());
    layout->addSpacing(4);
    layout->addWidget(m_buttons);
    m_table->setFocus();
}

QWidget* UndoSheetController::createTable()
{
    m_table = new QTableView;
    m_table->setObjectName(QStringLiteral("logTable"));
    setUpTable(m_table, { m_model, QAbstractItemView::SingleSelection, [this] { deleteLogFile(); } });
    QHeaderView* header = m_table->horizontalHeader();
    header->setSectionResizeMode(LogTableModel::FileNameColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(LogTableModel::DateCreatedColumn, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(LogTableModel::FilesCountColumn, QHeaderView::ResizeToContents);

    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &UndoSheetController::selectionChanged);
    connect(m_model, &QAbstractItemModel::modelReset, this, &UndoSheetController::updateCountLine);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &UndoSheetController::updateCountLine);
    return m_table;
}

// The count of logs on the left; what the sheet is doing on the right, with its progress;
// below, which log the commands act on.
QWidget* UndoSheetController::createStatusArea()
{
    m_countLabel = new QLabel;
    m_countLabel->setObjectName(QStringLiteral("logCountLabel"));
    m_statusLabel = new QLabel;
    m_statusLabel->setObjectName(QStringLiteral("logStatusLabel"));
    m_busyIndicator = new QProgressBar;
    m_busyIndicator->setObjectName(QStringLiteral("undoBusyIndicator"));
    m_busyIndicator->setTextVisible(false);
    m_busyIndicator->setFixedWidth(140);
    m_busyIndicator->setMaximumHeight(m_statusLabel->sizeHint().height());
    m_busyIndicator->hide();
    m_cancelButton = new QPushButton(localized("CANCEL"));
    m_cancelButton->setObjectName(QStringLiteral("cancelUndoButton"));
    m_cancelButton->setToolTip(localized("CANCELUNDOTOOLTIP"));
    m_cancelButton->hide();
    connect(m_cancelButton, &QPushButton::clicked, this, &UndoSheetController::cancelUndo);
    m_currentLogLabel = new ElidedLabel;
    m_currentLogLabel->setObjectName(QStringLiteral("currentLogLabel"));
    m_currentLogLabel->setForegroundRole(QPalette::PlaceholderText);

    auto* area = new QWidget;
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* counts = new QHBoxLayout;
    counts->addWidget(m_countLabel);
    counts->addStretch(1);
    counts->addWidget(m_busyIndicator);
    counts->addWidget(m_statusLabel);
    counts->addWidget(m_cancelButton);
    layout->addLayout(counts);
    layout->addWidget(m_currentLogLabel);
    return area;
}

// Beside the table, the commands that act on the current log without undoing it.
QWidget* UndoSheetController::createLogCommands()
{
    auto* commands = new QWidget;
    auto* layout = new QVBoxLayout(commands);
    layout->setContentsMargins(0, 0, 0, 0);
    m_openButton = makeButton({ "openLogButton", "OPENLOGBUTTON", "OPENLOGTOOLTIP" },
        themeIcon("document-open", QStyle::SP_DialogOpenButton), &UndoSheetController::openLogFile);
    m_viewButton = makeButton({ "viewLogButton", "VIEWLOGBUTTON", "VIEWLOGTOOLTIP" },
        themeIcon("document-preview", QStyle::SP_FileDialogContentsView), &UndoSheetController::viewLogFileContent);
    m_deleteButton = makeButton({ "deleteLogButton", "DELETELOGBUTTON", "DELETELOGTOOLTIP" },
        themeIcon("edit-delete", QStyle::SP_TrashIcon), &UndoSheetController::deleteLogFile);
    for (QPushButton* button : { m_openButton, m_viewButton, m_deleteButton })
        layout->addWidget(button);
    layout->addStretch(1);
    return commands;
}

QDialogButtonBox* UndoSheetController::createButtons()
{
    QDialogButtonBox* box = createButtonBox(QDialogButtonBox::Close);
    // The sheet is there to undo: its button takes the place and the Return key of an OK.
    m_undoButton = addDefaultButton(box, { "undoButton", "UNDOBUTTON", "UNDOBUTTONTOOLTIP" });
    m_undoButton->setIcon(themeIcon("edit-undo", QStyle::SP_ArrowBack));
    connect(m_undoButton, &QPushButton::clicked, this, &UndoSheetController::undoRenaming);
    return box;
}

QPushButton* UndoSheetController::makeButton(
    const SheetButton& text, const QIcon& icon, void (UndoSheetController::*command)())
{
    auto* button = new QPushButton(icon, localized(text.textKey));
    button->setObjectName(QString::fromLatin1(text.objectName));
    button->setToolTip(localized(text.toolTipKey));
    connect(button, &QPushButton::clicked, this, command);
    return button;
}

QIcon UndoSheetController::themeIcon(const char* name, QStyle::StandardPixmap fallback) const
{
    return QIcon::fromTheme(QString::fromLatin1(name), style()->standardIcon(fallback));
}

void UndoSheetController::loadUserLogFiles()
{
    setCurrentLog(QString(), 0);
    m_model->setLogs(tavrin::loadUserLogFiles(m_context.logFolder));
    showEntriesStatus(0);
    countEntries();
}

bool UndoSheetController::isCounting() const
{
    return m_counter->isRunning();
}

// The count in a log's name is its batch's; a log an undo kept holds fewer entries. A quiet
// pass reads what each listed log holds and the rows show that.
void UndoSheetController::countEntries()
{
    QStringList paths;
    for (int row = 0; row < m_model->rowCount(); ++row)
        paths.append(m_model->log(row).path);
    auto counts = std::make_shared<QList<int>>();
    const bool started = m_counter->start([paths, counts](const std::atomic_bool& cancel, ProgressObserver*) {
        for (const QString& path : paths) {
            if (cancel.load())
                return;
            const std::optional<RenameLogContents> contents = readLogEntries(path);
            counts->append(contents ? static_cast<int>(contents->entries.size()) : -1);
        }
    });
    if (started)
        connect(m_counter, &BackgroundJob::finished, this, [this, paths, counts] { showCounts(paths, *counts); },
            Qt::SingleShotConnection);
}

void UndoSheetController::showCounts(const QStringList& paths, const QList<int>& counts)
{
    // An undo since the pass began has its own, newer count.
    if (m_isUndoing || counts.size() != paths.size())
        return;
    for (qsizetype index = 0; index < paths.size(); ++index) {
        if (counts[index] < 0)
            continue;
        showRemainingEntries(paths[index], counts[index]);
        if (paths[index] == m_currLogFilePath)
            showEntriesStatus(counts[index]);
    }
}

// The log at `path` holds `entries` entries: its row says so, and Undo counts on them.
void UndoSheetController::showRemainingEntries(const QString& path, int entries)
{
    const int row = m_model->rowOfPath(path);
    if (row >= 0)
        m_model->setFilesCount(row, entries);
    if (path == m_currLogFilePath)
        m_totalFilesCanBeUndoFromLog = entries;
}

// Clearing the selection leaves the current log as it was: a log opened from disk has no row.
void UndoSheetController::selectionChanged()
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    const LogFileRecord& log = m_model->log(rows.first().row());
    setCurrentLog(log.path, log.filesCount);
    showEntriesStatus(log.filesCount);
}

void UndoSheetController::setCurrentLog(const QString& path, int entries)
{
    m_currLogFilePath = path;
    m_totalFilesCanBeUndoFromLog = entries;
    m_currentLogLabel->setFullText(path.isEmpty() ? QString() : localized("CURRENTLOG").arg(path));
    updateCommands();
}

// Opening a log is always offered; the rest act on the current log, and nothing but Cancel
// while an undo runs.
void UndoSheetController::updateCommands()
{
    const bool hasLog = !m_currLogFilePath.isEmpty();
    m_openButton->setEnabled(!m_isUndoing);
    for (QPushButton* button : { m_viewButton, m_deleteButton, m_undoButton })
        button->setEnabled(!m_isUndoing && hasLog);
    m_buttons->button(QDialogButtonBox::Close)->setEnabled(!m_isUndoing);
}

void UndoSheetController::showEntriesStatus(int entries)
{
    m_statusLabel->setText(localized("TOTALNOSRENAMEDITEMSFOUND").arg(formattedCount(entries)));
}

void UndoSheetController::updateCountLine()
{
    m_countLabel->setText(localized("TOTALLOGFILES").arg(formattedCount(m_model->rowCount())));
}

void UndoSheetController::setUndoing(bool undoing, const QString& status)
{
    m_isUndoing = undoing;
    m_table->setEnabled(!undoing);
    updateCommands();
    m_cancelButton->hide();
    m_cancelButton->setEnabled(true);
    // Busy until the worker says how far it has come.
    m_busyIndicator->setRange(0, 0);
    m_busyIndicator->setVisible(undoing);
    m_statusLabel->setText(status);
    if (!undoing)
        m_table->setFocus();
}

void UndoSheetController::showProgress(const Progress& progress)
{
    if (!m_isUndoing || progress.total <= 0)
        return;
    m_busyIndicator->setRange(0, progress.total);
    m_busyIndicator->setValue(progress.done);
}

void UndoSheetController::alert(Severity severity, const char* titleKey, const QString& message)
{
    m_context.prompter->alert(this, severity, { localized(titleKey), message });
}

void UndoSheetController::undoRenaming()
{
    if (m_isUndoing)
        return;
    if (m_currLogFilePath.isEmpty()) {
        alert(Severity::Warning, kTitleKey, localized("UNDOFILESFOLDERSNOLOGSELECTED"));
        return;
    }
    // A log that renamed nothing has nothing to give back: it only goes.
    if (m_totalFilesCanBeUndoFromLog <= 0) {
        removeCurrentLog();
        return;
    }
    setUndoing(true, localized("UNDOINGITEMS"));
    m_cancelButton->show();
    m_counter->cancel();
    m_context.status->startTiming();
    m_jobPath = m_currLogFilePath;
    m_summary = UndoSummary();
    connect(
        m_worker, &BackgroundJob::finished, this, &UndoSheetController::finishUndo, Qt::SingleShotConnection);
    m_worker->start([this, path = m_jobPath](const std::atomic_bool& cancel, ProgressObserver* progress) {
        m_summary = tavrin::undoRenaming(path, cancel, progress);
    });
}

void UndoSheetController::finishUndo()
{
    const bool done = m_summary.outcome == UndoOutcome::Done;
    setUndoing(false,
        done ? localized("ITEMSRESTORED").arg(formattedCount(m_summary.restored))
             : localized("TOTALNOSRENAMEDITEMSFOUND").arg(formattedCount(m_totalFilesCanBeUndoFromLog)));
    m_context.status->finishTiming("UNDOINGTIME");
    switch (m_summary.outcome) {
    case UndoOutcome::Done:
    case UndoOutcome::Cancelled:
        alert(Severity::Information, kTitleKey, undoSummaryText(m_summary));
        // The undo deleted the log unless that failed; then the row stays, as the file does.
        if (!QFileInfo::exists(m_jobPath))
            forgetLog(m_jobPath);
        else if (m_summary.logKept)
            showRemainingEntries(m_jobPath, m_summary.notRestored());
        break;
    case UndoOutcome::NotALog:
        alert(Severity::Warning, kTitleKey, localized("UNDOFILESFOLDERSINVALIDFILE"));
        break;
    case UndoOutcome::InUse:
        alert(Severity::Warning, kTitleKey, localized("UNDOFILESFOLDERSLOGINUSE"));
        break;
    }
    emit undoFinished();
}

void UndoSheetController::openLogFile()
{
    if (m_isUndoing)
        return;
    const QString path = m_context.prompter->choose(this, Prompter::Choice::LogFile,
        { localized("SELECTLOGFILETITLE").arg(localized("APPTITLE")), m_context.logFolder });
    if (path.isEmpty())
        return;
    setUndoing(true, localized("CHECKINGLOGFILE"));
    m_jobPath = path;
    m_checked = CheckedLog();
    connect(m_worker, &BackgroundJob::finished, this, &UndoSheetController::finishCheck,
        Qt::SingleShotConnection);
    m_worker->start(
        [this, path](const std::atomic_bool&, ProgressObserver*) { m_checked = tavrin::openLogFile(path); });
}

// A log of another version, or one at work elsewhere, changes nothing; one of this version
// becomes the current log, even without entries, so that Undo can clear it away.
void UndoSheetController::finishCheck()
{
    setUndoing(
        false, localized("TOTALNOSRENAMEDITEMSFOUND").arg(formattedCount(m_totalFilesCanBeUndoFromLog)));
    switch (m_checked.check) {
    case LogCheck::Incompatible:
        alert(Severity::Critical, kTitleKey, localized(m_checked.messageKey()));
        break;
    case LogCheck::InUse:
        alert(Severity::Warning, kTitleKey, localized(m_checked.messageKey()));
        break;
    case LogCheck::InvalidFile:
    case LogCheck::Ready:
        m_table->clearSelection();
        setCurrentLog(m_jobPath, m_checked.entries);
        showEntriesStatus(m_checked.entries);
        if (m_checked.check == LogCheck::InvalidFile)
            alert(Severity::Warning, kTitleKey, localized(m_checked.messageKey()));
        break;
    }
    emit checkFinished();
}

void UndoSheetController::deleteLogFile()
{
    if (m_isUndoing)
        return;
    if (m_currLogFilePath.isEmpty()) {
        alert(Severity::Warning, kTitleKey, localized("UNDOFILESFOLDERSNOLOGSELECTED"));
        return;
    }
    if (m_context.prompter->askYesNo(
            this, { localized(kTitleKey), localized("UNDOFILESFOLDERSDELETECONFIRM") }))
        removeCurrentLog();
}

void UndoSheetController::removeCurrentLog()
{
    const QString path = m_currLogFilePath;
    deleteLog(path);
    if (QFileInfo::exists(path))
        alert(Severity::Warning, kTitleKey, localized("LOGDELETEFAILED"));
    else
        forgetLog(path);
}

// The log at `path` is gone: it stops being current, and its row makes way for the next one
// (or the last, when it was last), which is selected and so becomes current.
void UndoSheetController::forgetLog(const QString& path)
{
    if (m_currLogFilePath == path)
        setCurrentLog(QString(), 0);
    const int row = m_model->rowOfPath(path);
    if (row >= 0)
        m_model->removeLog(row);
    m_table->clearSelection();
    showEntriesStatus(0);
    const int next = std::min(row, m_model->rowCount() - 1);
    if (row >= 0 && next >= 0)
        m_table->selectRow(next);
}

void UndoSheetController::viewLogFileContent()
{
    if (m_currLogFilePath.isEmpty()) {
        alert(Severity::Warning, "VIEWLOGFILETITLE", localized("VIEWLOGFILETITLEMESSAGE"));
        return;
    }
    if (!m_context.prompter->openWithDesktop(m_currLogFilePath))
        alert(Severity::Warning, "VIEWLOGFILETITLE", localized("VIEWLOGFAILED").arg(m_currLogFilePath));
}

void UndoSheetController::showHelp()
{
    const QString page = helpPageFile(QStringLiteral("undo.html"));
    if (page.isEmpty() || !m_context.prompter->openWithDesktop(page))
        alert(Severity::Warning, "HELP", helpUnavailableText(page));
}

void UndoSheetController::cancelUndo()
{
    m_cancelButton->setEnabled(false);
    m_statusLabel->setText(localized("CANCELLINGUNDO"));
    m_worker->cancel();
}

// Closing waits for a running undo, the sheet being the only place that reports how it
// ended; Esc then cancels it instead.
void UndoSheetController::reject()
{
    if (!m_isUndoing)
        QDialog::reject();
    else if (m_cancelButton->isVisible())
        cancelUndo();
}

} // namespace tavrin
