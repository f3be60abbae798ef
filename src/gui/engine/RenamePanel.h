#pragma once

#include <QWidget>

class QAction;
class QPushButton;

namespace tavrin {

class ActionTabs;
class AttachedWindow;
class FromFileTab;
class Prompter;
class RenameController;

// The area below the table: the action tabs and the buttons that preview and apply the
// chosen action. Both run through the rename controller; the questions on the way go through
// the window's prompter.
class RenamePanel : public QWidget {
    Q_OBJECT

public:
    RenamePanel(
        RenameController* rename, AttachedWindow* attached, QAction* cancelAction, QWidget* parent = nullptr);
    ~RenamePanel() override;

    ActionTabs* tabs() const { return m_tabs; }
    QAction* previewAction() const { return m_previewAction; }
    QAction* applyAction() const { return m_applyAction; }
    QPushButton* previewButton() const { return m_previewButton; }
    void setPrompter(Prompter* prompter);

    // The Preview button: a hint when the list is empty, an alert when an input is
    // missing, else a preview on the worker thread.
    void actionPreview();
    // The Rename button: asks first, then renames on the worker thread.
    void actionApply();

private:
    void createActions();
    QWidget* createButtonRow(QAction* cancelAction);
    void focusField(const QString& optionKey);
    void updateActions();

    RenameController* m_rename;
    AttachedWindow* m_attached;
    Prompter* m_prompter = nullptr;
    ActionTabs* m_tabs = nullptr;
    QAction* m_previewAction = nullptr;
    QAction* m_applyAction = nullptr;
    QPushButton* m_previewButton = nullptr;
    FromFileTab* m_fromFileTab = nullptr;
};

} // namespace tavrin
