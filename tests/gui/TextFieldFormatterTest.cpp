#include "gui/ui/TextFieldFormatter.h"

#include "GuiFixture.h"

using namespace tavrin;
using namespace tavrin::test;
using Kind = TextFieldFormatter::Kind;

namespace {

struct FilterRow {
    Kind kind;
    const char* typed;
    const char* kept;
};

// Letters and safe characters are only trimmed at the ends; numbers keep their digits
// wherever they stand.
const FilterRow kFilters[] = {
    { Kind::Letters, "AB1c", "ab1c" },
    { Kind::Letters, "123", "a" },
    { Kind::Letters, "", "a" },
    { Kind::Letters, " -Xy. ", "xy" },
    { Kind::Letters, "zz", "zz" },
    { Kind::PositiveNumber, " 0x", "1" },
    { Kind::PositiveNumber, "", "1" },
    { Kind::PositiveNumber, "000", "1" },
    { Kind::PositiveNumber, "x7y", "7" },
    { Kind::PositiveNumber, "1 2", "12" },
    { Kind::PositiveNumber, "-3", "3" },
    { Kind::PositiveNumber, "007", "007" },
    { Kind::Number, "", "0" },
    { Kind::Number, "0", "0" },
    { Kind::Number, " 12a", "12" },
    { Kind::SafeCharacters, "/_X|", "_x" },
    { Kind::SafeCharacters, "\\:*?\"<>|", "" },
    { Kind::SafeCharacters, "a:b", "a:b" },
    { Kind::SafeCharacters, " -", " -" },
    { Kind::Text, " a/b ", " a/b " },
    { Kind::Text, "", "" },
};

TEST(TextFieldFormatterTest, EachKindKeepsWhatItsOptionCanHold)
{
    for (const FilterRow& row : kFilters) {
        EXPECT_EQ(
            TextFieldFormatter::filtered(row.kind, QString::fromUtf8(row.typed)), QString::fromUtf8(row.kept))
            << int(row.kind) << " \"" << row.typed << '"';
    }
}

class FormattedFieldTest : public ::testing::Test {
protected:
    void attach(Kind kind, int maximumLength = 9)
    {
        formatter = new TextFieldFormatter(&field, kind, maximumLength);
        edits = std::make_unique<QSignalSpy>(formatter, &TextFieldFormatter::edited);
        field.show();
        field.setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&field));
    }

    QString lastEdit() const { return edits->isEmpty() ? QString() : edits->last().first().toString(); }

    QLineEdit field;
    TextFieldFormatter* formatter = nullptr;
    std::unique_ptr<QSignalSpy> edits;
};

// A stand-in value is selected, so the next key replaces it.
TEST_F(FormattedFieldTest, TheEditSignalCarriesTheFilteredTextAndAStandInGoesAtTheNextKey)
{
    attach(Kind::PositiveNumber);
    QTest::keyClicks(&field, u"5"_s);
    QTest::keyClick(&field, Qt::Key_Backspace);
    EXPECT_EQ(field.text(), u"1"_s);
    EXPECT_EQ(field.selectedText(), u"1"_s);
    EXPECT_EQ(lastEdit(), u"1"_s);
    EXPECT_EQ(edits->size(), 2);
    QTest::keyClicks(&field, u"3x"_s);
    EXPECT_EQ(field.text(), u"3"_s) << "not 13";
}

TEST_F(FormattedFieldTest, ARefusedCharacterLeavesTheCursorWhereTheUserTyped)
{
    attach(Kind::PositiveNumber);
    QTest::keyClicks(&field, u"1234"_s);
    field.setCursorPosition(2);
    QTest::keyClicks(&field, u"x9"_s);
    EXPECT_EQ(field.text(), u"12934"_s);
    EXPECT_EQ(field.cursorPosition(), 3);
}

TEST_F(FormattedFieldTest, OnlyTheUsersEditsAreFilteredAndTheLengthIsLimited)
{
    attach(Kind::PositiveNumber, 3);
    field.setText(u"0"_s);
    EXPECT_EQ(field.text(), u"0"_s) << "a stored value shows as the action will use it";
    EXPECT_TRUE(edits->isEmpty());
    field.selectAll();
    QTest::keyClicks(&field, u"98765"_s);
    EXPECT_EQ(field.text(), u"987"_s);
}

} // namespace
