#pragma once

#include <QWidget>
#include <memory>

class QAction;
class QPushButton;

namespace tavrin {

class ActionTabs;
class AttachedWindow;
class Prompter;
class TavrinAppController;

// The area below the table: the action tabs and the buttons that preview and apply the
// chosen action. Both run through the controller; the questions on the way go through a
// Prompter, message boxes unless a test puts its own in.
class RenamePanel : public QWidget {
    Q_OBJECT

public:
    RenamePanel(TavrinAppController* controller, AttachedWindow* attached, QAction* cancelAction,
        QWidget* parent = nullptr);
    ~RenamePanel() override;

    ActionTabs* tabs() const { return m_tabs; }
    QAction* previewAction() const { return m_previewAction; }
    QAction* applyAction() const { return m_applyAction; }
    QPushButton* previewButton() const { return m_previewButton; }
    void setPrompter(std::unique_ptr<Prompter> prompter);

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

    TavrinAppController* m_controller;
    AttachedWindow* m_attached;
    std::unique_ptr<Prompter> m_prompter;
    ActionTabs* m_tabs = nullptr;
    QAction* m_previewAction = nullptr;
    QAction* m_applyAction = nullptr;
    QPushButton* m_previewButton = nullptr;
};

} // namespace tavrin
