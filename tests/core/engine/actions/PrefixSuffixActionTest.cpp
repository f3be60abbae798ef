#include "ActionTestSupport.h"
#include "DateTestSupport.h"
#include "core/engine/actions/prefixsuffix.h"

#include <QFile>
#include <functional>
#include <gtest/gtest.h>

using namespace tavrin;
using test::q;

namespace {

const QDateTime kModified = test::inBerlin(2021, 3, 5, 14, 30);

PrefixSuffixOptions text(const char* prefix, const char* suffix)
{
    return {.prefix = q(prefix), .suffix = q(suffix)};
}

// Date mode with the tab's fields, dated by the modification date, before the name.
PrefixSuffixOptions date(const std::function<void(PrefixSuffixOptions&)>& change = {})
{
    PrefixSuffixOptions options {.isString = false,
                                 .prefix = q("unused"),
                                 .isDatePrefix = true,
                                 .fileDate = prefixsuffixdate::Modified,
                                 .dateFields = {q("dd"), {}, q("MM"), {}, q("yyyy")},
                                 .timeFields = {q("HH"), {}, q("mm"), {}, q("ss")}};
    if (change)
        change(options);
    return options;
}

class PrefixSuffixAction : public test::ActionTest {
protected:
    void SetUp() override { test::useFixedZoneAndLocale(); }

    FileSystemItem modifiedItem(const char* onDisk, const char* earlierProposal = "")
    {
        FileSystemItem record = item(onDisk, earlierProposal);
        test::setModified(record.fullPath(), kModified);
        return record;
    }

    QString proposal(FileSystemItem& record, const PrefixSuffixOptions& options)
    {
        QString error;
        EXPECT_TRUE(renameByPrefixSuffix(record, options, error));
        EXPECT_EQ(error, QString());
        return record.newFilename();
    }
};

TEST_F(PrefixSuffixAction, AddsTextsOrADateAroundTheName)
{
    const test::ActionRow<PrefixSuffixOptions> rows[] = {
        {"prefix", "a.jpg", text("IMG_", ""), "IMG_a.jpg"},
        {"suffix", "a.jpg", text("", "_v2"), "a_v2.jpg"},
        {"typed slashes", "a.jpg", text("x/", "/y"), "x:a:y.jpg"},
        {"no extension", "README", text("[", "]"), "[README]"},
        {"earlier proposal", "a.jpg", text("IMG_", "_1"), "IMG_b_1.MP3", "b.MP3"},
        {"date before the name, a space between date and time", "a.jpg", date(), "05032021 143000a.jpg"},
        {"every field None: the fallbacks", "a.jpg", date([](auto& o) {
             o.dateFields = {q("None"), {}, q("None"), {}, q("None")};
             o.timeFields = o.dateFields;
         }),
         "03/05/2021 02 30 00 PMa.jpg"},
        {"neither side: the name stays", "a.jpg", date([](auto& o) { o.isDatePrefix = false; }), "a.jpg"},
        {"both sides", "a.jpg", date([](auto& o) {
             o.isDateSuffix = true;
             o.datePrefix = q("(");
             o.dateSuffix = q(")");
         }),
         "(05032021 143000)a(05032021 143000).jpg"},
        {"after the name, texts as typed", "a.jpg", date([](auto& o) {
             o.isDatePrefix = false;
             o.isDateSuffix = true;
             o.dateFields = {q("dd"), q("/"), q("MM"), {}, q("None")};
             o.timeFields = {q("HH"), q(":"), q("mm"), {}, q("None")};
             o.datePrefix = q("_/");
         }),
         "a_/05/03 14:30.jpg"},
        {"an unknown date: no date text", "a.jpg", date([](auto& o) {
             o.fileDate = test::unknown<prefixsuffixdate::PrefixSuffixDate>(3);
             o.datePrefix = q("<");
             o.dateSuffix = q(">");
         }),
         "<>a.jpg"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        FileSystemItem record = modifiedItem(row.onDisk, row.earlierProposal);
        EXPECT_EQ(proposal(record, row.options), q(row.expected));
    }
}

TEST_F(PrefixSuffixAction, TheCreationDateIsTheOneStatxReports)
{
    FileSystemItem record = modifiedItem("a.jpg");
    EXPECT_EQ(proposal(record, date([](auto& o) { o.fileDate = prefixsuffixdate::Created; })),
              test::reportedCreation(record.fullPath()).toString(u"ddMMyyyy HHmmss") + q("a.jpg"));
}

// The run may cross an hour: either side of it is today.
TEST_F(PrefixSuffixAction, TodayIsUsedWhenAskedForAndWhenTheDatesCannotBeRead)
{
    const auto hourNow = [] { return QDateTime::currentDateTime().toString(u"yyyyMMdd HH"); };
    const auto byTheHour = [](PrefixSuffixOptions& o) {
        o.dateFields = {q("yyyy"), {}, q("MM"), {}, q("dd")};
        o.timeFields = {q("HH"), {}, q("None"), {}, q("None")};
    };
    FileSystemItem gone = modifiedItem("gone.jpg");
    ASSERT_TRUE(QFile::remove(gone.fullPath()));
    FileSystemItem present = modifiedItem("a.jpg");
    const struct {
        const char* name;
        FileSystemItem& record;
        prefixsuffixdate::PrefixSuffixDate fileDate;
    } rows[] = {
        {"today", present, prefixsuffixdate::Today},
        {"unreadable", gone, prefixsuffixdate::Modified},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const QString before = hourNow();
        const QString name = proposal(row.record, date([&](auto& o) {
            byTheHour(o);
            o.fileDate = row.fileDate;
        }));
        const QString after = hourNow();
        EXPECT_TRUE(name.startsWith(before) || name.startsWith(after)) << qPrintable(name);
    }
}

TEST_F(PrefixSuffixAction, TheTabsOptionsAreReadByKey)
{
    Settings settings;
    settings.setPrefixSuffixPrefix(q("p_"));
    settings.setPrefixSuffixSuffix(q("_s"));
    FileSystemItem record = modifiedItem("a.jpg");
    EXPECT_EQ(proposal(record, test::optionsFrom<PrefixSuffixOptions>(settings)), q("p_a_s.jpg"));

    settings.choosePrefixSuffixMode(1);
    settings.setIsPrefixSuffixDateSuffix(true);
    settings.setPrefixSuffixFileDateAttribute(prefixsuffixdate::Modified);
    settings.setPrefixSuffixDatePart1(q("yyyy"));
    settings.setPrefixSuffixDateSeperator1(q("-"));
    settings.setPrefixSuffixDatePart2(q("MM"));
    settings.setPrefixSuffixDateSeperator2(q("-"));
    settings.setPrefixSuffixDatePart3(q("dd"));
    settings.setPrefixSuffixTimePart1(q("HH"));
    settings.setPrefixSuffixTimeSeperator1(q("."));
    settings.setPrefixSuffixTimePart2(q("mm"));
    settings.setPrefixSuffixTimeSeperator2(q("."));
    settings.setPrefixSuffixTimePart3(q("ss"));
    settings.setPrefixSuffixDatePrefix(q(" ["));
    settings.setPrefixSuffixDateSuffix(q("]"));
    record.setObject(QString(), QStringLiteral("newFilename"));
    EXPECT_EQ(proposal(record, test::optionsFrom<PrefixSuffixOptions>(settings)), q("a [2021-03-05 14.30.00].jpg"));
}

}  // namespace
