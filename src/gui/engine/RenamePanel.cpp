#include "gui/engine/RenamePanel.h"

#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "gui/control/ListController.h"
#include "gui/control/RenameController.h"
#include "gui/control/SessionController.h"
#include "gui/engine/ActionTab.h"
#include "gui/engine/ActionTabs.h"
#include "gui/engine/AudioTab.h"
#include "gui/engine/DateTimeTab.h"
#include "gui/engine/PhotoTab.h"
#include "gui/engine/GeneralTab.h"
#include "gui/engine/InsertDeleteTab.h"
#include "gui/engine/PathComponentsTab.h"
#include "gui/engine/PrefixSuffixTab.h"
#include "gui/engine/ReplaceRemoveTab.h"
#include "gui/engine/SequenceTab.h"
#include "gui/io/FromFileTab.h"
#include "gui/ui/AttachedWindow.h"
#include "gui/ui/Prompter.h"

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
    RenameController* rename, AttachedWindow* attached, QAction* cancelAction, QWidget* parent)
    : QWidget(parent)
    , m_rename(rename)
    , m_attached(attached)
    , m_tabs(new ActionTabs(rename->session().settings()))
{
    setObjectName(QStringLiteral("renamePanel"));
    m_tabs->setObjectName(QStringLiteral("actionTabs"));
    Settings& settings = rename->session().settings();
    auto* sequenceTab = new SequenceTab(settings);
    m_tabs->addActionTab(sequenceTab, tabs::AlphaNumeric, localized("SEQUENCETAB"));
    QObject::connect(&rename->list(), &ListController::listChanged, sequenceTab,
        [sequenceTab, rename] { sequenceTab->setListedCount(rename->list().shownCount()); });
    m_tabs->addActionTab(new InsertDeleteTab(settings), tabs::InsertDelete, localized("INSERTDELETETAB"));
    m_tabs->addActionTab(new ReplaceRemoveTab(settings), tabs::ReplaceRemove, localized("REPLACEREMOVETAB"));
    m_tabs->addActionTab(new PrefixSuffixTab(settings), tabs::PrefixSuffix, localized("PREFIXSUFFIXTAB"));
    m_tabs->addActionTab(new DateTimeTab(settings), tabs::DateTime, localized("DATETIMETAB"));
    m_tabs->addActionTab(new GeneralTab(settings), tabs::General, localized("GENERALTAB"));
    m_tabs->addActionTab(new AudioTab(settings), tabs::Audio, localized("AUDIOTAB"));
    m_tabs->addActionTab(new PhotoTab(settings), tabs::Photo, localized("PHOTOTAB"));
    m_tabs->addActionTab(new PathComponentsTab(settings), tabs::PathComponents, localized("PATHCOMPONENTSTAB"));
    m_fromFileTab = new FromFileTab(*rename);
    m_tabs->addActionTab(m_fromFileTab, tabs::FromFile, localized("FROMFILETAB"));
    m_tabs->showSelectedTab();
    createActions();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tabs, 1);
    layout->addWidget(createButtonRow(cancelAction));

    connect(&m_rename->list(), &ListController::executingChanged, this, &RenamePanel::updateActions);
    connect(m_rename, &RenameController::hasFilesForRenamingChanged, this, &RenamePanel::updateActions);
    updateActions();
}

RenamePanel::~RenamePanel() = default;

void RenamePanel::setPrompter(Prompter* prompter)
{
    m_prompter = prompter;
    m_fromFileTab->setPrompter(prompter);
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
    if (m_rename->list().isExecuting())
        return;
    if (m_rename->list().shownCount() == 0) {
        m_attached->showMessage(m_previewButton, localized("NOITEMSTOPREVIEW"));
        return;
    }
    m_attached->hide();
    if (const std::optional<ValidationFailure> failure = m_rename->preview()) {
        m_prompter->warn(window(),
            { failure->title(), failure->message() });
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
    if (m_rename->list().isExecuting() || !m_rename->isHasFilesForRenaming())
        return;
    m_attached->hide();
    const PreviewOutcome& preview = m_rename->lastPreviewOutcome();
    if (!m_prompter->confirmRename(window(), { preview.proposals, preview.conflicts }))
        return;
    // Asked later from the worker; the panel may be gone by then.
    const QPointer<RenamePanel> panel(this);
    m_rename->apply([panel] {
        const RenamePanel* owner = panel.data();
        return owner != nullptr && owner->m_prompter->continueWithoutLog(owner->window());
    });
}

void RenamePanel::updateActions()
{
    const bool idle = !m_rename->list().isExecuting();
    m_tabs->setEnabled(idle);
    m_previewAction->setEnabled(idle);
    m_applyAction->setEnabled(idle && m_rename->isHasFilesForRenaming());
}

} // namespace tavrin
