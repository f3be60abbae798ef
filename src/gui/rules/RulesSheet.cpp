#include "gui/rules/RulesSheet.h"

#include "core/text/LocalizedStrings.h"
#include "gui/control/RulesController.h"
#include "gui/rules/RuleTableModel.h"
#include "gui/rules/RuleTreeModel.h"
#include "gui/ui/Prompter.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

namespace tavrin {

namespace {

QPushButton* commandButton(const char* objectName, const char* textKey)
{
    auto* button = new QPushButton(localized(textKey));
    button->setObjectName(QString::fromLatin1(objectName));
    button->setAutoDefault(false);
    return button;
}

QString withAppTitle(const char* key)
{
    return localized(key).arg(localized("APPTITLE"));
}

} // namespace

RulesSheet::RulesSheet(RulesController& rules, SessionController& session, Prompter* prompter, QWidget* parent)
    : Sheet({ "rulesSheet", "RULESSHEETTITLE" }, parent)
    , m_rules(rules)
    , m_prompter(prompter)
    , m_model(new RuleTableModel(rules, session, this))
    , m_tree(new RuleTreeModel(this))
{
    auto* openButton = commandButton("openRuleButton", "OPENRULE");
    m_ruleFilePath = new QLineEdit;
    m_ruleFilePath->setObjectName(QStringLiteral("ruleFilePath"));
    m_ruleFilePath->setReadOnly(true);
    auto* fileLabel = new QLabel(localized("RULEFILEPATH"));
    fileLabel->setBuddy(m_ruleFilePath);
    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(fileLabel);
    fileRow->addWidget(m_ruleFilePath, 1);
    fileRow->addWidget(openButton);

    m_table = new QTableView;
    m_table->setObjectName(QStringLiteral("ruleTableView"));
    setUpTable(m_table, { m_model, QAbstractItemView::SingleSelection, nullptr });
    m_table->horizontalHeader()->setSectionResizeMode(RuleTableModel::ActiveColumn, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_outline = new QTreeView;
    m_outline->setObjectName(QStringLiteral("outlineView"));
    m_outline->setModel(m_tree);
    m_outline->setAlternatingRowColors(true);
    m_outline->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    auto* splitter = new QSplitter;
    splitter->addWidget(m_table);
    splitter->addWidget(m_outline);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({ 330, 430 });

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fileRow);
    layout->addWidget(splitter, 1);
    layout->addWidget(createCommands());
    layout->addWidget(createButtonBox(QDialogButtonBox::Close));
    resize(760, 460);

    connect(openButton, &QPushButton::clicked, this, &RulesSheet::openRule);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &RulesSheet::selectionChanged);
    connect(m_model, &QAbstractItemModel::modelReset, this, &RulesSheet::selectionChanged);
    select(m_model->rowCount() > 0 ? 0 : -1);
}

QWidget* RulesSheet::createCommands()
{
    m_moveUp = commandButton("moveUp", "MOVERULEUP");
    m_moveDown = commandButton("moveDown", "MOVERULEDOWN");
    m_clearButton = commandButton("clearButton", "CLEARRULE");
    m_saveButton = commandButton("saveRuleButton", "SAVERULE");
    m_previewButton = commandButton("previewButton", "PREVIEWRULE");
    m_previewButton->setToolTip(localized("PREVIEWRULETOOLTIP"));
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* button : { m_moveUp, m_moveDown, m_clearButton })
        layout->addWidget(button);
    layout->addStretch();
    layout->addWidget(m_saveButton);
    layout->addWidget(m_previewButton);
    connect(m_moveUp, &QPushButton::clicked, this, [this] { move(&RulesController::moveUp); });
    connect(m_moveDown, &QPushButton::clicked, this, [this] { move(&RulesController::moveDown); });
    connect(m_clearButton, &QPushButton::clicked, this, &RulesSheet::clearSelected);
    connect(m_saveButton, &QPushButton::clicked, this, &RulesSheet::saveRule);
    connect(m_previewButton, &QPushButton::clicked, this, [this] {
        accept();
        emit previewRequested();
    });
    return row;
}

int RulesSheet::selectedRow() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void RulesSheet::select(int row)
{
    if (row < 0 || row >= m_model->rowCount())
        m_table->clearSelection();
    else
        m_table->selectRow(row);
    selectionChanged();
}

// The chosen step's options, unfolded; the commands that need a step or two wait for them.
void RulesSheet::selectionChanged()
{
    const int row = selectedRow();
    const int count = m_model->rowCount();
    m_tree->showStep(row >= 0 ? std::optional<RuleStep>(m_rules.rules().at(row)) : std::nullopt);
    m_outline->expandAll();
    m_moveUp->setEnabled(count > 1 && row >= 1);
    m_moveDown->setEnabled(count > 1 && row >= 0 && row < count - 1);
    m_clearButton->setEnabled(row >= 0);
    m_saveButton->setEnabled(count > 0);
    m_previewButton->setEnabled(count > 0);
}

void RulesSheet::openRule()
{
    const QString path = m_prompter->choose(
        this, Prompter::Choice::OpenRule, { withAppTitle("CHOOSERULESETTINGSFILETITLE"), m_rules.rulesFolder() });
    if (path.isEmpty())
        return;
    const RuleFileOutcome opened = m_rules.openRule(path, false);
    if (opened.status != RuleFileStatus::Opened) {
        m_prompter->alert(this, Prompter::Severity::Critical, { localized("OPENRULETITLE"), opened.message });
        return;
    }
    m_ruleFilePath->setText(path);
    select(0);
}

void RulesSheet::saveRule()
{
    const QString path = m_prompter->choose(
        this, Prompter::Choice::SaveRule, { withAppTitle("SAVERULESETTINGSFILETITLE"), m_rules.rulesFolder() });
    if (path.isEmpty())
        return;
    QString error;
    if (m_rules.saveRule(path, &error))
        m_prompter->inform(this, { localized("RULESETTINGSFILETITLE"), localized("RULESETTINGSFILESAVEDSUCCESS") });
    else
        m_prompter->alert(this, Prompter::Severity::Critical, { localized("RULESETTINGSFILETITLE"), error });
}

void RulesSheet::clearSelected()
{
    const int row = selectedRow();
    m_rules.clearSelected(row);
    select(std::max(row - 1, 0));
}

void RulesSheet::move(int (RulesController::*mover)(int))
{
    select((m_rules.*mover)(selectedRow()));
}

} // namespace tavrin
