#include "gui/app/WindowActions.h"

#include "core/text/LocalizedStrings.h"

#include <QAction>
#include <QIcon>
#include <QMenuBar>
#include <QStyle>
#include <QToolBar>
#include <QWidget>

namespace tavrin {

namespace {

// What an action is called, how it looks and the key that triggers it.
struct ActionLook {
    const char* objectName;
    const char* textKey;
    QIcon icon;
    QKeySequence shortcut;
};

QAction* makeAction(QWidget* window, const ActionLook& look)
{
    auto* action = new QAction(look.icon, localized(look.textKey), window);
    action->setObjectName(QString::fromLatin1(look.objectName));
    action->setShortcut(look.shortcut);
    return action;
}

QIcon themeIcon(const char* name, QStyle::StandardPixmap fallback, const QWidget* window)
{
    return QIcon::fromTheme(QString::fromLatin1(name), window->style()->standardIcon(fallback));
}

QIcon themeIcon(const char* name)
{
    return QIcon::fromTheme(QString::fromLatin1(name));
}

// Toolbar tooltips do not show the shortcut by themselves.
void setToolTipWithShortcut(QAction* action, const char* key)
{
    const QKeySequence shortcut = action->shortcut();
    QString tip = localized(key);
    if (!shortcut.isEmpty())
        tip += QStringLiteral(" (%1)").arg(shortcut.toString(QKeySequence::NativeText));
    action->setToolTip(tip);
}

} // namespace

WindowActions::WindowActions(QWidget* window)
    : QObject(window)
    , m_window(window)
{
    createListActions();
    createSessionActions();
    setToolTips();
}

void WindowActions::createListActions()
{
    QWidget* w = m_window;
    m_addFiles = makeAction(
        w, { "addFilesAction", "ADDFILES", themeIcon("document-open", QStyle::SP_DialogOpenButton, w), {} });
    m_addFolders = makeAction(
        w, { "addFoldersAction", "ADDFOLDERS", themeIcon("folder-open", QStyle::SP_DirOpenIcon, w), {} });
    m_remove = makeAction(w,
        { "removeAction", "REMOVE", themeIcon("list-remove", QStyle::SP_TrashIcon, w),
            QKeySequence::Delete });
    m_clear = makeAction(w,
        { "clearAction", "CLEAR", themeIcon("edit-clear", QStyle::SP_DialogResetButton, w),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Delete) });
    m_moveUp = makeAction(w,
        { "moveUpAction", "MOVEUP", themeIcon("go-up", QStyle::SP_ArrowUp, w),
            QKeySequence(Qt::ALT | Qt::Key_Up) });
    m_moveDown = makeAction(w,
        { "moveDownAction", "MOVEDOWN", themeIcon("go-down", QStyle::SP_ArrowDown, w),
            QKeySequence(Qt::ALT | Qt::Key_Down) });
    m_cancel = makeAction(w,
        { "cancelAction", "CANCELPROCESS", themeIcon("process-stop", QStyle::SP_BrowserStop, w),
            QKeySequence::Cancel });
    m_pasteItems = makeAction(w,
        { "pasteItemsAction", "PASTEITEMS", themeIcon("edit-paste"),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_V) });
    m_selectAll = makeAction(
        w, { "selectAllAction", "SELECTALL", themeIcon("edit-select-all"), QKeySequence::SelectAll });
    m_undo = makeAction(w,
        { "undoBatchAction", "UNDOBATCH", themeIcon("edit-undo", QStyle::SP_ArrowBack, w),
            QKeySequence::Undo });
    m_exportList = makeAction(w, { "exportListAction", "EXPORTLIST", themeIcon("document-export"), QKeySequence() });
    m_livePreview = makeAction(w,
        { "livePreviewAction", "LIVEPREVIEWACTION", QIcon(QStringLiteral(":/icons/LivePreviewOff.svg")),
            QKeySequence(Qt::CTRL | Qt::Key_L) });
    m_livePreview->setCheckable(true);
}

void WindowActions::createSessionActions()
{
    QWidget* w = m_window;
    m_openProfile = makeAction(w,
        { "openProfileAction", "OPENPROFILE", themeIcon("document-open"),
            QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_O) });
    m_saveProfile = makeAction(
        w, { "saveProfileAction", "SAVEPROFILE", themeIcon("document-save"), QKeySequence::Save });
    m_saveProfileAs = makeAction(w,
        { "saveProfileAsAction", "SAVEASPROFILE", themeIcon("document-save-as"),
            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S) });
    m_defaultProfile
        = makeAction(w, { "defaultProfileAction", "DEFAULTPROFILE", themeIcon("document-new"), {} });
    m_showProfiles = makeAction(w, { "showProfilesAction", "SHOWPROFILES", themeIcon("document-properties"), {} });
    m_preferences = makeAction(w,
        { "preferencesAction", "PREFERENCES", themeIcon("preferences-system"),
            QKeySequence(Qt::CTRL | Qt::Key_Comma) });
    m_quit = makeAction(
        w, { "quitAction", "QUIT", themeIcon("application-exit"), QKeySequence(Qt::CTRL | Qt::Key_Q) });
    m_help = makeAction(
        w, { "helpAction", "HELPCONTENTS", themeIcon("help-contents"), QKeySequence::HelpContents });
    m_about = makeAction(w, { "aboutAction", "ABOUT", themeIcon("help-about"), {} });
}

void WindowActions::setToolTips()
{
    m_pasteItems->setToolTip(localized("PASTEITEMSTOOLTIP"));
    setToolTipWithShortcut(m_remove, "REMOVETOOLTIP");
    setToolTipWithShortcut(m_clear, "CLEARTOOLTIP");
    setToolTipWithShortcut(m_moveUp, "MOVEUPTOOLTIP");
    setToolTipWithShortcut(m_moveDown, "MOVEDOWNTOOLTIP");
    setToolTipWithShortcut(m_cancel, "CANCELPROCESSTOOLTIP");
    setToolTipWithShortcut(m_undo, "UNDOBATCHTOOLTIP");
}

void WindowActions::fillMenuBar(QMenuBar* menuBar, const RenameMenuActions& rename) const
{
    QMenu* file = menuBar->addMenu(localized("FILEMENU"));
    file->addActions({ m_addFiles, m_addFolders });
    file->addSeparator();
    file->addAction(m_exportList);
    file->addSeparator();
    file->addActions({ m_openProfile, m_saveProfile, m_saveProfileAs, m_defaultProfile, m_showProfiles });
    file->addSeparator();
    file->addAction(m_preferences);
    file->addSeparator();
    file->addAction(m_quit);

    QMenu* edit = menuBar->addMenu(localized("EDITMENU"));
    edit->addAction(m_undo);
    edit->addSeparator();
    edit->addActions({ m_pasteItems, m_selectAll, m_remove, m_clear });
    edit->addSeparator();
    edit->addActions({ m_moveUp, m_moveDown });

    QMenu* renameMenu = menuBar->addMenu(localized("RENAMEMENU"));
    renameMenu->addActions({ rename.preview, rename.apply, m_livePreview });
    renameMenu->addSeparator();
    renameMenu->addAction(m_cancel);

    QMenu* help = menuBar->addMenu(localized("HELPMENU"));
    help->addActions({ m_help, m_about });
}

void WindowActions::fillToolBar(QToolBar* toolBar) const
{
    toolBar->addActions({ m_addFiles, m_addFolders, m_remove, m_clear });
    toolBar->addSeparator();
    toolBar->addActions({ m_moveUp, m_moveDown });
    toolBar->addSeparator();
    toolBar->addActions({ m_undo, m_livePreview });
}

void WindowActions::setExecuting(bool executing)
{
    for (QAction* action : { m_addFiles, m_addFolders, m_remove, m_clear, m_undo, m_exportList, m_pasteItems, m_selectAll,
             m_openProfile, m_defaultProfile, m_showProfiles })
        action->setEnabled(!executing);
    m_cancel->setEnabled(executing);
}

void WindowActions::showListMode(bool files, bool folders)
{
    m_addFiles->setVisible(files);
    m_addFolders->setVisible(folders);
    m_addFiles->setShortcut(files ? QKeySequence(QKeySequence::Open) : QKeySequence());
    m_addFolders->setShortcut(
        files ? QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O) : QKeySequence(QKeySequence::Open));
    setToolTipWithShortcut(m_addFiles, "ADDFILESTOOLTIP");
    setToolTipWithShortcut(m_addFolders, "ADDFOLDERSTOOLTIP");
}

void WindowActions::showLivePreview(bool on)
{
    m_livePreview->setChecked(on);
    m_livePreview->setIcon(
        QIcon(on ? QStringLiteral(":/icons/LivePreview.svg") : QStringLiteral(":/icons/LivePreviewOff.svg")));
    setToolTipWithShortcut(m_livePreview, on ? "LIVEPREVIEWONTOOLTIP" : "LIVEPREVIEWOFFTOOLTIP");
}

} // namespace tavrin
