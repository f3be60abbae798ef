#include "gui/rules/RulesDrawer.h"

#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/TavrinAppController.h"
#include "gui/rules/RuleTableModel.h"
#include "gui/ui/Prompter.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QIcon>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

namespace tavrin {

namespace {

QString withAppTitle(const char* key)
{
    return localized(key).arg(localized("APPTITLE"));
}

} // namespace

RulesDrawer::RulesDrawer(TavrinAppController* controller, QWidget* parent)
    : QDockWidget(localized("RULESDRAWERTITLE"), parent)
    , m_controller(controller)
    , m_model(new RuleTableModel(controller->rules(), controller->session(), this))
    , m_table(new QTableView)
{
    setObjectName(QStringLiteral("rulesDrawer"));
    setFeatures(QDockWidget::DockWidgetClosable);
    m_table->setObjectName(QStringLiteral("ruleTableView"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 8);
    m_table->horizontalHeader()->setSectionResizeMode(RuleTableModel::ActiveColumn, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setStretchLastSection(true);

    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(6, 0, 6, 6);
    layout->addWidget(m_table, 1);
    layout->addWidget(createButtons());
    setWidget(content);
    connectController();
    updateButtonsForRowCount();
    tabChanged(controller->settings().selectedTab());
}

QPushButton* RulesDrawer::addButton(const char* objectName, const char* textKey, const char* toolTipKey)
{
    auto* button = new QPushButton(localized(textKey));
    button->setObjectName(QString::fromLatin1(objectName));
    button->setToolTip(localized(toolTipKey));
    button->setAutoDefault(false);
    return button;
}

QWidget* RulesDrawer::createButtons()
{
    m_addButton = addButton("addButton", "ADDTORULE", "ADDTORULETOOLTIP");
    m_updateButton = addButton("updateRuleButton", "UPDATERULE", "UPDATERULETOOLTIP");
    m_clearButton = addButton("clearButton", "CLEARRULE", "CLEARRULETOOLTIP");
    m_clearAllButton = addButton("clearAllButton", "CLEARALLRULES", "CLEARALLRULESTOOLTIP");
    m_moveUp = addButton("moveUp", "MOVERULEUP", "MOVERULEUPTOOLTIP");
    m_moveDown = addButton("moveDown", "MOVERULEDOWN", "MOVERULEDOWNTOOLTIP");
    m_openButton = addButton("openRuleButton", "OPENRULE", "OPENRULETOOLTIP");
    m_saveButton = addButton("saveRuleButton", "SAVERULE", "SAVERULETOOLTIP");
    m_moveUp->setIcon(QIcon::fromTheme(QStringLiteral("go-up")));
    m_moveDown->setIcon(QIcon::fromTheme(QStringLiteral("go-down")));
    auto* help = new QPushButton(localized("HELP"));
    help->setObjectName(QStringLiteral("rulesHelpButton"));
    help->setAutoDefault(false);

    auto* buttons = new QWidget;
    auto* grid = new QGridLayout(buttons);
    grid->setContentsMargins(0, 0, 0, 0);
    const QList<QPushButton*> order
        = { m_addButton, m_updateButton, m_clearButton, m_clearAllButton, m_moveUp, m_moveDown, m_openButton, m_saveButton };
    for (int index = 0; index < order.size(); ++index)
        grid->addWidget(order[index], index / 2, index % 2);
    grid->addWidget(help, int(order.size()) / 2, 1);

    connect(m_addButton, &QPushButton::clicked, this, &RulesDrawer::addToRule);
    connect(m_updateButton, &QPushButton::clicked, this, &RulesDrawer::updateRule);
    connect(m_clearButton, &QPushButton::clicked, this, &RulesDrawer::clearSelected);
    connect(m_clearAllButton, &QPushButton::clicked, this, &RulesDrawer::clearAll);
    connect(m_moveUp, &QPushButton::clicked, this, &RulesDrawer::moveUp);
    connect(m_moveDown, &QPushButton::clicked, this, &RulesDrawer::moveDown);
    connect(m_openButton, &QPushButton::clicked, this, &RulesDrawer::openRule);
    connect(m_saveButton, &QPushButton::clicked, this, &RulesDrawer::saveRule);
    connect(help, &QPushButton::clicked, this, &RulesDrawer::helpRequested);
    return buttons;
}

void RulesDrawer::connectController()
{
    connect(m_model, &QAbstractItemModel::modelReset, this, &RulesDrawer::modelWasReset);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const QModelIndexList rows = m_table->selectionModel()->selectedRows();
        rowChosen(rows.isEmpty() ? -1 : rows.first().row());
    });
    // A click on the step already selected loads it again.
    connect(m_table, &QTableView::clicked, this, [this](const QModelIndex& index) { rowChosen(index.row()); });
    connect(&m_controller->settings(), &Settings::selectedTabChanged, this,
        [this] { tabChanged(m_controller->settings().selectedTab()); });
    connect(&m_controller->list(), &ListController::executingChanged, this, &RulesDrawer::setIsExecuting);
    // A profile replaces the options: no step stands for them any more.
    connect(&m_controller->session(), &SessionController::currentSettingsApplied, this, [this] {
        m_row = -1;
        selectSilently(-1);
        rowChosen(-1);
        tabChanged(m_controller->settings().selectedTab());
    });
}

void RulesDrawer::resetData(bool selectTopRow)
{
    const int count = m_model->rowCount();
    m_row = count == 0 ? -1 : (selectTopRow ? 0 : count - 1);
    selectSilently(m_row);
    updateButtonsForRowCount();
    m_table->setFocus();
}

void RulesDrawer::modelWasReset()
{
    int row = m_pendingRow.value_or(m_row);
    m_pendingRow.reset();
    if (row >= m_model->rowCount())
        row = -1;
    m_row = row;
    selectSilently(row);
    updateButtonsForRowCount();
}

// The selection the drawer makes itself loads no step into the tabs.
void RulesDrawer::selectSilently(int row)
{
    QItemSelectionModel* selection = m_table->selectionModel();
    const QSignalBlocker blocker(selection);
    if (row < 0) {
        selection->clear();
    } else {
        const QModelIndex index = m_model->index(row, RuleTableModel::ActionColumn);
        selection->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    m_table->viewport()->update();
}

// When the rows are counted again, the first step does not count as selected for clear and
// update until it is chosen again.
void RulesDrawer::updateButtonsForRowCount()
{
    if (m_controller->list().isExecuting())
        return;
    const bool hasSteps = m_model->rowCount() > 0;
    updateMoveButtons();
    m_saveButton->setEnabled(hasSteps);
    m_clearAllButton->setEnabled(hasSteps);
    m_clearButton->setEnabled(m_row > 0);
    m_updateButton->setEnabled(m_row > 0);
}

void RulesDrawer::updateMoveButtons()
{
    const int count = m_model->rowCount();
    m_moveUp->setEnabled(count > 1 && m_row >= 1);
    m_moveDown->setEnabled(count > 1 && m_row >= 0 && m_row < count - 1);
}

void RulesDrawer::rowChosen(int row)
{
    m_row = row;
    updateMoveButtons();
    m_clearButton->setEnabled(row >= 0);
    m_updateButton->setEnabled(row >= 0);
    if (row >= 0)
        m_controller->rules().setRule(row);
}

void RulesDrawer::tabChanged(int tab)
{
    if (!m_controller->list().isExecuting())
        m_addButton->setEnabled(tab != tabs::FromFile);
}

void RulesDrawer::setIsExecuting(bool executing)
{
    if (executing) {
        m_statesBeforeJob.clear();
        for (QWidget* control : std::initializer_list<QWidget*> { m_table, m_addButton, m_clearButton, m_clearAllButton,
                 m_openButton, m_saveButton, m_updateButton, m_moveUp, m_moveDown }) {
            m_statesBeforeJob.append({ control, control->isEnabled() });
            control->setEnabled(false);
        }
        return;
    }
    for (const auto& [control, enabled] : std::as_const(m_statesBeforeJob))
        control->setEnabled(enabled);
    m_statesBeforeJob.clear();
}

void RulesDrawer::addToRule()
{
    m_pendingRow = m_model->rowCount();
    const AddToRuleOutcome outcome = m_controller->rules().addToRule();
    if (outcome.built.failure)
        m_prompter->warn(window(), { outcome.built.failure->title(), outcome.built.failure->message() });
    if (!outcome.handled)
        m_prompter->warn(window(), { localized("RULESETTINGSFILETITLE"), localized("UNABLETOADDRULE") });
    m_pendingRow.reset();
    m_table->setFocus();
}

void RulesDrawer::updateRule()
{
    m_pendingRow = m_row;
    m_controller->rules().updateRule(m_row);
    m_pendingRow.reset();
}

void RulesDrawer::clearSelected()
{
    m_pendingRow = m_row > 0 ? m_row - 1 : 0;
    m_controller->rules().clearSelected(m_row);
    m_pendingRow.reset();
}

void RulesDrawer::clearAll()
{
    m_pendingRow = -1;
    m_controller->rules().clearAll();
    m_pendingRow.reset();
}

void RulesDrawer::moveUp()
{
    m_pendingRow = m_row - 1;
    m_controller->rules().moveUp(m_row);
    m_pendingRow.reset();
}

void RulesDrawer::moveDown()
{
    m_pendingRow = m_row + 1;
    m_controller->rules().moveDown(m_row);
    m_pendingRow.reset();
}

void RulesDrawer::openRule()
{
    RulesController& rules = m_controller->rules();
    const QString path = m_prompter->choose(
        window(), Prompter::Choice::OpenRule, { withAppTitle("CHOOSERULESETTINGSFILETITLE"), rules.rulesFolder() });
    if (path.isEmpty())
        return;
    m_pendingRow = 0;
    const RuleFileOutcome opened = rules.openRule(path, true);
    m_pendingRow.reset();
    if (opened.status != RuleFileStatus::Opened)
        m_prompter->alert(window(), Prompter::Severity::Critical, { localized("OPENRULETITLE"), opened.message });
}

void RulesDrawer::saveRule()
{
    RulesController& rules = m_controller->rules();
    const QString path = m_prompter->choose(
        window(), Prompter::Choice::SaveRule, { withAppTitle("SAVERULESETTINGSFILETITLE"), rules.rulesFolder() });
    if (path.isEmpty())
        return;
    QString error;
    if (rules.saveRule(path, &error))
        m_prompter->inform(window(), { localized("RULESETTINGSFILETITLE"), localized("RULESETTINGSFILESAVEDSUCCESS") });
    else
        m_prompter->alert(window(), Prompter::Severity::Critical, { localized("RULESETTINGSFILETITLE"), error });
}

} // namespace tavrin
