#include "gui/list/PasteboardItemsSheet.h"

#include "core/list/FileList.h"
#include "core/text/LocalizedStrings.h"
#include "gui/control/BackgroundJob.h"
#include "gui/list/PastedItemsModel.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

namespace tavrin {

PasteboardItemsSheet::PasteboardItemsSheet(const QStringList& paths, const ListChoice& start, QWidget* parent)
    : Sheet({"pasteboardItemsSheet", "PASTEDITEMSTITLE"}, parent)
    , m_model(new PastedItemsModel(paths, this))
    , m_counter(std::make_unique<BackgroundJob>())
{
    auto* intro = new QLabel(localized("PASTEDITEMSINTRO"));
    intro->setWordWrap(true);
    m_countLabel = new QLabel;
    m_countLabel->setObjectName(QStringLiteral("pastedCountLabel"));
    m_removeButton = new QPushButton(localized("REMOVE"));
    m_removeButton->setObjectName(QStringLiteral("removeButton"));
    m_removeButton->setToolTip(localized("REMOVETOOLTIP"));
    m_removeButton->setAutoDefault(false);
    connect(m_removeButton, &QPushButton::clicked, this, &PasteboardItemsSheet::removeSelectedItems);

    auto* underTable = new QHBoxLayout;
    underTable->addWidget(m_countLabel, 1);
    underTable->addWidget(m_removeButton);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addWidget(createTable(), 1);
    layout->addLayout(underTable);
    layout->addSpacing(6);
    layout->addWidget(createOptions());
    m_addCountLabel = new QLabel;
    m_addCountLabel->setObjectName(QStringLiteral("addCountLabel"));
    layout->addWidget(m_addCountLabel);
    layout->addSpacing(6);
    layout->addWidget(createButtons());

    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &PasteboardItemsSheet::updateCountLine);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &PasteboardItemsSheet::updateButtons);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &PasteboardItemsSheet::updateButtons);
    m_foldersButton->setChecked(start.mode == ListMode::Folders);
    m_filesButton->setChecked(start.mode == ListMode::Files);
    m_includeSubFoldersBox->setChecked(start.includeSubFolders);
    connect(m_counter.get(), &BackgroundJob::finished, this, &PasteboardItemsSheet::finishCount);
    connect(m_filesButton, &QRadioButton::toggled, this, &PasteboardItemsSheet::countItemsToAdd);
    connect(m_includeSubFoldersBox, &QCheckBox::toggled, this, &PasteboardItemsSheet::countItemsToAdd);
    connect(m_model, &QAbstractItemModel::rowsRemoved, this, &PasteboardItemsSheet::countItemsToAdd);
    updateCountLine();
    updateButtons();
    countItemsToAdd();
    resize(640, 440);
    m_table->setFocus();
}

QTableView* PasteboardItemsSheet::createTable()
{
    m_table = new QTableView;
    m_table->setObjectName(QStringLiteral("pastedItemsTable"));
    setUpTable(m_table,
        {m_model, QAbstractItemView::ExtendedSelection, [this] { removeSelectedItems(); }});
    QHeaderView* header = m_table->horizontalHeader();
    header->setStretchLastSection(true);
    header->resizeSection(PastedItemsModel::NameColumn, header->fontMetrics().averageCharWidth() * 32);
    return m_table;
}

QWidget* PasteboardItemsSheet::createOptions()
{
    m_filesButton = new QRadioButton(localized("PASTEDRENAMEFILES"));
    m_filesButton->setObjectName(QStringLiteral("renameFilesButton"));
    m_filesButton->setToolTip(localized("PASTEDRENAMEFILESTOOLTIP"));
    m_foldersButton = new QRadioButton(localized("PASTEDRENAMEFOLDERS"));
    m_foldersButton->setObjectName(QStringLiteral("renameFoldersButton"));
    m_foldersButton->setToolTip(localized("PASTEDRENAMEFOLDERSTOOLTIP"));
    m_includeSubFoldersBox = new QCheckBox(localized("INCLUDESUBFOLDERS"));
    m_includeSubFoldersBox->setObjectName(QStringLiteral("includeSubFoldersBox"));
    m_includeSubFoldersBox->setToolTip(localized("INCLUDESUBFOLDERSTOOLTIP"));

    auto* options = new QWidget;
    auto* layout = new QHBoxLayout(options);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(m_filesButton);
    layout->addWidget(m_foldersButton);
    layout->addSpacing(12);
    layout->addWidget(m_includeSubFoldersBox);
    layout->addStretch(1);
    return options;
}

QDialogButtonBox* PasteboardItemsSheet::createButtons()
{
    QDialogButtonBox* box = createButtonBox(QDialogButtonBox::Cancel);
    m_addButton = addDefaultButton(box, {"addToListButton", "PASTEDADDTOLIST", "PASTEDADDTOLISTTOOLTIP"});
    connect(box, &QDialogButtonBox::accepted, this, &PasteboardItemsSheet::accept);
    return box;
}

PasteboardItemsSheet::~PasteboardItemsSheet() = default;

// One count at a time: a change of choice during a count stops it and counts again after.
void PasteboardItemsSheet::countItemsToAdd()
{
    if (m_counter->isRunning()) {
        m_recount = true;
        m_counter->cancel();
        return;
    }
    m_addCountLabel->setText(localized("PASTEDCOUNTING"));
    const QStringList items = paths();
    const ScanOptions options { isFolders(), isIncludeSubFolders(), false };
    m_counter->start([this, items, options](const std::atomic_bool& cancel, ProgressObserver*) {
        FileList scratch;
        scratch.addFiles(items, options, cancel);
        m_counted = scratch.size();
    });
}

void PasteboardItemsSheet::finishCount()
{
    if (m_recount) {
        m_recount = false;
        countItemsToAdd();
        return;
    }
    m_addCountLabel->setText(localized(isFolders() ? "PASTEDWOULDADDFOLDERS" : "PASTEDWOULDADDFILES")
                                 .arg(QLocale().toString(m_counted)));
}

QStringList PasteboardItemsSheet::paths() const
{
    return m_model->paths();
}

bool PasteboardItemsSheet::isFolders() const
{
    return m_foldersButton->isChecked();
}

bool PasteboardItemsSheet::isIncludeSubFolders() const
{
    return m_includeSubFoldersBox->isChecked();
}

// Removed from the bottom up, a run of adjacent rows at a time, so the rows still to go keep
// their numbers; the row after the first one removed is selected, so Delete can go on.
void PasteboardItemsSheet::removeSelectedItems()
{
    QList<int> rows;
    for (const QModelIndex& index : m_table->selectionModel()->selectedRows())
        rows.append(index.row());
    if (rows.isEmpty())
        return;
    std::sort(rows.begin(), rows.end(), std::greater<int>());
    // rows[runStart] is the bottom row of a run, rows[runEnd] its top.
    for (qsizetype runStart = 0; runStart < rows.size();) {
        qsizetype runEnd = runStart;
        while (runEnd + 1 < rows.size() && rows[runEnd + 1] == rows[runEnd] - 1)
            ++runEnd;
        m_model->removeRows(rows[runEnd], int(runEnd - runStart + 1));
        runStart = runEnd + 1;
    }
    const int next = std::min(rows.constLast(), m_model->rowCount() - 1);
    if (next >= 0)
        m_table->selectRow(next);
}

void PasteboardItemsSheet::updateCountLine()
{
    const QLocale locale;
    m_countLabel->setText(
        localized("PASTEDITEMSCOUNT")
            .arg(locale.toString(m_model->rowCount()), locale.toString(m_model->fileCount()),
                locale.toString(m_model->folderCount())));
}

void PasteboardItemsSheet::updateButtons()
{
    m_removeButton->setEnabled(m_table->selectionModel()->hasSelection());
    m_addButton->setEnabled(m_model->rowCount() > 0);
}

} // namespace tavrin
