#include "gui/metadata/PhotoRenamingMaskEditor.h"

#include "core/metadata/MetaDataCatalogue.h"
#include "core/text/LocalizedStrings.h"
#include "gui/metadata/FieldTexts.h"

#include <QDialogButtonBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tavrin {

namespace {

// Outline items of fields carry their place in the catalogue; categories carry none.
constexpr int kFieldRole = Qt::UserRole;

enum Column { LabelColumn, CategoryColumn, TokenColumn, ColumnCount };

// The outline hands its fields over as an archive; categories cannot be dragged.
class FieldOutline final : public QTreeWidget {
public:
    explicit FieldOutline(const QList<MetaDataField>& catalogueFields)
        : m_catalogueFields(catalogueFields)
    {
    }

protected:
    QStringList mimeTypes() const override { return { QString::fromLatin1(PhotoRenamingMaskEditor::FieldsMimeType) }; }

    QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override
    {
        QList<MetaDataField> fields;
        for (const QTreeWidgetItem* item : items) {
            const QVariant index = item->data(0, kFieldRole);
            if (index.isValid())
                fields.append(m_catalogueFields.at(index.toInt()));
        }
        if (fields.isEmpty())
            return nullptr;
        auto* dragged = new QMimeData;
        dragged->setData(QString::fromLatin1(PhotoRenamingMaskEditor::FieldsMimeType), archiveMetaDataFields(fields));
        return dragged;
    }

private:
    const QList<MetaDataField>& m_catalogueFields;
};

// The picked list takes drops of fields only; the editor decides where they go.
class PickedTable final : public QTableWidget {
public:
    PickedTable(PhotoRenamingMaskEditor* editor)
        : QTableWidget(0, ColumnCount)
        , m_editor(editor)
    {
        setDragDropMode(QAbstractItemView::DropOnly);
        viewport()->setAcceptDrops(true);
    }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override { acceptFields(event); }
    void dragMoveEvent(QDragMoveEvent* event) override { acceptFields(event); }

    void dropEvent(QDropEvent* event) override
    {
        const auto fields = unarchiveMetaDataFields(
            event->mimeData()->data(QString::fromLatin1(PhotoRenamingMaskEditor::FieldsMimeType)));
        if (!fields || fields->isEmpty()) {
            event->ignore();
            return;
        }
        m_editor->insertField(fields->last(), rowAt(event->position().toPoint().y()));
        event->acceptProposedAction();
    }

private:
    void acceptFields(QDropEvent* event)
    {
        if (event->mimeData()->hasFormat(QString::fromLatin1(PhotoRenamingMaskEditor::FieldsMimeType)))
            event->acceptProposedAction();
        else
            event->ignore();
    }

    PhotoRenamingMaskEditor* m_editor;
};

QList<MetaDataField> allFields(const MetaDataCatalogue& catalogue)
{
    QList<MetaDataField> fields;
    for (const MetaDataCategory& category : catalogue.metaDataList())
        fields.append(category.fields);
    return fields;
}

QPushButton* button(const char* objectName, const char* textKey)
{
    auto* made = new QPushButton(localized(textKey));
    made->setObjectName(QString::fromLatin1(objectName));
    return made;
}

} // namespace

PhotoRenamingMaskEditor::PhotoRenamingMaskEditor(
    const MetaDataCatalogue& catalogue, const QList<MetaDataField>& picked, QWidget* parent)
    : QDialog(parent)
    , m_catalogueFields(allFields(catalogue))
    , m_fields(picked)
{
    setObjectName(QStringLiteral("photoRenamingMaskEditor"));
    setWindowTitle(localized("MASKEDITORTITLE"));
    setWindowModality(Qt::WindowModal);

    auto* split = new QSplitter(Qt::Horizontal);
    split->setObjectName(QStringLiteral("maskEditorSplit"));
    split->setChildrenCollapsible(false);
    split->addWidget(makeOutlinePane(catalogue));
    split->addWidget(makePickedPane());
    split->setStretchFactor(1, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(localized("OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(localized("CANCEL"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(split, 1);
    layout->addWidget(buttons);
    reloadTable();
    showListChanged(0);
    resize(720, 420);
}

QWidget* PhotoRenamingMaskEditor::makeOutlinePane(const MetaDataCatalogue& catalogue)
{
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("maskEditorSearch"));
    m_search->setPlaceholderText(localized("MASKEDITORSEARCH"));
    m_search->setAccessibleName(localized("MASKEDITORSEARCH"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, this, &PhotoRenamingMaskEditor::filterItems);
    m_search->installEventFilter(this);

    m_outline = new FieldOutline(m_catalogueFields);
    m_outline->setObjectName(QStringLiteral("maskEditorOutline"));
    m_outline->setHeaderLabel(localized("MASKEDITORCATALOGUE"));
    m_outline->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_outline->setDragEnabled(true);
    m_outline->setDragDropMode(QAbstractItemView::DragOnly);
    m_outline->setDefaultDropAction(Qt::MoveAction);
    int index = 0;
    for (const MetaDataCategory& category : catalogue.metaDataList()) {
        auto* categoryItem = new QTreeWidgetItem(m_outline, { shownFieldText(category.name) });
        categoryItem->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        for (const MetaDataField& field : category.fields) {
            auto* fieldItem = new QTreeWidgetItem(categoryItem, { shownFieldText(field.label()) });
            fieldItem->setData(0, kFieldRole, index++);
            fieldItem->setToolTip(0, field.tagCode());
            fieldItem->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
        }
    }
    connect(m_outline, &QTreeWidget::itemDoubleClicked, this, &PhotoRenamingMaskEditor::doubleClickOutline);
    m_outline->installEventFilter(this);

    auto* pane = new QWidget;
    pane->setMinimumWidth(SmallestPaneWidth);
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search);
    layout->addWidget(m_outline, 1);
    return pane;
}

QWidget* PhotoRenamingMaskEditor::makePickedPane()
{
    m_table = new PickedTable(this);
    m_table->setObjectName(QStringLiteral("maskEditorFields"));
    m_table->setHorizontalHeaderLabels(
        { localized("MASKEDITORLABEL"), localized("MASKEDITORCATEGORY"), localized("MASKEDITORTOKEN") });
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->installEventFilter(this);
    connect(m_table, &QTableWidget::cellDoubleClicked, this, &PhotoRenamingMaskEditor::doubleClickTable);
    connect(m_table, &QTableWidget::itemSelectionChanged, this, &PhotoRenamingMaskEditor::updateButtons);

    m_moveUp = button("maskEditorMoveUp", "MASKEDITORMOVEUP");
    m_moveDown = button("maskEditorMoveDown", "MASKEDITORMOVEDOWN");
    m_clear = button("maskEditorClear", "MASKEDITORCLEAR");
    connect(m_moveUp, &QPushButton::clicked, this, &PhotoRenamingMaskEditor::moveUp);
    connect(m_moveDown, &QPushButton::clicked, this, &PhotoRenamingMaskEditor::moveDown);
    connect(m_clear, &QPushButton::clicked, this, &PhotoRenamingMaskEditor::clearSelected);

    auto* pane = new QWidget;
    pane->setMinimumWidth(SmallestPaneWidth);
    auto* layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* heading = new QLabel(localized("MASKEDITORPICKED"));
    heading->setBuddy(m_table);
    layout->addWidget(heading);
    layout->addWidget(m_table, 1);
    auto* row = new QHBoxLayout;
    row->addWidget(m_moveUp);
    row->addWidget(m_moveDown);
    row->addStretch(1);
    row->addWidget(m_clear);
    layout->addLayout(row);
    return pane;
}

const MetaDataField* PhotoRenamingMaskEditor::selectedOutlineField() const
{
    const QTreeWidgetItem* item = m_outline->currentItem();
    if (!item || !item->isSelected() || !item->data(0, kFieldRole).isValid())
        return nullptr;
    return &m_catalogueFields.at(item->data(0, kFieldRole).toInt());
}

int PhotoRenamingMaskEditor::selectedRow() const
{
    return m_table->selectionModel()->hasSelection() ? m_table->currentRow() : -1;
}

// Before the selected field from the second one on; otherwise at the end, and then the
// selection goes to the first row, not to the added field.
void PhotoRenamingMaskEditor::doubleClickOutline()
{
    const MetaDataField* field = selectedOutlineField();
    if (!field)
        return;
    const int row = selectedRow();
    if (row < 1) {
        m_fields.append(*field);
        reloadTable();
        showListChanged(0);
        return;
    }
    insertField(*field, row);
}

void PhotoRenamingMaskEditor::insertField(const MetaDataField& field, int row)
{
    if (row < 0 || row > m_fields.size())
        row = int(m_fields.size());
    m_fields.insert(row, field);
    reloadTable();
    showListChanged(row);
}

void PhotoRenamingMaskEditor::doubleClickTable()
{
    const int row = selectedRow();
    if (row < 0 || row >= m_fields.size())
        return;
    m_fields.removeAt(row);
    reloadTable();
    showListChanged(row);
}

void PhotoRenamingMaskEditor::moveUp()
{
    moveSelected(-1);
}

void PhotoRenamingMaskEditor::moveDown()
{
    moveSelected(1);
}

void PhotoRenamingMaskEditor::moveSelected(int offset)
{
    const int row = selectedRow();
    const int target = row + offset;
    if (row < 0 || target < 0 || target >= m_fields.size())
        return;
    m_fields.move(row, target);
    reloadTable();
    m_table->selectRow(target);
    updateButtons();
}

void PhotoRenamingMaskEditor::clearSelected()
{
    const int row = selectedRow();
    if (row >= 0 && row < m_fields.size())
        m_fields.removeAt(row);
    reloadTable();
    showListChanged(0);
}

bool PhotoRenamingMaskEditor::filterItems(const QString& text)
{
    m_searchFound = false;
    if (text.isEmpty())
        return false;
    m_outline->clearSelection();
    for (int top = 0; top < m_outline->topLevelItemCount(); ++top) {
        QTreeWidgetItem* category = m_outline->topLevelItem(top);
        for (int child = 0; child < category->childCount(); ++child) {
            QTreeWidgetItem* item = category->child(child);
            if (!item->text(0).contains(text, Qt::CaseInsensitive))
                continue;
            m_searchFound = true;
            m_outline->collapseAll();
            category->setExpanded(true);
            m_outline->setCurrentItem(item);
            m_outline->scrollToItem(item);
            return true;
        }
    }
    return false;
}

void PhotoRenamingMaskEditor::searchReturn()
{
    if (!m_searchFound)
        return;
    doubleClickOutline();
    m_searchFound = false;
}

bool PhotoRenamingMaskEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
        // The search field keeps Return, so that it never reaches OK.
        if (watched == m_search && isReturn) {
            searchReturn();
            return true;
        }
        if (watched == m_outline && isReturn) {
            doubleClickOutline();
            return true;
        }
        if (watched == m_table && (key == Qt::Key_Delete || key == Qt::Key_Backspace)) {
            doubleClickTable();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void PhotoRenamingMaskEditor::reloadTable()
{
    const QSignalBlocker block(m_table);
    m_table->clearContents();
    m_table->setRowCount(int(m_fields.size()));
    for (int row = 0; row < m_fields.size(); ++row) {
        const MetaDataField& field = m_fields.at(row);
        m_table->setItem(row, LabelColumn, new QTableWidgetItem(shownFieldText(field.label())));
        m_table->setItem(row, CategoryColumn, new QTableWidgetItem(shownFieldText(field.prefix())));
        m_table->setItem(row, TokenColumn, new QTableWidgetItem(field.tagCode()));
    }
}

void PhotoRenamingMaskEditor::showListChanged(int selectRow)
{
    m_table->setEnabled(!m_fields.isEmpty());
    m_table->clearSelection();
    if (!m_fields.isEmpty())
        m_table->selectRow(qBound(0, selectRow, int(m_fields.size()) - 1));
    updateButtons();
}

void PhotoRenamingMaskEditor::updateButtons()
{
    const int count = int(m_fields.size());
    const int row = selectedRow();
    m_moveUp->setEnabled(count >= 2 && row >= 1);
    m_moveDown->setEnabled(count >= 2 && row >= 0 && row < count - 1);
    m_clear->setEnabled(count >= 1);
}

} // namespace tavrin
