#include "gui/rules/RulesCommands.h"

#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "gui/app/TavrinAppController.h"
#include "gui/app/WindowSheets.h"
#include "gui/engine/RenamePanel.h"
#include "gui/rules/RulesDrawer.h"

#include <QAction>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>

namespace tavrin {

RulesCommands::RulesCommands(const RulesWindowParts& parts, QMainWindow* window)
    : QObject(window)
    , m_parts(parts)
    , m_window(window)
    , m_drawer(new RulesDrawer(parts.controller, window))
{
    window->addDockWidget(Qt::RightDockWidgetArea, m_drawer);
    m_drawer->hide();
    createMenu();
    connect(m_drawer, &QDockWidget::visibilityChanged, this, &RulesCommands::drawerVisibilityChanged);
    connect(m_drawer, &RulesDrawer::helpRequested, this, [this] { m_parts.sheets->showHelpPage(QStringLiteral("rules.html")); });
    connect(parts.sheets, &WindowSheets::rulePreviewRequested, this, &RulesCommands::previewRule);
    connect(&parts.controller->list(), &ListController::executingChanged, this,
        [this](bool executing) { m_addToRule->setEnabled(!executing); });
    drawerVisibilityChanged();
}

void RulesCommands::setPrompter(Prompter* prompter)
{
    m_drawer->setPrompter(prompter);
}

void RulesCommands::createMenu()
{
    m_menu = new QMenu(localized("RULESMENU"), m_window);
    m_menu->setObjectName(QStringLiteral("rulesMenu"));
    m_menu->setToolTipsVisible(true);
    m_toggleDrawer = m_menu->addAction(localized("SHOWRULES"), this, &RulesCommands::actionToggleRulesDrawer);
    m_toggleDrawer->setObjectName(QStringLiteral("toggleRulesDrawerAction"));
    m_toggleDrawer->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R));
    m_addToRule = m_menu->addAction(localized("ADDTORULEACTION"), this, [this] {
        showDrawer();
        m_drawer->addToRule();
    });
    m_addToRule->setObjectName(QStringLiteral("addToRuleAction"));
    m_addToRule->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A));
    m_rulesSheet = m_menu->addAction(localized("RULESSHEET"), m_parts.sheets, &WindowSheets::openRulesSheet);
    m_rulesSheet->setObjectName(QStringLiteral("rulesSheetAction"));
    m_libraryStart = m_menu->addSeparator();
    connect(m_menu, &QMenu::aboutToShow, this, &RulesCommands::loadRulesMenu);
    // The shortcuts work while the menu is closed.
    m_window->addActions({ m_toggleDrawer, m_addToRule });
}

// The rule files of the rules folder, read again each time, so that files saved or copied
// there since show up.
void RulesCommands::loadRulesMenu()
{
    const QList<QAction*> actions = m_menu->actions();
    for (qsizetype index = actions.indexOf(m_libraryStart) + 1; index < actions.size(); ++index) {
        m_menu->removeAction(actions[index]);
        actions[index]->deleteLater();
    }
    const QStringList names = m_parts.controller->rules().libraryRuleNames();
    if (names.isEmpty())
        m_menu->addAction(localized("NORULEFILES"))->setEnabled(false);
    const QIcon icon(QStringLiteral(":/icons/TavrinRule.svg"));
    for (const QString& name : names) {
        QAction* item = m_menu->addAction(icon, splitNameAndExtension(name).name);
        item->setToolTip(name);
        connect(item, &QAction::triggered, this, [this, name] { ruleMenuItemClick(name); });
    }
}

void RulesCommands::ruleMenuItemClick(const QString& fileName)
{
    if (m_parts.controller->list().isExecuting())
        return;
    m_parts.controller->rules().openLibraryRule(fileName);
    m_window->raise();
    m_window->activateWindow();
    showDrawer();
    m_drawer->resetData(true);
}

void RulesCommands::actionToggleRulesDrawer()
{
    if (m_drawer->isHidden())
        showDrawer();
    else
        m_drawer->hide();
}

void RulesCommands::showDrawer()
{
    m_drawer->show();
    m_drawer->raise();
}

void RulesCommands::drawerVisibilityChanged()
{
    const bool shown = !m_drawer->isHidden();
    m_toggleDrawer->setText(localized(shown ? "HIDERULES" : "SHOWRULES"));
    m_parts.controller->session().setRulesShown(shown);
}

void RulesCommands::previewRule()
{
    showDrawer();
    m_drawer->resetData(true);
    m_parts.renamePanel->actionPreview();
}

} // namespace tavrin
