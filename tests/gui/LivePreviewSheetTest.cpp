#include "gui/engine/LivePreviewSheet.h"

#include "GuiFixture.h"

using namespace tavrin;
using namespace tavrin::test;

namespace {

TEST(LivePreviewSheetTest, TheLimitIsOpenOnlyForTheFirstItemsAndHoldsOneToSixDigits)
{
    LivePreviewSheet sheet(true, u"50"_s);
    auto* field = part<QLineEdit>(&sheet, "filesLimitField");
    EXPECT_FALSE(field->isEnabled());
    part<QRadioButton>(&sheet, "firstItemsButton")->click();
    EXPECT_TRUE(field->isEnabled());
    EXPECT_FALSE(sheet.isAllFiles());
    EXPECT_EQ(sheet.filesLimit(), u"50"_s);
    for (const auto& [typed, kept] : { std::pair(u"0"_s, u"1"_s), std::pair(u"12x34567"_s, u"123456"_s) }) {
        typeInto(field, typed);
        EXPECT_EQ(sheet.filesLimit(), kept);
    }
    part<QRadioButton>(&sheet, "allItemsButton")->click();
    EXPECT_FALSE(field->isEnabled());
    EXPECT_TRUE(sheet.isAllFiles());
    // A stored limit the field could not hold shows as the field would keep it.
    const LivePreviewSheet limited(false, QString());
    EXPECT_TRUE(part<QLineEdit>(&limited, "filesLimitField")->isEnabled());
    EXPECT_EQ(limited.filesLimit(), u"1"_s);
}

TEST(LivePreviewSheetTest, ReturnTurnsOnEscapeCancelsF1AsksForHelp)
{
    for (const auto& [key, result] :
        { std::pair(Qt::Key_Return, QDialog::Accepted), std::pair(Qt::Key_Escape, QDialog::Rejected) }) {
        LivePreviewSheet sheet(false, u"200"_s);
        sheet.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&sheet));
        QSignalSpy help(&sheet, &LivePreviewSheet::helpRequested);
        // A shortcut clicks its button a moment after the key goes down.
        QTest::keyClick(&sheet, Qt::Key_F1);
        EXPECT_TRUE(QTest::qWaitFor([&help] { return help.count() == 1; }));
        EXPECT_TRUE(sheet.isVisible());

        QTest::keyClick(part<QLineEdit>(&sheet, "filesLimitField"), key);
        EXPECT_FALSE(sheet.isVisible()) << key;
        EXPECT_EQ(sheet.result(), result) << key;
    }
}

} // namespace
