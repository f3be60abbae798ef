#include "gui/app/TableContextMenus.h"

#include "core/list/FileSystemItem.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/WindowActions.h"
#include "gui/control/ListController.h"
#include "gui/control/RenameController.h"
#include "gui/control/SessionController.h"
#include "gui/list/FileTableModel.h"
#include "gui/ui/Prompter.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QSettings>
#include <QTableView>
#include <QVariantList>

namespace tavrin {

namespace {

bool canHide(int column)
{
    return column != FileTableModel::IconColumn && column != FileTableModel::NameColumn;
}

void copyToClipboard(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace

TableContextMenus::TableContextMenus(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
    QTableView* table = m_parts.table;
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table, &QWidget::customContextMenuRequested, this, &TableContextMenus::showRowMenu);
    QHeaderView* header = table->horizontalHeader();
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, &TableContextMenus::showHeaderMenu);
}

void TableContextMenus::showRowMenu(const QPoint& position)
{
    const QModelIndex index = m_parts.table->indexAt(position);
    const ListController& list = m_parts.rename->list();
    if (!index.isValid() || list.isExecuting() || index.row() >= list.shownCount())
        return;
    const FileSystemItem item = list.shownItems()[static_cast<size_t>(index.row())];
    QMenu menu(m_parts.table);
    menu.setObjectName(QStringLiteral("rowContextMenu"));
    menu.addAction(m_parts.actions->remove());
    menu.addAction(m_parts.actions->moveUp());
    menu.addAction(m_parts.actions->moveDown());
    menu.addSeparator();
    Prompter* prompter = m_prompter;
    QWidget* window = m_parts.table->window();
    menu.addAction(localized("OPENCONTAININGFOLDER"), [prompter, window, folder = item.fileLocation()] {
        if (prompter && !prompter->openWithDesktop(folder))
            prompter->warn(window, { localized("OPENCONTAININGFOLDER"), localized("VIEWLOGFAILED").arg(folder) });
    });
    menu.addAction(localized("COPYNAME"),
        [name = item.displayField(QString::fromLatin1(itemkeys::FilenameWithExtension))] { copyToClipboard(name); });
    QAction* copyNewName = menu.addAction(localized("COPYNEWNAME"),
        [name = item.displayField(QString::fromLatin1(itemkeys::NewFilename))] { copyToClipboard(name); });
    copyNewName->setEnabled(!item.hasStatus() && !item.newFilename().isEmpty());
    menu.exec(m_parts.table->viewport()->mapToGlobal(position));
}

void TableContextMenus::showHeaderMenu(const QPoint& position)
{
    QHeaderView* header = m_parts.table->horizontalHeader();
    QMenu menu(header);
    menu.setObjectName(QStringLiteral("headerContextMenu"));
    const QAbstractItemModel* model = m_parts.table->model();
    for (int column = 0; column < model->columnCount(); ++column) {
        if (!canHide(column))
            continue;
        QAction* toggle = menu.addAction(model->headerData(column, Qt::Horizontal).toString());
        toggle->setCheckable(true);
        toggle->setChecked(!m_parts.table->isColumnHidden(column));
        connect(toggle, &QAction::toggled, this, [this, column](bool shown) {
            m_parts.table->setColumnHidden(column, !shown);
            saveHiddenColumns();
        });
    }
    menu.exec(header->mapToGlobal(position));
}

void TableContextMenus::restoreHiddenColumns()
{
    const QVariantList hidden = m_parts.rename->session().userDefaults().value(QLatin1String(userdefaults::HiddenColumns)).toList();
    for (const QVariant& column : hidden) {
        const int number = column.toInt();
        if (canHide(number) && number < m_parts.table->model()->columnCount())
            m_parts.table->setColumnHidden(number, true);
    }
}

void TableContextMenus::saveHiddenColumns() const
{
    QVariantList hidden;
    for (int column = 0; column < m_parts.table->model()->columnCount(); ++column) {
        if (m_parts.table->isColumnHidden(column))
            hidden.append(column);
    }
    m_parts.rename->session().userDefaults().setValue(QLatin1String(userdefaults::HiddenColumns), hidden);
}

} // namespace tavrin
