#pragma once

#include <QTabWidget>

namespace tavrin {

class ActionTab;
class Settings;

// The renaming actions, one page each. Every page carries the number of its tab
// (tabs::General ...), which is what "selectedTab" holds, so the pages can come in any
// order and the setting always names the visible one.
class ActionTabs : public QTabWidget {
    Q_OBJECT

public:
    explicit ActionTabs(Settings& settings, QWidget* parent = nullptr);

    void addActionTab(ActionTab* page, int tabNumber, const QString& title);
    // Shows the page of the selected tab; when there is none, the visible page becomes the
    // selected tab. Called once the pages are added, and whenever the setting changes.
    void showSelectedTab();

    // The page of a tab number, or null when it has none; its index, or -1.
    ActionTab* pageForTab(int tabNumber) const;
    int indexOfTab(int tabNumber) const;
    ActionTab* currentActionTab() const;

private:
    ActionTab* pageAt(int index) const;
    void currentPageChanged(int index);

    Settings& m_settings;
};

} // namespace tavrin
