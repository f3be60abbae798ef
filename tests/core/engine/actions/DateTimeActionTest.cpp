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
const DateFormatFields kNoFields {q("None"), {}, q("None"), {}, q("None")};
using Change = std::function<void(DateTimeOptions&)>;

// The tab's defaults, dated by the modification date that the tests set.
DateTimeOptions with(const Change& change = {})
{
    DateTimeOptions options;
    options.source = datetimesource::Modified;
    options.dateFields = {q("dd"), {}, q("MM"), {}, q("yyyy")};
    options.timeFields = {q("HH"), {}, q("mm"), {}, q("ss")};
    if (change)
        change(options);
    return options;
}

DateTimeOptions dateOnly(const Change& change = {})
{
    return with([&](DateTimeOptions& options) {
        options.hasTimeFormat = false;
        if (change)
            change(options);
    });
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
        EXPECT_TRUE(error.startsWith(localized("UNABLETOGENERATENEWFILENAMEERROR").section(u'%', 0, 0)));
        EXPECT_TRUE(error.contains(q(reason))) << qPrintable(error);
    }
};

TEST_F(DateTimeAction, FormatsTheDateFromItsFieldsAndPlacesIt)
{
    const test::ActionRow<DateTimeOptions> rows[] = {
        {"defaults", "a.txt", with(), "05032021143000a.txt"},
        {"time flag off", "a.txt", dateOnly(), "05032021a.txt"},
        {"every field None: the fallbacks, slashes kept as colons", "a.txt",
         with([](auto& o) { o.dateFields = o.timeFields = kNoFields; }), "03:05:202102 30 00 PMa.txt"},
        {"separators stay beside left-out fields", "a.txt",
         dateOnly([](auto& o) { o.dateFields = {q("None"), q("-"), q("MMM"), q("-"), q("None")}; }), "-Mar-a.txt"},
        {"quoted date/time separator", "a.txt", with([](auto& o) { o.dateTimeSeparator = q("_"); }),
         "05032021_143000a.txt"},
        {"letters and a quote as the separator", "a.txt", with([](auto& o) { o.dateTimeSeparator = q("h'"); }),
         "05032021h'143000a.txt"},
        {"both flags off", "a.txt", with([](auto& o) { o.hasDateFormat = o.hasTimeFormat = false; }),
         "05:03:2021 02:30:00 PMa.txt"},
        {"colons replaced", "a.txt", with([](auto& o) {
             o.hasDateFormat = false;
             o.timeFields = {q("HH"), q(":"), q("mm"), {}, q("None")};
             o.isColonReplace = true;
             o.colonReplace = q("-");
         }),
         "14-30a.txt"},
        {"prefix and suffix, the prefix literal", "a.txt",
         dateOnly([](auto& o) { o.prefix = q("%d/"); o.suffix = q(" "); }), "%d:05032021 a.txt"},
        {"directives of the suffix", "a.txt", dateOnly([](auto& o) { o.suffix = q("_%d%%x%-5.2lf!%"); }),
         "05032021_%x!a.txt"},
        {"directives of the date text", "a.txt",
         dateOnly([](auto& o) { o.dateFields = {q("dd"), q("%%"), q("MM"), q("%@"), q("yyyy")}; }),
         "05%032021a.txt"},
        {"before an absent anchor: unchanged", "a_b.txt", dateOnly([](auto& o) {
             o.placement.place = insertoption::BeforeText;
             o.placement.beforeText = q("x");
         }),
         "a_b.txt"},
        {"custom date, in the default zone and language", "a.txt", with([](auto& o) {
             o.source = datetimesource::Custom;
             o.customDate = QDateTime(QDate(2020, 12, 31), QTime(23, 59, 58), QTimeZone::utc());
             o.dateFields = {q("EEEE"), q(" "), q("d"), q(" "), q("MMMM")};
             o.timeFields = {q("h"), q("."), q("mm"), {}, q("a")};
         }),
         "Friday 1 January12.59AMa.txt"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        FileSystemItem record = modifiedItem(row.onDisk, row.earlierProposal);
        QString error;
        EXPECT_TRUE(renameByDateTime(record, row.options, error));
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
    FileSystemItem record = modifiedItem("a.txt");
    expectFailure(record, with([](auto& o) { o.source = test::unknown<datetimesource::DateTimeSource>(3); }), "3");
}

}  // namespace
