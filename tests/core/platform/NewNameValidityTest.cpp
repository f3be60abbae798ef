#include "core/platform/FileOperations.h"

#include <QString>
#include <gtest/gtest.h>

using namespace tavrin;

namespace {

TEST(IsValidNewName, OneNonEmptyComponentWithoutSlashOrNul)
{
    struct Row {
        QString name;
        bool valid;
    };
    const Row rows[] = {
        {QStringLiteral("a"), true},
        {QStringLiteral("report final.txt"), true},
        {QStringLiteral(".hidden"), true},
        {QStringLiteral("..."), true},
        {QStringLiteral("a:b"), true},  // a "/" the user typed is stored as ":"
        {QStringLiteral(" "), true},
        {QStringLiteral("tab\tand\nnewline"), true},
        {QString(), false},
        {QStringLiteral(""), false},
        {QStringLiteral("."), false},
        {QStringLiteral(".."), false},
        {QStringLiteral("a/b"), false},
        {QStringLiteral("/"), false},
        {QStringLiteral("trailing/"), false},
        {QString::fromUtf16(u"nul\0inside", 10), false},
        {QString(QChar(0)), false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(isValidNewName(row.name), row.valid) << '"' << row.name.toStdString() << '"';
}

// The limit is 255 bytes of UTF-8, not 255 characters.
TEST(IsValidNewName, CountsUtf8BytesUpTo255)
{
    struct Row {
        const char16_t* unit;  // one character
        int bytesEach;
    };
    const Row rows[] = {{u"a", 1}, {u"\u00e9", 2}, {u"\u20ac", 3}, {u"\U0001F600", 4}};
    for (const Row& row : rows) {
        const QString unit = QString::fromUtf16(row.unit);
        const int fits = 255 / row.bytesEach;
        const QString padding(255 - fits * row.bytesEach, QLatin1Char('x'));
        const QString longest = unit.repeated(fits) + padding;
        ASSERT_EQ(longest.toUtf8().size(), 255);
        EXPECT_TRUE(isValidNewName(longest)) << row.bytesEach << " bytes each";
        EXPECT_FALSE(isValidNewName(longest + unit)) << row.bytesEach << " bytes each";
        EXPECT_FALSE(isValidNewName(longest + QLatin1Char('x'))) << row.bytesEach << " bytes each";
    }
}

TEST(IsValidNewName, RefusesTextWithoutAUtf8Form)
{
    const QChar loneHigh(char16_t(0xD83D));
    const QChar loneLow(char16_t(0xDE00));
    EXPECT_FALSE(isValidNewName(QStringLiteral("a") + loneHigh));
    EXPECT_FALSE(isValidNewName(loneLow + QStringLiteral("b")));
    EXPECT_TRUE(isValidNewName(QString(loneHigh) + loneLow));
}

}  // namespace
