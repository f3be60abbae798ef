#pragma once

#include <QObject>

class QPoint;
class QTableView;

namespace tavrin {

class Prompter;
class RenameController;
class WindowActions;

// The context menus of the file table. On a row: remove, move, open the containing folder,
// copy the name or the new name. On the header: show or hide each column, kept between runs.
class TableContextMenus : public QObject {
    Q_OBJECT

public:
    struct Parts {
        QTableView* table;
        const WindowActions* actions;
        RenameController* rename;
    };

    explicit TableContextMenus(const Parts& parts, QObject* parent = nullptr);

    void setPrompter(Prompter* prompter) { m_prompter = prompter; }

    // The columns hidden at the last quit; the icon and name columns never hide.
    void restoreHiddenColumns();

private:
    void showRowMenu(const QPoint& position);
    void showHeaderMenu(const QPoint& position);
    void saveHiddenColumns() const;

    Parts m_parts;
    Prompter* m_prompter = nullptr;
};

} // namespace tavrin
