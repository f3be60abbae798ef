#include "gui/ui/Sheet.h"

#include "core/text/LocalizedStrings.h"

#include <QAction>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>

namespace tavrin {

namespace {

struct StandardButtonText {
    QDialogButtonBox::StandardButton button;
    const char* objectName;
    const char* textKey;
};

constexpr StandardButtonText kButtonTexts[] = {
    { QDialogButtonBox::Cancel, "cancelButton", "CANCEL" },
    { QDialogButtonBox::Close, "closeButton", "CLOSE" },
    { QDialogButtonBox::Save, "saveButton", "SAVE" },
};

} // namespace

Sheet::Sheet(const SheetName& name, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QString::fromLatin1(name.objectName));
    setWindowTitle(localized(name.titleKey));
    setWindowModality(Qt::WindowModal);
}

QDialogButtonBox* Sheet::createButtonBox(QDialogButtonBox::StandardButtons buttons)
{
    auto* box = new QDialogButtonBox(QDialogButtonBox::Help | buttons, this);
    QPushButton* help = box->button(QDialogButtonBox::Help);
    help->setObjectName(QStringLiteral("helpButton"));
    help->setText(localized("HELP"));
    help->setShortcut(QKeySequence::HelpContents);
    for (const StandardButtonText& text : kButtonTexts) {
        if (QPushButton* button = box->button(text.button)) {
            button->setObjectName(QString::fromLatin1(text.objectName));
            button->setText(localized(text.textKey));
        }
    }
    connect(box, &QDialogButtonBox::rejected, this, &Sheet::reject);
    connect(box, &QDialogButtonBox::helpRequested, this, &Sheet::helpRequested);
    return box;
}

QPushButton* Sheet::addDefaultButton(QDialogButtonBox* box, const SheetButton& button)
{
    QPushButton* added = box->addButton(localized(button.textKey), QDialogButtonBox::AcceptRole);
    added->setObjectName(QString::fromLatin1(button.objectName));
    if (button.toolTipKey)
        added->setToolTip(localized(button.toolTipKey));
    added->setDefault(true);
    return added;
}

void Sheet::setUpTable(QTableView* table, const TableSetUp& setUp)
{
    table->setModel(setUp.model);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(setUp.selection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->setTextElideMode(Qt::ElideMiddle);
    table->verticalHeader()->hide();
    // Fixed row heights spare the view from measuring every row of a long list.
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 8);
    table->horizontalHeader()->setHighlightSections(false);
    if (!setUp.deleteRows)
        return;
    auto* deleteAction = new QAction(table);
    deleteAction->setShortcut(QKeySequence::Delete);
    deleteAction->setShortcutContext(Qt::WidgetShortcut);
    connect(deleteAction, &QAction::triggered, table, setUp.deleteRows);
    table->addAction(deleteAction);
}

} // namespace tavrin
