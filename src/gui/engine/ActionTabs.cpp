#include "gui/engine/ActionTabs.h"

#include "core/profiles/Settings.h"
#include "gui/engine/ActionTab.h"

#include <QTabBar>

namespace tavrin {

ActionTabs::ActionTabs(Settings& settings, QWidget* parent)
    : QTabWidget(parent)
    , m_settings(settings)
{
    connect(this, &QTabWidget::currentChanged, this, &ActionTabs::currentPageChanged);
    connect(&m_settings, &Settings::selectedTabChanged, this, &ActionTabs::showSelectedTab);
}

void ActionTabs::addActionTab(ActionTab* page, int tabNumber, const QString& title)
{
    const int index = addTab(page, title);
    tabBar()->setTabData(index, tabNumber);
    // The settings may name a tab whose page comes later: the setting waits for
    // showSelectedTab() once every page is there, instead of following the first page.
    if (tabNumber == m_settings.selectedTab())
        setCurrentIndex(index);
}

ActionTab* ActionTabs::pageForTab(int tabNumber) const
{
    for (int index = 0; index < count(); ++index) {
        if (tabBar()->tabData(index).toInt() == tabNumber)
            return static_cast<ActionTab*>(widget(index));
    }
    return nullptr;
}

ActionTab* ActionTabs::currentActionTab() const
{
    return static_cast<ActionTab*>(currentWidget());
}

void ActionTabs::currentPageChanged(int index)
{
    const QVariant tabNumber = tabBar()->tabData(index);
    if (tabNumber.isValid())
        m_settings.setSelectedTab(tabNumber.toInt());
}

// The settings (a profile, the last session) name the tab they were saved on. When this window has no such
// page, the setting goes back to the visible page: a preview must never run an action the user cannot see.
void ActionTabs::showSelectedTab()
{
    if (ActionTab* page = pageForTab(m_settings.selectedTab()))
        setCurrentWidget(page);
    else
        currentPageChanged(currentIndex());
}

} // namespace tavrin
