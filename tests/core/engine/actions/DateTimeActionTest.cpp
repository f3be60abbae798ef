#include "ActionTestSupport.h"
#include "DateTestSupport.h"
#include "core/engine/actions/datetime.h"
#include "core/text/LocalizedStrings.h"

#include <QFile>
#include <functional>
#include <gtest/gtest.h>

using namespace tavrin;
using test::q;

namespace {

const QDateTime kModified = test::inBerlin(2021, 3, 5, 14, 30);

// The tab's defaults, dated by the modification date that the tests set.
DateTimeOptions with(const std::function<void(DateTimeOptions&)>& change = {})
{
    DateTimeOptions options;
    options.source = datetimesource::Modified;
    options.dateFields = {q("dd"), {}, q("MM"), {}, q("yyyy")};
    options.timeFields = {q("HH"), {}, q("mm"), {}, q("ss")};
    if (change)
        change(options);
    return options;
}

DateTimeOptions dateOnly(const std::function<void(DateTimeOptions&)>& change = {})
{
    return with([&](DateTimeOptions& options) {
        options.hasTimeFormat = false;
        if (change)
            change(options);
    });
}

void placed(DateTimeOptions& options, insertoption::InsertPlace place)
{
    options.placement.place = place;
}

class DateTimeAction : public test::ActionTest {
protected:
    void SetUp() override { test::useFixedZoneAndLocale(); }

    FileSystemItem modifiedItem(const char* onDisk, const char* earlierProposal = "")
    {
        FileSystemItem record = item(onDisk, earlierProposal);
        test::setModified(record.fullPath(), kModified);
        return record;
    }

    void expectFailure(FileSystemItem& record, const DateTimeOptions& options, const char* reason)
    {
        QString error;
        EXPECT_FALSE(renameByDateTime(record, options, error)) << reason;
        EXPECT_TRUE(error.startsWith(localized("UNABLETOGENERATENEWFILENAMEERROR").section(u'%', 0, 0)))
            << qPrintable(error);
        EXPECT_TRUE(error.contains(q(reason))) << qPrintable(error);
    }
};

TEST_F(DateTimeAction, FormatsTheDateFromItsFieldsAndPlacesIt)
{
    const test::ActionRow<DateTimeOptions> rows[] = {
        {"defaults", "a.txt", with(), "05032021143000a.txt"},
        {"time flag off", "a.txt", dateOnly(), "05032021a.txt"},
        {"date flag off", "a.txt", with([](auto& o) { o.hasDateFormat = false; }), "143000a.txt"},
        {"every field None: the fallbacks", "a.txt", with([](auto& o) {
             o.dateFields = {q("None"), {}, q("None"), {}, q("None")};
             o.timeFields = o.dateFields;
         }),
         "03:05:202102 30 00 PMa.txt"},
        {"separators stay beside left-out fields", "a.txt",
         dateOnly([](auto& o) { o.dateFields = {q("None"), q("-"), q("MMM"), q("-"), q("None")}; }), "-Mar-a.txt"},
        {"quoted date/time separator", "a.txt", with([](auto& o) { o.dateTimeSeparator = q("_"); }),
         "05032021_143000a.txt"},
        {"letters and a quote as the separator", "a.txt", with([](auto& o) { o.dateTimeSeparator = q("h'"); }),
         "05032021h'143000a.txt"},
        {"no separator without the date", "a.txt", with([](auto& o) {
             o.hasDateFormat = false;
             o.dateTimeSeparator = q("_");
         }),
         "143000a.txt"},
        {"both flags off", "a.txt", with([](auto& o) { o.hasDateFormat = o.hasTimeFormat = false; }),
         "05:03:2021 02:30:00 PMa.txt"},
        {"colons replaced", "a.txt", with([](auto& o) {
             o.hasDateFormat = false;
             o.timeFields = {q("HH"), q(":"), q("mm"), {}, q("None")};
             o.isColonReplace = true;
             o.colonReplace = q("-");
         }),
         "14-30a.txt"},
        {"colons removed", "a.txt", with([](auto& o) {
             o.hasDateFormat = false;
             o.timeFields = {q("HH"), q(":"), q("mm"), {}, q("None")};
             o.isColonReplace = true;
         }),
         "1430a.txt"},
        {"prefix and suffix", "a.txt", dateOnly([](auto& o) {
             o.prefix = q("IMG/");
             o.suffix = q(" ");
         }),
         "IMG:05032021 a.txt"},
        {"directives of the suffix", "a.txt", dateOnly([](auto& o) { o.suffix = q("_%d%%x%-5.2lf!%"); }),
         "05032021_%x!a.txt"},
        {"directives of the date text", "a.txt",
         dateOnly([](auto& o) { o.dateFields = {q("dd"), q("%%"), q("MM"), q("%@"), q("yyyy")}; }),
         "05%032021a.txt"},
        {"the prefix is literal", "a.txt", dateOnly([](auto& o) { o.prefix = q("%d"); }), "%d05032021a.txt"},
        {"at the end", "a.txt", dateOnly([](auto& o) { placed(o, insertoption::AtEnd); }), "a05032021.txt"},
        {"position 2 from the end", "abc.txt", dateOnly([](auto& o) {
             placed(o, insertoption::AtPosition);
             o.placement.position = 2;
             o.placement.direction = insertdirection::FromEnd;
         }),
         "ab05032021c.txt"},
        {"before an absent anchor: unchanged", "a_b.txt", dateOnly([](auto& o) {
             placed(o, insertoption::BeforeText);
             o.placement.beforeText = q("x");
         }),
         "a_b.txt"},
        {"before the second anchor", "a_b_c.txt", dateOnly([](auto& o) {
             placed(o, insertoption::BeforeText);
             o.placement.beforeText = q("_");
             o.placement.beforeOccurrence = 2;
         }),
         "a_b05032021_c.txt"},
        {"after the anchor", "a_b.txt", dateOnly([](auto& o) {
             placed(o, insertoption::AfterText);
             o.placement.afterText = q("_");
         }),
         "a_05032021b.txt"},
        {"custom date", "a.txt", with([](auto& o) {
             o.source = datetimesource::Custom;
             o.customDate = QDateTime(QDate(2020, 12, 31), QTime(23, 59, 58), QTimeZone::utc());
             o.dateFields = {q("EEEE"), q(" "), q("d"), q(" "), q("MMMM")};
             o.dateTimeSeparator = q(" ");
             o.timeFields = {q("h"), q("."), q("mm"), {}, q("a")};
         }),
         "Friday 1 January 12.59AMa.txt"},
        {"earlier proposal", "a.txt", dateOnly(), "05032021b.MP3", "b.MP3"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        FileSystemItem record = modifiedItem(row.onDisk, row.earlierProposal);
        QString error;
        EXPECT_TRUE(renameByDateTime(record, row.options, error));
        EXPECT_EQ(error, QString());
        EXPECT_EQ(record.newFilename(), q(row.expected));
    }
}

TEST_F(DateTimeAction, TheCreationDateIsTheOneStatxReports)
{
    FileSystemItem record = modifiedItem("a.txt");
    QString error;
    ASSERT_TRUE(renameByDateTime(record, with([](auto& o) { o.source = datetimesource::Created; }), error));
    EXPECT_EQ(record.newFilename(),
              test::reportedCreation(record.fullPath()).toString(u"ddMMyyyyHHmmss") + q("a.txt"));
}

TEST_F(DateTimeAction, NoDateFailsAndKeepsTheProposal)
{
    FileSystemItem gone = modifiedItem("gone.txt", "earlier.txt");
    ASSERT_TRUE(QFile::remove(gone.fullPath()));
    expectFailure(gone, with(), "gone.txt");
    EXPECT_EQ(gone.newFilename(), q("earlier.txt"));

    FileSystemItem unknown = modifiedItem("a.txt");
    expectFailure(unknown, with([](auto& o) { o.source = test::unknown<datetimesource::DateTimeSource>(3); }),
                  "3");
    EXPECT_EQ(unknown.newFilename(), QString());

    FileSystemItem noCustomDate = modifiedItem("a.txt");
    expectFailure(noCustomDate, with([](auto& o) { o.source = datetimesource::Custom; }), "a.txt");

    // The custom date needs no attributes.
    QString error;
    EXPECT_TRUE(renameByDateTime(gone, dateOnly([](auto& o) {
        o.source = datetimesource::Custom;
        o.customDate = kModified;
    }), error));
    EXPECT_EQ(gone.newFilename(), q("05032021earlier.txt"));
}

TEST_F(DateTimeAction, TheTabsOptionsAreReadByKey)
{
    Settings settings;
    settings.chooseDateTimeSource(datetimesource::Modified);
    settings.chooseDateTimePlacement(insertoption::AfterText);
    settings.setDateTimeAtAfterText(q("_"));
    settings.setDateTimeAtAfterTextOccurrence(q("2"));
    settings.setDateTimeFormatDatePart1(q("yyyy"));
    settings.setDateTimeFormatDateSeperator1(q("-"));
    settings.setDateTimeFormatDatePart2(q("MM"));
    settings.setDateTimeFormatDateSeperator2(q("-"));
    settings.setDateTimeFormatDatePart3(q("dd"));
    settings.setDateTimeSeparator(q("T"));
    settings.setDateTimeFormatTimePart1(q("HH"));
    settings.setDateTimeFormatTimeSeperator1(q(":"));
    settings.setDateTimeFormatTimePart2(q("mm"));
    settings.setDateTimeFormatTimeSeperator2(q(":"));
    settings.setDateTimeFormatTimePart3(q("None"));
    settings.setIsDateTimeColonReplace(true);
    settings.setDateTimeColonReplace(q("h"));
    settings.setDateTimePrefix(q("["));
    settings.setDateTimeSuffix(q("]"));
    FileSystemItem record = modifiedItem("a_b_c.txt");
    QString error;
    ASSERT_TRUE(renameByDateTime(record, test::optionsFrom<DateTimeOptions>(settings), error));
    EXPECT_EQ(record.newFilename(), q("a_b_[2021-03-05T14h30h]c.txt"));

    settings.chooseDateTimeSource(datetimesource::Custom);
    settings.setDateTimeCustomDate(test::inBerlin(1999, 12, 31, 23, 59));
    settings.setHasTimeFormat(false);
    settings.chooseDateTimePlacement(insertoption::AtPosition);
    settings.setDateTimeAtPositionNo(q("1"));
    settings.setDateTimeAtPositionDirection(insertdirection::FromEnd);
    record.setObject(QString(), QStringLiteral("newFilename"));
    ASSERT_TRUE(renameByDateTime(record, test::optionsFrom<DateTimeOptions>(settings), error));
    EXPECT_EQ(record.newFilename(), q("a_b_c[1999-12-31].txt"));
}

}  // namespace
