#include "GuiFixture.h"
#include "core/engine/actions/DateTestSupport.h"
#include "core/engine/actions/datetime.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/ActionTabs.h"
#include "gui/engine/DateTimeTab.h"
#include "gui/engine/PathComponentsTab.h"
#include "gui/engine/PrefixSuffixTab.h"
#include "gui/engine/RenamePanel.h"
#include "gui/list/FileTableView.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

// Presses a button or types into a text field of a tab, as a user would.
void perform(const ActionTab& tab, const char* name, const QString& typed = {})
{
    if (typed.isNull()) {
        auto* button = tab.findChild<QAbstractButton*>(q(name));
        ASSERT_NE(button, nullptr) << name;
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
        return;
    }
    auto* field = qobject_cast<QLineEdit*>(tab.fieldForOption(q(name)));
    ASSERT_NE(field, nullptr) << name;
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, typed);
}

bool isEnabled(const ActionTab& tab, const char* optionKey)
{
    QWidget* field = tab.fieldForOption(q(optionKey));
    EXPECT_NE(field, nullptr) << optionKey;
    return field && field->isEnabled();
}

QString exampleOf(const ActionTab& tab, const char* objectName)
{
    auto* example = tab.findChild<QLabel*>(q(objectName));
    EXPECT_NE(example, nullptr) << objectName;
    return example ? example->text() : QString();
}

// The three tabs on their own over settings at their start values, in Berlin, in US English.
class DateTabsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        test::useFixedZoneAndLocale();
        settings.resetToStartValues();
        for (QWidget* tab : { static_cast<QWidget*>(&dateTime), static_cast<QWidget*>(&prefixSuffix),
                 static_cast<QWidget*>(&pathComponents) }) {
            tab->show();
            ASSERT_TRUE(QTest::qWaitForWindowExposed(tab));
        }
    }

    Settings settings;
    DateTimeTab dateTime { settings };
    PrefixSuffixTab prefixSuffix { settings };
    PathComponentsTab pathComponents { settings };
};

TEST_F(DateTabsTest, DateTimeInputsAreEnabledByTheirChoicesAndThePreviewFollows)
{
    const struct {
        const char* pressed;
        const char* field;
        bool enabled;
    } rows[] = {
        { nullptr, Settings::dateTimeCustomDateKey, false },
        { "dateTimeCustom", Settings::dateTimeCustomDateKey, true },
        { "dateTimeModified", Settings::dateTimeCustomDateKey, false },
        { nullptr, Settings::dateTimeSeparatorKey, true },
        { Settings::hasTimeFormatKey, Settings::dateTimeFormatTimePart1Key, false },
        { nullptr, Settings::dateTimeSeparatorKey, false },
        { nullptr, Settings::dateTimeFormatDatePart1Key, true },
        { nullptr, Settings::dateTimeColonReplaceKey, false },
        { Settings::isDateTimeColonReplaceKey, Settings::dateTimeColonReplaceKey, true },
        { nullptr, Settings::dateTimeAtBeforeTextKey, false },
        { "dateTimePlace3", Settings::dateTimeAtBeforeTextKey, true },
        { nullptr, Settings::dateTimeAtAfterTextKey, false },
    };
    QSignalSpy changes(&settings, &Settings::settingsChanged);
    for (const auto& row : rows) {
        if (row.pressed)
            perform(dateTime, row.pressed);
        EXPECT_EQ(isEnabled(dateTime, row.field), row.enabled) << (row.pressed ? row.pressed : "") << " " << row.field;
    }
    EXPECT_EQ(changes.count(), 5) << "every choice asks for a preview";
    EXPECT_EQ(settings.dateTimeDateOptionIndex(), datetimesource::Modified);
    EXPECT_FALSE(settings.hasDateTimeCustomDate());
    EXPECT_TRUE(settings.isDateTimeAtBeforeText());
}

TEST_F(DateTabsTest, DateTimeExampleShowsTheTextAsTheListWill)
{
    settings.chooseDateTimeSource(datetimesource::Custom);
    settings.setDateTimeCustomDate(test::inBerlin(2021, 3, 5, 14, 30, 9));
    EXPECT_EQ(exampleOf(dateTime, "dateTimeExample"), q("Example: 05032021143009"));

    auto* month = qobject_cast<QComboBox*>(dateTime.fieldForOption(q(Settings::dateTimeFormatDatePart2Key)));
    ASSERT_NE(month, nullptr);
    month->setFocus();
    QTest::keyClick(month, Qt::Key_Down);
    EXPECT_EQ(settings.dateTimeFormatDatePart2(), q("MMM"));
    perform(dateTime, Settings::dateTimeSeparatorKey, q("_"));
    perform(dateTime, Settings::dateTimeFormatTimeSeperator1Key, q(":"));
    perform(dateTime, Settings::dateTimeSuffixKey, q(" %d%%"));
    EXPECT_EQ(exampleOf(dateTime, "dateTimeExample"), q("Example: 05Mar2021_14/3009 %"));
}

TEST_F(DateTabsTest, PrefixSuffixModeIsChosenWithoutAPreview)
{
    auto* textGroup = prefixSuffix.findChild<QGroupBox*>(q("prefixSuffixTextGroup"));
    auto* dateGroup = prefixSuffix.findChild<QGroupBox*>(q("prefixSuffixDateGroup"));
    ASSERT_TRUE(textGroup && dateGroup);
    EXPECT_TRUE(textGroup->isEnabled());
    EXPECT_FALSE(dateGroup->isEnabled());

    QSignalSpy changes(&settings, &Settings::settingsChanged);
    perform(prefixSuffix, "prefixSuffixDate");
    EXPECT_EQ(changes.count(), 0);
    EXPECT_TRUE(settings.isPrefixSuffixDate());
    EXPECT_FALSE(settings.isPrefixSuffixString());
    EXPECT_EQ(settings.prefixSuffixIndex(), 1);
    EXPECT_FALSE(textGroup->isEnabled());
    EXPECT_TRUE(dateGroup->isEnabled());

    // Literal fields give the same text at any moment.
    for (auto set : { &Settings::setPrefixSuffixDatePart1, &Settings::setPrefixSuffixDatePart2,
             &Settings::setPrefixSuffixDatePart3, &Settings::setPrefixSuffixTimePart1,
             &Settings::setPrefixSuffixTimePart2, &Settings::setPrefixSuffixTimePart3 })
        (settings.*set)(q("None"));
    settings.setPrefixSuffixDateSeperator1(q("'day'"));
    settings.setPrefixSuffixTimeSeperator1(q("'time'"));
    perform(prefixSuffix, Settings::prefixSuffixDatePrefixKey, q("a:("));
    perform(prefixSuffix, Settings::prefixSuffixDateSuffixKey, q(")"));
    EXPECT_EQ(exampleOf(prefixSuffix, "prefixSuffixExample"), q("Example: a/(day time)"));
}

TEST_F(DateTabsTest, PathComponentsPlaceIsChosenWithoutAPreview)
{
    perform(pathComponents, Settings::pathComponentsLevelNoKey, q("3"));
    EXPECT_EQ(settings.pathComponentsLevelNo(), 3);
    EXPECT_FALSE(isEnabled(pathComponents, Settings::pathComponentsAtAfterTextKey));

    QSignalSpy changes(&settings, &Settings::settingsChanged);
    perform(pathComponents, "pathComponentsPlace4");
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(settings.pathComponentsOptionsIndex(), 4);
    EXPECT_TRUE(settings.isPathComponentsAtAfterText());
    EXPECT_FALSE(settings.isPathComponentsAtBeginning());
    EXPECT_TRUE(isEnabled(pathComponents, Settings::pathComponentsAtAfterTextKey));
    EXPECT_FALSE(isEnabled(pathComponents, Settings::pathComponentsAtBeforeTextKey));
}

// The tabs in the window, over files whose dates the test sets.
class DateTabsWindowTest : public test::WindowFixture {
protected:
    void SetUp() override
    {
        test::useFixedZoneAndLocale();
        WindowFixture::SetUp();
    }

    ActionTab* showTab(int tabNumber)
    {
        ActionTabs* tabs = window.renamePanel()->tabs();
        ActionTab* page = tabs->pageForTab(tabNumber);
        EXPECT_NE(page, nullptr) << tabNumber;
        QTest::mouseClick(
            tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(tabs->indexOf(page)).center());
        EXPECT_EQ(settings().selectedTab(), tabNumber);
        return page;
    }

    QStringList shownNewNames() const
    {
        QStringList names;
        for (int row = 0; row < window.tableModel()->rowCount(); ++row)
            names.append(newName(row));
        return names;
    }
};

TEST_F(DateTabsWindowTest, PreviewShowsTheDatesStatReports)
{
    const QString path = tree.file(u"files/a.txt"_s);
    test::setModified(path, test::inBerlin(2021, 3, 5, 14, 30));
    ASSERT_TRUE(addAndWait({ path }));
    ActionTab* page = showTab(tabs::DateTime);

    ASSERT_TRUE(previewAndWait());
    EXPECT_EQ(shownNewNames(),
        QStringList(test::reportedCreation(path).toString(u"ddMMyyyyHHmmss") + u"a.txt"_s));
    perform(*page, "dateTimeModified");
    ASSERT_TRUE(previewAndWait());
    EXPECT_EQ(shownNewNames(), QStringList(u"05032021143000a.txt"_s));
}

TEST_F(DateTabsWindowTest, AMissingAnchorWarnsAndTakesTheFocusToItsField)
{
    const struct {
        int tab;
        const char* place;
        const char* focusKey;
        const char* titleKey;
    } rows[] = {
        { tabs::DateTime, "dateTimePlace3", Settings::dateTimeAtBeforeTextKey, "DATETIMEATBEFORETEXTINVALIDINPUT" },
        { tabs::DateTime, "dateTimePlace4", Settings::dateTimeAtAfterTextKey, "DATETIMEATAFTERTEXTINVALIDINPUT" },
        { tabs::PathComponents, "pathComponentsPlace3", Settings::pathComponentsAtBeforeTextKey,
            "PATHTEXTATBEFORETEXT" },
        { tabs::PathComponents, "pathComponentsPlace4", Settings::pathComponentsAtAfterTextKey,
            "PATHTEXTATAFTERTEXT" },
    };
    listFiles({ u"a_b.txt"_s });
    for (const auto& row : rows) {
        ActionTab* page = showTab(row.tab);
        perform(*page, row.place);
        window.tableView()->setFocus();
        prompter->alerts.clear();

        QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);

        EXPECT_EQ(prompter->alertTexts(), QStringList(localized(row.titleKey) + u'|' + localized("ENTERSOMETEXT")))
            << row.place;
        EXPECT_EQ(QApplication::focusWidget(), page->fieldForOption(q(row.focusKey))) << row.place;
    }
}

} // namespace
