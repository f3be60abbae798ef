#include "gui/engine/RenamePanel.h"

#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/TavrinAppController.h"
#include "gui/engine/ActionTab.h"
#include "gui/engine/ActionTabs.h"
#include "gui/engine/AudioTab.h"
#include "gui/engine/GeneralTab.h"
#include "gui/engine/InsertDeleteTab.h"
#include "gui/engine/ReplaceRemoveTab.h"
#include "gui/engine/SequenceTab.h"
#include "gui/ui/AttachedWindow.h"
#include "gui/ui/MessageBoxPrompter.h"

#include <QAction>
#include <QHBoxLayout>
#include <QIcon>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <initializer_list>

namespace tavrin {

namespace {

QString toolTipWithShortcuts(const char* key, const QList<QKeySequence>& shortcuts)
{
    QStringList keys;
    for (const QKeySequence& shortcut : shortcuts)
        keys.append(shortcut.toString(QKeySequence::NativeText));
    return QStringLiteral("%1 (%2)").arg(localized(key), keys.join(QStringLiteral(", ")));
}

// The first of the names the icon theme has (desktops name these icons differently), else
// the style's own.
QIcon themeIcon(std::initializer_list<const char*> names, const QIcon& fallback)
{
    for (const char* name : names) {
        if (QIcon::hasThemeIcon(QString::fromLatin1(name)))
            return QIcon::fromTheme(QString::fromLatin1(name));
    }
    return fallback;
}

// A push button that stands for an action: it triggers it and follows its state, so the
// shortcut, the button and the action can never disagree.
QPushButton* buttonFor(QAction* action)
{
    auto* button = new QPushButton(action->icon(), action->text());
    button->setObjectName(action->objectName() + QStringLiteral("Button"));
    const auto follow = [button, action] {
        button->setEnabled(action->isEnabled());
        button->setToolTip(action->toolTip());
    };
    follow();
    QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
    QObject::connect(action, &QAction::changed, button, follow);
    return button;
}

} // namespace

RenamePanel::RenamePanel(
    TavrinAppController* controller, AttachedWindow* attached, QAction* cancelAction, QWidget* parent)
    : QWidget(parent)
    , m_controller(controller)
    , m_attached(attached)
    , m_prompter(std::make_unique<MessageBoxPrompter>())
    , m_tabs(new ActionTabs(controller->settings()))
{
    setObjectName(QStringLiteral("renamePanel"));
    m_tabs->setObjectName(QStringLiteral("actionTabs"));
    Settings& settings = controller->settings();
    m_tabs->addActionTab(new SequenceTab(settings), tabs::AlphaNumeric, localized("SEQUENCETAB"));
    m_tabs->addActionTab(new InsertDeleteTab(settings), tabs::InsertDelete, localized("INSERTDELETETAB"));
    m_tabs->addActionTab(new ReplaceRemoveTab(settings), tabs::ReplaceRemove, localized("REPLACEREMOVETAB"));
    m_tabs->addActionTab(new GeneralTab(settings), tabs::General, localized("GENERALTAB"));
    m_tabs->addActionTab(new AudioTab(settings), tabs::Audio, localized("AUDIOTAB"));
    m_tabs->showSelectedTab();
    createActions();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(createButtonRow(cancelAction));

    connect(m_controller, &TavrinAppController::executingChanged, this, &RenamePanel::updateActions);
    connect(
        m_controller, &TavrinAppController::hasFilesForRenamingChanged, this, &RenamePanel::updateActions);
    updateActions();
}

RenamePanel::~RenamePanel() = default;

void RenamePanel::setPrompter(std::unique_ptr<Prompter> prompter)
{
    m_prompter = std::move(prompter);
}

void RenamePanel::createActions()
{
    const QStyle* style = this->style();
    m_previewAction = new QAction(
        themeIcon({ "view-preview", "edit-find" }, style->standardIcon(QStyle::SP_FileDialogContentsView)),
        localized("PREVIEW"), this);
    m_previewAction->setObjectName(QStringLiteral("previewAction"));
    m_previewAction->setShortcuts({ QKeySequence(Qt::Key_F5), QKeySequence(Qt::CTRL | Qt::Key_R) });
    m_previewAction->setToolTip(toolTipWithShortcuts("PREVIEWTOOLTIP", m_previewAction->shortcuts()));

    m_applyAction = new QAction(
        themeIcon({ "dialog-ok-apply", "document-save" }, style->standardIcon(QStyle::SP_DialogApplyButton)),
        localized("APPLY"), this);
    m_applyAction->setObjectName(QStringLiteral("applyAction"));
    m_applyAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return));
    m_applyAction->setToolTip(toolTipWithShortcuts("APPLYTOOLTIP", m_applyAction->shortcuts()));

    // The shortcuts work wherever the focus is in the window.
    addAction(m_previewAction);
    addAction(m_applyAction);
    connect(m_previewAction, &QAction::triggered, this, &RenamePanel::actionPreview);
    connect(m_applyAction, &QAction::triggered, this, &RenamePanel::actionApply);
}

QWidget* RenamePanel::createButtonRow(QAction* cancelAction)
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 6, 0, 6);
    layout->addStretch();
    layout->addWidget(buttonFor(cancelAction));
    m_previewButton = buttonFor(m_previewAction);
    layout->addWidget(m_previewButton);
    auto* applyButton = buttonFor(m_applyAction);
    layout->addWidget(applyButton);
    for (QPushButton* button : row->findChildren<QPushButton*>())
        button->setAutoDefault(false);
    return row;
}

void RenamePanel::actionPreview()
{
    if (m_controller->isExecuting())
        return;
    if (m_controller->shownCount() == 0) {
        m_attached->showMessage(m_previewButton, localized("NOITEMSTOPREVIEW"));
        return;
    }
    m_attached->hide();
    if (const std::optional<ValidationFailure> failure = m_controller->preview()) {
        m_prompter->warn(
            window(), LocalizedStrings::text(failure->titleKey), LocalizedStrings::text(failure->messageKey));
        focusField(failure->focusOption);
    }
}

void RenamePanel::focusField(const QString& optionKey)
{
    if (ActionTab* page = m_tabs->currentActionTab()) {
        if (QWidget* field = page->fieldForOption(optionKey))
            field->setFocus(Qt::OtherFocusReason);
    }
}

void RenamePanel::actionApply()
{
    if (m_controller->isExecuting() || !m_controller->isHasFilesForRenaming())
        return;
    m_attached->hide();
    if (!m_prompter->confirmRename(window()))
        return;
    // Asked later from the worker; the panel may be gone by then.
    const QPointer<RenamePanel> panel(this);
    m_controller->apply([panel] { return panel && panel->m_prompter->continueWithoutLog(panel->window()); });
}

void RenamePanel::updateActions()
{
    const bool idle = !m_controller->isExecuting();
    m_tabs->setEnabled(idle);
    m_previewAction->setEnabled(idle);
    m_applyAction->setEnabled(idle && m_controller->isHasFilesForRenaming());
}

} // namespace tavrin
