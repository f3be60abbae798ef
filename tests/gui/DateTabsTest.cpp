#include "GuiFixture.h"
#include "core/engine/actions/DateTestSupport.h"
#include "core/engine/actions/datetime.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/ActionTab.h"
#include "gui/engine/ActionTabs.h"
#include "gui/engine/RenamePanel.h"
#include "gui/list/FileTableView.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

// The three tabs in the window, dates in Berlin in US English.
class DateTabsTest : public test::WindowFixture {
protected:
    void SetUp() override
    {
        test::useFixedZoneAndLocale();
        WindowFixture::SetUp();
    }

    ActionTab* showTab(int tabNumber)
    {
        settings().setSelectedTab(tabNumber);
        page = window.renamePanel()->tabs()->currentActionTab();
        return page;
    }

    // Presses a button, or types into a text field, as a user would.
    void perform(const char* name, const QString& typed = {})
    {
        QWidget* target = typed.isNull() ? page->findChild<QAbstractButton*>(q(name)) : page->fieldForOption(q(name));
        ASSERT_NE(target, nullptr) << name;
        target->setFocus();
        if (auto* field = qobject_cast<QLineEdit*>(target)) {
            field->selectAll();
            QTest::keyClicks(field, typed);
        } else {
            QTest::keyClick(target, Qt::Key_Space);
        }
    }

    bool isEnabled(const char* optionKey) const { return page->fieldForOption(q(optionKey))->isEnabled(); }
    QString example(const char* name) const { return page->findChild<QLabel*>(q(name))->text(); }

    ActionTab* page = nullptr;
};

// Each row presses a button (none for null), then looks at one field.
TEST_F(DateTabsTest, DateTimeInputsAreEnabledByTheirChoicesAndThePreviewFollows)
{
    showTab(tabs::DateTime);
    const struct {
        const char* pressed;
        const char* field;
        bool enabled;
    } rows[] = {
        { nullptr, Settings::dateTimeCustomDateKey, false },
        { "dateTimeCustom", Settings::dateTimeCustomDateKey, true },
        { "dateTimeModified", Settings::dateTimeCustomDateKey, false },
        { Settings::hasTimeFormatKey, Settings::dateTimeFormatTimePart1Key, false },
        { nullptr, Settings::dateTimeSeparatorKey, false },
        { Settings::isDateTimeColonReplaceKey, Settings::dateTimeColonReplaceKey, true },
        { "dateTimePlace3", Settings::dateTimeAtBeforeTextKey, true },
        { nullptr, Settings::dateTimeAtAfterTextKey, false },
    };
    QSignalSpy changes(&settings(), &Settings::settingsChanged);
    for (const auto& row : rows) {
        if (row.pressed)
            perform(row.pressed);
        EXPECT_EQ(isEnabled(row.field), row.enabled) << row.field;
    }
    EXPECT_EQ(changes.count(), 5) << "every choice asks for a preview";
    EXPECT_TRUE(settings().isDateTimeAtBeforeText());
}

TEST_F(DateTabsTest, DateTimeExampleShowsTheTextAsTheListWill)
{
    showTab(tabs::DateTime);
    settings().chooseDateTimeSource(datetimesource::Custom);
    settings().setDateTimeCustomDate(test::inBerlin(2021, 3, 5, 14, 30, 9));
    EXPECT_EQ(example("dateTimeExample"), q("Example: 05032021143009"));
    auto* month = qobject_cast<QComboBox*>(page->fieldForOption(q(Settings::dateTimeFormatDatePart2Key)));
    month->setFocus();
    QTest::keyClick(month, Qt::Key_Down);
    perform(Settings::dateTimeSeparatorKey, q("_"));
    perform(Settings::dateTimeFormatTimeSeperator1Key, q(":"));
    perform(Settings::dateTimeSuffixKey, q(" %d%%"));
    EXPECT_EQ(example("dateTimeExample"), q("Example: 05Mar2021_14/3009 %"));
}

TEST_F(DateTabsTest, PrefixSuffixModeIsChosenWithoutAPreview)
{
    showTab(tabs::PrefixSuffix);
    auto* dateGroup = page->findChild<QGroupBox*>(q("prefixSuffixDateGroup"));
    EXPECT_FALSE(dateGroup->isEnabled());
    QSignalSpy changes(&settings(), &Settings::settingsChanged);
    perform("prefixSuffixDate");
    EXPECT_EQ(changes.count(), 0);
    EXPECT_TRUE(settings().isPrefixSuffixDate());
    EXPECT_TRUE(dateGroup->isEnabled());
    EXPECT_FALSE(page->findChild<QGroupBox*>(q("prefixSuffixTextGroup"))->isEnabled());

    // Literal fields give the same text at any moment.
    for (auto set : { &Settings::setPrefixSuffixDatePart1, &Settings::setPrefixSuffixDatePart2,
             &Settings::setPrefixSuffixDatePart3, &Settings::setPrefixSuffixTimePart1,
             &Settings::setPrefixSuffixTimePart2, &Settings::setPrefixSuffixTimePart3 })
        (settings().*set)(q("None"));
    settings().setPrefixSuffixDateSeperator1(q("'day'"));
    settings().setPrefixSuffixTimeSeperator1(q("'time'"));
    perform(Settings::prefixSuffixDatePrefixKey, q("a:("));
    perform(Settings::prefixSuffixDateSuffixKey, q(")"));
    EXPECT_EQ(example("prefixSuffixExample"), q("Example: a/(day time)"));
}

TEST_F(DateTabsTest, PathComponentsPlaceIsChosenWithoutAPreview)
{
    showTab(tabs::PathComponents);
    perform(Settings::pathComponentsLevelNoKey, q("3"));
    EXPECT_EQ(settings().pathComponentsLevelNo(), 3);
    QSignalSpy changes(&settings(), &Settings::settingsChanged);
    perform("pathComponentsPlace4");
    EXPECT_EQ(changes.count(), 0);
    EXPECT_TRUE(settings().isPathComponentsAtAfterText());
    EXPECT_TRUE(isEnabled(Settings::pathComponentsAtAfterTextKey));
    EXPECT_FALSE(isEnabled(Settings::pathComponentsAtBeforeTextKey));
}

TEST_F(DateTabsTest, AMissingAnchorWarnsAndTakesTheFocusToItsField)
{
    const struct {
        int tab;
        const char* place;
        const char* focusKey;
        const char* titleKey;
    } rows[] = {
        { tabs::DateTime, "dateTimePlace3", Settings::dateTimeAtBeforeTextKey, "DATETIMEATBEFORETEXTINVALIDINPUT" },
        { tabs::PathComponents, "pathComponentsPlace4", Settings::pathComponentsAtAfterTextKey, "PATHTEXTATAFTERTEXT" },
    };
    listFiles({ u"a_b.txt"_s });
    for (const auto& row : rows) {
        showTab(row.tab);
        perform(row.place);
        window.tableView()->setFocus();
        QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
        EXPECT_EQ(prompter->alertTexts().last(), localized(row.titleKey) + u'|' + localized("ENTERSOMETEXT"));
        EXPECT_EQ(QApplication::focusWidget(), page->fieldForOption(q(row.focusKey))) << row.place;
    }
}

} // namespace
