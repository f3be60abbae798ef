#include "gui/list/FileTableModel.h"

#include "core/list/FileSystemItem.h"
#include "core/list/StatusTexts.h"
#include "core/text/LocalizedStrings.h"
#include "gui/control/ListController.h"
#include "gui/ui/ThumbnailPreview.h"

#include <QFont>
#include <iterator>

namespace tavrin {

namespace {

struct ColumnInfo {
    const char* key;
    const char* titleKey;
};

// In the order of FileTableModel::Column.
constexpr ColumnInfo kColumns[] = {
    {itemkeys::Icon, nullptr},
    {itemkeys::FilenameWithExtension, "NAMECOLUMN"},
    {itemkeys::NewFilename, "NEWNAMECOLUMN"},
    {itemkeys::FileLocation, "LOCATIONCOLUMN"},
    {itemkeys::FileExtension, "EXTENSIONCOLUMN"},
    {itemkeys::FileType, "TYPECOLUMN"},
};
static_assert(std::size(kColumns) == FileTableModel::ColumnCount);

bool isValidColumn(int column)
{
    return column >= 0 && column < FileTableModel::ColumnCount;
}

}  // namespace

FileTableModel::FileTableModel(ListController* list, QObject* parent)
    : QAbstractTableModel(parent)
    , m_list(list)
{
    connect(list, &ListController::listAboutToChange, this, &FileTableModel::beginResetModel);
    connect(list, &ListController::listChanged, this, &FileTableModel::endResetModel);
    connect(list, &ListController::orderAboutToChange, this, [this] { emit layoutAboutToBeChanged(); });
    connect(list, &ListController::orderChanged, this, [this] { emit layoutChanged(); });
    connect(list, &ListController::namesChanged, this, [this] {
        if (rowCount() > 0)
            emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    });
}

int FileTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_list->shownCount();
}

int FileTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString FileTableModel::columnKey(int column)
{
    return isValidColumn(column) ? QString::fromLatin1(kColumns[column].key) : QString();
}

int FileTableModel::columnOfKey(const QString& key)
{
    for (int column = 0; column < ColumnCount; ++column) {
        if (key == QLatin1String(kColumns[column].key))
            return column;
    }
    return -1;
}

bool FileTableModel::isSortableColumn(int column)
{
    return isValidColumn(column) && column != IconColumn;
}

QVariant FileTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const FileSystemItem& item = m_list->shownItems()[static_cast<size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == IconColumn ? QVariant() : QVariant(displayText(index));
    case Qt::DecorationRole:
        return index.column() == IconColumn ? QVariant(m_icons.icon(item)) : QVariant();
    case Qt::ToolTipRole:
        return toolTip(item);
    case ThumbnailPreview::PathRole:
        return item.fullPath();
    case Qt::FontRole:
        if (index.column() == NewNameColumn && item.hasStatus()) {
            QFont font;
            font.setItalic(true);
            return font;
        }
        return {};
    default:
        return {};
    }
}

namespace {

// Why a row cannot be renamed, for its tooltip; none for a row that can.
const char* reasonKey(const FileSystemItem& item)
{
    switch (item.status()) {
    case RenameStatus::NoChanges:
        return "NOCHANGESTOOLTIP";
    case RenameStatus::FileAlreadyExists:
    case RenameStatus::FolderAlreadyExists:
        return "ALREADYEXISTSTOOLTIP";
    case RenameStatus::FileNotFound:
    case RenameStatus::FolderNotFound:
        return "NOTFOUNDTOOLTIP";
    case RenameStatus::None:
    case RenameStatus::RenamingOk:
        break;
    }
    return item.isConflict() ? "CONFLICTTOOLTIP" : nullptr;
}

// The status in the user's language; the record, the log and the CLI keep the English text.
const char* statusKey(RenameStatus status)
{
    switch (status) {
    case RenameStatus::NoChanges:
        return "STATUSNOCHANGES";
    case RenameStatus::FileAlreadyExists:
        return "STATUSFILEALREADYEXISTS";
    case RenameStatus::FolderAlreadyExists:
        return "STATUSFOLDERALREADYEXISTS";
    case RenameStatus::FileNotFound:
        return "STATUSFILENOTFOUND";
    case RenameStatus::FolderNotFound:
        return "STATUSFOLDERNOTFOUND";
    case RenameStatus::RenamingOk:
        return "STATUSRENAMINGOK";
    case RenameStatus::None:
        break;
    }
    return nullptr;
}

} // namespace

// The item's path, and why it cannot be renamed when it cannot.
QString FileTableModel::toolTip(const FileSystemItem& item)
{
    const QString path = getDisplayFilePath(item.fullPath());
    const char* reason = reasonKey(item);
    return reason ? path + QLatin1Char('\n') + localized(reason) : path;
}

QString FileTableModel::displayText(const QModelIndex& index) const
{
    const FileSystemItem& item = m_list->shownItems()[static_cast<size_t>(index.row())];
    const int column = index.column();
    if (column == NewNameColumn && item.hasStatus())
        return localized(statusKey(item.status()));
    const QString text = item.displayField(columnKey(column));
    // The record answers the type as a string-table key ("FILE", "FOLDER").
    if (column == TypeColumn && !text.isEmpty())
        return LocalizedStrings::text(text);
    return text;
}

QVariant FileTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || !isValidColumn(section))
        return {};
    if (role == Qt::DisplayRole && kColumns[section].titleKey)
        return localized(kColumns[section].titleKey);
    if (role == Qt::InitialSortOrderRole)
        return static_cast<int>(Qt::AscendingOrder);
    return {};
}

void FileTableModel::sort(int column, Qt::SortOrder order)
{
    if (!isSortableColumn(column))
        return;
    m_list->sort({columnKey(column), order == Qt::AscendingOrder});
}

}  // namespace tavrin
