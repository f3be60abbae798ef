#include "core/list/FilesComparison.h"

#include <QLocale>
#include <clocale>
#include <gtest/gtest.h>
#include <string>
#include <thread>

using namespace tavrin;

namespace {

QString str(const char* text)
{
    return QString::fromUtf8(text);
}

int sign(int value)
{
    return (value > 0) - (value < 0);
}

struct OrderRow {
    const char* before;
    const char* after;
};

// Each row: the first text sorts strictly before the second.
const OrderRow kOrderRows[] = {
    { "file9", "File10" },
    { "file9.txt", "file10.txt" },
    { "IMG_2", "img_10" },
    { "a", "B" },
    { "b", "C" },
    { "x2y", "x10y" },
    { "x10a", "x10b" },
    { "Z1", "z01a" },
    { "abc", "abcd" },
    { "", "a" },
    { "page 2", "page 11" },
    { "a", "á" },
    { "A.txt", "a.txt" },
    { "Photo", "photo" },
    { "track 007", "track 8" },
};

// Everything compareFiles promises, checked over the table: the order, antisymmetry,
// equality only for equal texts, and sort keys that agree with the comparison.
void expectTheOrderOfTheTable()
{
    for (const OrderRow& row : kOrderRows) {
        const QString before = str(row.before);
        const QString after = str(row.after);
        const std::string label = std::string(row.before) + " < " + row.after;
        EXPECT_LT(compareFiles(before, after), 0) << label;
        EXPECT_GT(compareFiles(after, before), 0) << label;
        EXPECT_EQ(compareFiles(before, before), 0) << label;
        EXPECT_LT(filesSortKey(before), filesSortKey(after)) << label;
        EXPECT_EQ(filesSortKey(after), filesSortKey(after)) << label;
    }
}

TEST(FilesComparison, CaseInsensitiveNumericAwareAndTotal)
{
    expectTheOrderOfTheTable();
}

TEST(FilesComparison, UpperAndLowerCaseSortTogether)
{
    // Case never separates names: every "a..." sorts before every "b...".
    EXPECT_LT(compareFiles(str("apple"), str("Banana")), 0);
    EXPECT_LT(compareFiles(str("Apple"), str("banana")), 0);
    EXPECT_LT(compareFiles(str("ZEBRA"), str("zebras")), 0);
    EXPECT_GT(compareFiles(str("b"), str("A")), 0);
}

TEST(FilesComparison, SortKeysAgreeWithTheComparisonForEveryPair)
{
    QStringList texts;
    for (const OrderRow& row : kOrderRows)
        texts << str(row.before) << str(row.after);
    for (const QString& a : texts) {
        for (const QString& b : texts) {
            const int byKey
                = filesSortKey(a) < filesSortKey(b) ? -1 : (filesSortKey(b) < filesSortKey(a) ? 1 : 0);
            EXPECT_EQ(byKey, sign(compareFiles(a, b))) << a.toStdString() << " / " << b.toStdString();
        }
    }
}

// QCollator gives a plain code-point order in the C locale; the order must not change.
class CLocale : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_previousEnv = qgetenv("LC_ALL");
        qputenv("LC_ALL", "C");
        std::setlocale(LC_ALL, "C");
        QLocale::setDefault(QLocale::c());
    }
    void TearDown() override
    {
        QLocale::setDefault(QLocale::system());
        qputenv("LC_ALL", m_previousEnv);
        std::setlocale(LC_ALL, "");
    }

private:
    QByteArray m_previousEnv;
};

TEST_F(CLocale, TheOrderIsTheSame)
{
    expectTheOrderOfTheTable();
}

TEST_F(CLocale, TheOrderIsTheSameOnAThreadStartedInIt)
{
    // Each thread opens its own collator: one opened while the locale is C must not differ.
    std::thread worker(expectTheOrderOfTheTable);
    worker.join();
}

} // namespace
