#include "CliRunner.h"
#include "core/engine/actions/DateTestSupport.h"
#include "support/TempTree.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace tavrin;
using test::CliRun;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

QStringList sets(std::initializer_list<const char*> assignments)
{
    QStringList options;
    for (const char* assignment : assignments)
        options << QStringLiteral("--set") << q(assignment);
    return options;
}

// Photos modified at 14:30 on 5 March 2021 in Berlin, in "Trips/Rome", and a support folder
// of the test's own; dates in the zone of TZ and, under LC_ALL=C, in US English.
class DateCommandTest : public ::testing::Test {
protected:
    DateCommandTest()
    {
        environment.insert(QStringLiteral("XDG_DATA_HOME"), tree.path(QStringLiteral("data")));
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
        environment.insert(QStringLiteral("TZ"), q(test::kZone));
        for (const char* name : {"Trips/Rome/IMG_1.jpg", "Trips/Rome/IMG_2.jpg"})
            test::setModified(tree.file(q(name)), test::inBerlin(2021, 3, 5, 14, 30));
    }

    CliRun run(const char* command, const char* tab, const QStringList& options)
    {
        QStringList arguments {q(command), QStringLiteral("--recursive"), QStringLiteral("--yes"),
                               QStringLiteral("--tab"), q(tab)};
        arguments << options << tree.path(QStringLiteral("Trips"));
        return test::runCli(arguments, QString(), environment);
    }

    QString firstLine(const char* tab, const QStringList& options)
    {
        const CliRun preview = run("preview", tab, options);
        EXPECT_EQ(preview.exitCode, 0) << qPrintable(preview.err);
        return preview.out.section(u'\n', 0, 0);
    }

    QStringList appliedNames(const char* tab, const QStringList& options)
    {
        const CliRun apply = run("apply", tab, options);
        EXPECT_EQ(apply.exitCode, 0) << qPrintable(apply.err);
        return QDir(tree.path(q("Trips/Rome"))).entryList(QDir::Files, QDir::Name);
    }

    void expectInvalid(const char* tab, const QStringList& options, const char* message)
    {
        const CliRun invalid = run("preview", tab, options);
        EXPECT_EQ(invalid.exitCode, 2);
        EXPECT_TRUE(invalid.err.contains(q(message))) << qPrintable(invalid.err);
        EXPECT_TRUE(invalid.out.isEmpty());
    }

    test::TempTree tree;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

TEST_F(DateCommandTest, DateTimeTab)
{
    EXPECT_EQ(firstLine("datetime", sets({"dateTimeDateOptionIndex=2", "dateTimeCustomDate=2021-03-04T05:06:07Z",
                                          "dateTimeFormatDatePart2=MMMM", "dateTimeSeparator=_"})),
              q("IMG_1.jpg\t04March2021_060607IMG_1.jpg"));
    EXPECT_EQ(appliedNames("datetime", sets({"dateTimeDateOptionIndex=1", "dateTimeOptionsIndex=4",
                                             "dateTimeAtAfterText=_", "hasTimeFormat=0"})),
              QStringList({q("IMG_050320211.jpg"), q("IMG_050320212.jpg")}));
    expectInvalid("datetime", sets({"dateTimeOptionsIndex=3"}),
                  "Insert the Date Before Which Text?: Please enter the text to look for.");
}

TEST_F(DateCommandTest, PrefixSuffixTab)
{
    EXPECT_EQ(firstLine("prefixsuffix", sets({"prefixSuffixPrefix=Rome/", "prefixSuffixSuffix=_x"})),
              q("IMG_1.jpg\tRome/IMG_1_x.jpg"));
    EXPECT_EQ(appliedNames("prefixsuffix", sets({"prefixSuffixIndex=1", "isPrefixSuffixDateSuffix=1",
                                                 "prefixSuffixFileDateAttribute=2", "prefixSuffixDatePrefix= "})),
              QStringList({q("IMG_1 05032021 143000.jpg"), q("IMG_2 05032021 143000.jpg")}));
    expectInvalid("prefixsuffix", sets({"prefixSuffixIndex=2"}), "'2' is not a choice of 'prefixSuffixIndex'");
}

TEST_F(DateCommandTest, PathComponentsTab)
{
    EXPECT_EQ(appliedNames("pathcomponents", sets({"pathComponentsLevelNo=2", "pathComponentsSeparator=-",
                                                   "pathComponentsSuffix= ", "pathComponentsOptionsIndex=3",
                                                   "pathComponentsAtBeforeText=_"})),
              QStringList({q("IMGTrips-Rome _1.jpg"), q("IMGTrips-Rome _2.jpg")}));
    expectInvalid("pathcomponents", sets({"pathComponentsOptionsIndex=4"}),
                  "Insert the Folder Name After Which Text?: Please enter the text to look for.");
}

}  // namespace
