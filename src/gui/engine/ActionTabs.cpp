#include "gui/engine/ActionTabs.h"

#include "core/profiles/Settings.h"
#include "gui/engine/ActionTab.h"
#include "gui/ui/SidewaysScrollArea.h"

#include <QTabBar>

namespace tavrin {

ActionTabs::ActionTabs(Settings& settings, QWidget* parent)
    : QTabWidget(parent)
    , m_settings(settings)
{
    connect(this, &QTabWidget::currentChanged, this, &ActionTabs::currentPageChanged);
    connect(&m_settings, &Settings::selectedTabChanged, this, &ActionTabs::showSelectedTab);
}

// A page wider than the room it gets scrolls sideways instead of holding the window wide, so
// the window fits half a screen in every language and at large scale factors.
void ActionTabs::addActionTab(ActionTab* page, int tabNumber, const QString& title)
{
    const int index = addTab(new SidewaysScrollArea(page), title);
    tabBar()->setTabData(index, tabNumber);
    // The settings may name a tab whose page comes later: the setting waits for
    // showSelectedTab() once every page is there, instead of following the first page.
    if (tabNumber == m_settings.selectedTab())
        setCurrentIndex(index);
}

ActionTab* ActionTabs::pageAt(int index) const
{
    const auto* scroller = static_cast<SidewaysScrollArea*>(widget(index));
    return scroller ? static_cast<ActionTab*>(scroller->widget()) : nullptr;
}

int ActionTabs::indexOfTab(int tabNumber) const
{
    for (int index = 0; index < count(); ++index) {
        if (tabBar()->tabData(index).toInt() == tabNumber)
            return index;
    }
    return -1;
}

ActionTab* ActionTabs::pageForTab(int tabNumber) const
{
    const int index = indexOfTab(tabNumber);
    return index < 0 ? nullptr : pageAt(index);
}

ActionTab* ActionTabs::currentActionTab() const
{
    return pageAt(currentIndex());
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
    if (const int index = indexOfTab(m_settings.selectedTab()); index >= 0)
        setCurrentIndex(index);
    else
        currentPageChanged(currentIndex());
}

} // namespace tavrin
