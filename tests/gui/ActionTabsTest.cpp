#include "gui/engine/ActionTabs.h"

#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "gui/engine/ActionTab.h"
#include "gui/engine/GeneralTab.h"

#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

using namespace tavrin;

namespace {

// A page with one input, standing for the tabs that later work adds.
class OneFieldTab final : public ActionTab {
public:
    OneFieldTab()
        : m_field(new QLineEdit(this))
    {
    }
    QWidget* fieldForOption(const QString& key) const override
    {
        return key == QLatin1String("replaceRemoveThis") ? m_field : nullptr;
    }

private:
    QLineEdit* m_field;
};

class ActionTabsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        settings.resetToStartValues();
        ASSERT_EQ(settings.selectedTab(), tabs::AlphaNumeric);
        tabWidget.addActionTab(general, tabs::General, QStringLiteral("General"));
        tabWidget.addActionTab(replace, tabs::ReplaceRemove, QStringLiteral("Replace"));
        tabWidget.showSelectedTab();
        tabWidget.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&tabWidget));
    }

    Settings settings;
    ActionTabs tabWidget { settings };
    GeneralTab* general = new GeneralTab(settings);
    OneFieldTab* replace = new OneFieldTab;
};

TEST_F(ActionTabsTest, TheSelectedTabFollowsTheVisiblePage)
{
    EXPECT_EQ(settings.selectedTab(), tabs::General) << "the first page is visible from the start";

    tabWidget.setCurrentIndex(1);
    EXPECT_EQ(settings.selectedTab(), tabs::ReplaceRemove);
    EXPECT_EQ(tabWidget.currentActionTab(), replace);

    QTest::keyClick(tabWidget.tabBar(), Qt::Key_Left);
    EXPECT_EQ(settings.selectedTab(), tabs::General) << "the tabs are reachable by keyboard";
}

TEST_F(ActionTabsTest, ASelectedTabFromTheSettingsShowsItsPage)
{
    settings.setSelectedTab(tabs::ReplaceRemove);
    EXPECT_EQ(tabWidget.currentWidget(), replace);

    // A profile saved on a tab this window lacks: the visible page stays and says so.
    settings.setSelectedTab(tabs::Photo);
    EXPECT_EQ(tabWidget.currentWidget(), replace);
    EXPECT_EQ(settings.selectedTab(), tabs::ReplaceRemove);
}

TEST(ActionTabs, TheTabOfTheLastSessionIsShownEvenWhenItsPageComesLater)
{
    Settings settings;
    settings.setSelectedTab(tabs::ReplaceRemove);
    ActionTabs tabWidget { settings };
    tabWidget.addActionTab(new GeneralTab(settings), tabs::General, QStringLiteral("General"));
    auto* replace = new OneFieldTab;
    tabWidget.addActionTab(replace, tabs::ReplaceRemove, QStringLiteral("Replace"));
    tabWidget.showSelectedTab();
    EXPECT_EQ(tabWidget.currentWidget(), replace);
    EXPECT_EQ(settings.selectedTab(), tabs::ReplaceRemove);
}

TEST_F(ActionTabsTest, PagesAreFoundByTheirTabNumber)
{
    EXPECT_EQ(tabWidget.pageForTab(tabs::General), general);
    EXPECT_EQ(tabWidget.pageForTab(tabs::ReplaceRemove), replace);
    EXPECT_EQ(tabWidget.pageForTab(tabs::AlphaNumeric), nullptr);
}

} // namespace
