#include "core/text/DateHelpers.h"

#include <QTimeZone>
#include <gtest/gtest.h>
#include <time.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

using namespace tavrin;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

// Berlin has an offset in winter and another in summer, so a wrong zone or a zone applied
// twice shows up; nothing here depends on the machine's own zone or language.
void useTimeZone(const char* zoneId)
{
    qputenv("TZ", zoneId);
    tzset();
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(zoneId)));
}

class DateHelpers : public ::testing::Test {
protected:
    void SetUp() override
    {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(icu::Locale("en_US"), status);
        ASSERT_TRUE(U_SUCCESS(status));
        useTimeZone("Europe/Berlin");
    }
};

QDateTime utc(int year, int month, int day, int hour, int minute, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), QTimeZone::utc());
}

struct XmpRow {
    const char* text;
    QDateTime expected;
};

TEST_F(DateHelpers, DateFromStringReadsAnXmpDateWithAColonInItsOffset)
{
    const XmpRow rows[] = {
        {"2021-03-05T14:30:00+01:00", utc(2021, 3, 5, 13, 30)},
        {"2021-03-05T14:30:00-05:00", utc(2021, 3, 5, 19, 30)},
        {"2021-03-05T14:30:00+00:00", utc(2021, 3, 5, 14, 30)},
        {"2021-07-01T00:00:59+05:30", utc(2021, 6, 30, 18, 30, 59)},
        {"1999-12-31T23:59:59+01:00", utc(1999, 12, 31, 22, 59, 59)},
    };
    for (const XmpRow& row : rows) {
        const std::optional<QDateTime> date = dateFromString(q(row.text));
        ASSERT_TRUE(date.has_value()) << row.text;
        EXPECT_EQ(date->toMSecsSinceEpoch(), row.expected.toMSecsSinceEpoch()) << row.text;
    }
}

TEST_F(DateHelpers, DateFromStringRefusesWhatDoesNotParseWhole)
{
    const char* const texts[] = {
        "",
        "garbage",
        "2021-03-05",
        "2021-03-05T14:30:00",
        // Without a colon in the offset the one in the seconds is the last and goes.
        "2021-03-05T14:30:00+0100",
        "2021-03-05T14:30:00Z",
        "2021-13-05T14:30:00+01:00",
        "2021-02-30T14:30:00+01:00",
        "2021-03-05T25:30:00+01:00",
        "2021-03-05 14:30:00+01:00",
        "2021-03-05T14:30:00+01:00 later",
        "x2021-03-05T14:30:00+01:00",
    };
    for (const char* text : texts)
        EXPECT_FALSE(dateFromString(q(text)).has_value()) << text;
}

struct ExifRow {
    const char* text;
    const char* expected;
};

TEST_F(DateHelpers, StringToFormattedDateDescribesTheLocalWallTimeWithItsOffset)
{
    const ExifRow rows[] = {
        {"2021:03:05 14:30:00", "2021-03-05 14:30:00 +0100"},
        {"2021:07:05 14:30:00", "2021-07-05 14:30:00 +0200"},
        {"2000:01:01 00:00:00", "2000-01-01 00:00:00 +0100"},
        // Already dashed: only colons are turned into dashes.
        {"2021-03-05 14:30:00", "2021-03-05 14:30:00 +0100"},
    };
    for (const ExifRow& row : rows) {
        const std::optional<QString> described = stringToFormattedDate(q(row.text));
        ASSERT_TRUE(described.has_value()) << row.text;
        EXPECT_EQ(*described, q(row.expected)) << row.text;
    }
}

TEST_F(DateHelpers, StringToFormattedDateFollowsTheDefaultZone)
{
    useTimeZone("UTC");
    EXPECT_EQ(stringToFormattedDate(q("2021:07:05 14:30:00")), q("2021-07-05 14:30:00 +0000"));
    useTimeZone("America/New_York");
    EXPECT_EQ(stringToFormattedDate(q("2021:07:05 14:30:00")), q("2021-07-05 14:30:00 -0400"));
}

TEST_F(DateHelpers, StringToFormattedDateAnswersNothingForUnsetOrBrokenDates)
{
    const char* const texts[] = {
        "",
        "0000:00:00 00:00:00",
        "2021:03:05",
        "2021:03",
        "2021:03:05 14-30-00",  // only the date part has its colons changed
        "2021:02:30 10:00:00",
        "2021:00:05 10:00:00",
        "2021:03:05 14:30:00 junk",
        "2021:03:05T14:30:00",
    };
    for (const char* text : texts)
        EXPECT_FALSE(stringToFormattedDate(q(text)).has_value()) << text;
}

struct FormatRow {
    const char* pattern;
    const char* expected;
};

TEST_F(DateHelpers, FormatDateUsesUnicodePatternsInTheDefaultZone)
{
    // 13:05:09 UTC is 14:05:09 in Berlin in winter.
    const QDateTime moment = utc(2021, 3, 5, 13, 5, 9);
    const FormatRow rows[] = {
        {"yyyy-MM-dd HH:mm:ss", "2021-03-05 14:05:09"},
        {"dd.MM.yy", "05.03.21"},
        {"d/M/yyyy", "5/3/2021"},
        {"hh a", "02 PM"},
        {"yyyyMMdd'T'HHmm", "20210305T1405"},
        {"MMMM", "March"},
        {"'literal'", "literal"},
        {"", ""},
    };
    for (const FormatRow& row : rows)
        EXPECT_EQ(formatDate(moment, q(row.pattern)), q(row.expected)) << row.pattern;
}

TEST_F(DateHelpers, FormatDateFollowsAZoneChangeAfterAFormatterWasBuilt)
{
    const QDateTime moment = utc(2021, 7, 5, 12, 0);
    EXPECT_EQ(formatDate(moment, q("HH:mm")), q("14:00"));
    useTimeZone("Asia/Tokyo");
    EXPECT_EQ(formatDate(moment, q("HH:mm")), q("21:00"));
}

TEST_F(DateHelpers, FormatDateOfAnInvalidMomentIsEmpty)
{
    EXPECT_EQ(formatDate(QDateTime(), q("yyyy")), QString());
}

TEST_F(DateHelpers, ParsedDatesFormatBackToTheirWallTime)
{
    const std::optional<QDateTime> date = dateFromString(q("2021-03-05T14:30:00+01:00"));
    ASSERT_TRUE(date.has_value());
    EXPECT_EQ(formatDate(*date, q("yyyy-MM-dd HH:mm:ss Z")), q("2021-03-05 14:30:00 +0100"));
}

}  // namespace
