#include "ActionTestSupport.h"
#include "DateTestSupport.h"
#include "core/engine/actions/prefixsuffix.h"

#include <QFile>
#include <functional>
#include <gtest/gtest.h>

using namespace tavrin;
using test::q;

namespace {

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

    QString proposal(const PrefixSuffixOptions& options, const char* onDisk = "a.jpg", const char* earlier = "")
    {
        FileSystemItem record = item(onDisk, earlier);
        test::setModified(record.fullPath(), test::inBerlin(2021, 3, 5, 14, 30));
        QString error;
        EXPECT_TRUE(renameByPrefixSuffix(record, options, error));
        return record.newFilename();
    }
};

TEST_F(PrefixSuffixAction, AddsTextsOrADateAroundTheName)
{
    const test::ActionRow<PrefixSuffixOptions> rows[] = {
        {"prefix", "a.jpg", text("IMG_", ""), "IMG_a.jpg"},
        {"typed slashes", "a.jpg", text("x/", "/y"), "x:a:y.jpg"},
        {"a space between date and time", "a.jpg", date(), "05032021 143000a.jpg"},
        {"every field None: the fallbacks", "a.jpg", date([](auto& o) {
             o.dateFields = o.timeFields = {q("None"), {}, q("None"), {}, q("None")};
         }),
         "03/05/2021 02 30 00 PMa.jpg"},
        {"neither side: the name stays", "a.jpg", date([](auto& o) { o.isDatePrefix = false; }), "a.jpg"},
        {"after the name, slashes and colons as typed", "a.jpg", date([](auto& o) {
             o.isDatePrefix = false; o.isDateSuffix = true; o.datePrefix = q("_/");
             o.dateFields = {q("dd"), q("/"), q("MM"), {}, q("None")};
             o.timeFields = {q("HH"), q(":"), q("mm"), {}, q("None")};
         }),
         "a_/05/03 14:30.jpg"},
        {"an unknown date: no date text", "a.jpg", date([](auto& o) {
             o.fileDate = test::unknown<prefixsuffixdate::PrefixSuffixDate>(3);
             o.datePrefix = q("<");
             o.dateSuffix = q(">");
         }),
         "<>a.jpg"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(proposal(row.options, row.onDisk, row.earlierProposal), q(row.expected)) << row.name;
}

// Either side of an hour that the run may cross is today.
TEST_F(PrefixSuffixAction, AnItemWhoseDatesCannotBeReadGetsToday)
{
    FileSystemItem gone = item("gone.jpg");
    ASSERT_TRUE(QFile::remove(gone.fullPath()));
    const auto hourNow = [] { return QDateTime::currentDateTime().toString(u"yyyyMMdd HH"); };
    const QString before = hourNow();
    QString error;
    ASSERT_TRUE(renameByPrefixSuffix(gone, date([](auto& o) {
        o.dateFields = {q("yyyyMMdd"), {}, q("None"), {}, q("None")};
        o.timeFields = {q("HH"), {}, q("None"), {}, q("None")};
    }), error));
    EXPECT_TRUE(gone.newFilename().startsWith(before) || gone.newFilename().startsWith(hourNow()));
}

}  // namespace
