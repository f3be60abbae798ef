#include "gui/engine/LivePreviewSheet.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace tavrin;

namespace {

template <typename T> T* child(const QWidget& sheet, const char* name)
{
    T* found = sheet.findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

TEST(LivePreviewSheetTest, LimitFieldIsOpenOnlyWhileTheFirstItemsArePreviewed)
{
    LivePreviewSheet limited(false, QStringLiteral("200"));
    auto* field = child<QLineEdit>(limited, "filesLimitField");
    EXPECT_TRUE(field->isEnabled());
    child<QRadioButton>(limited, "allItemsButton")->click();
    EXPECT_FALSE(field->isEnabled());
    EXPECT_TRUE(limited.isAllFiles());

    LivePreviewSheet all(true, QStringLiteral("50"));
    EXPECT_FALSE(child<QLineEdit>(all, "filesLimitField")->isEnabled());
    child<QRadioButton>(all, "firstItemsButton")->click();
    EXPECT_TRUE(child<QLineEdit>(all, "filesLimitField")->isEnabled());
    EXPECT_FALSE(all.isAllFiles());
    EXPECT_EQ(all.filesLimit(), QStringLiteral("50"));
}

TEST(LivePreviewSheetTest, LimitTakesAtMostSixDigitsAndNeverZero)
{
    // A stored limit the field could not hold shows as the field would keep it.
    LivePreviewSheet sheet(false, QString());
    EXPECT_EQ(sheet.filesLimit(), QStringLiteral("1"));

    auto* field = child<QLineEdit>(sheet, "filesLimitField");
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("0"));
    EXPECT_EQ(sheet.filesLimit(), QStringLiteral("1"));
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("12x34567"));
    EXPECT_EQ(sheet.filesLimit(), QStringLiteral("123456"));
}

TEST(LivePreviewSheetTest, ReturnTurnsOnEscapeCancelsF1AsksForHelp)
{
    const struct {
        Qt::Key key;
        int result;
    } rows[] = { { Qt::Key_Return, QDialog::Accepted }, { Qt::Key_Escape, QDialog::Rejected } };
    for (const auto& row : rows) {
        LivePreviewSheet sheet(false, QStringLiteral("200"));
        sheet.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&sheet));
        QSignalSpy help(&sheet, &LivePreviewSheet::helpRequested);
        // A shortcut clicks its button a moment after the key goes down.
        QTest::keyClick(&sheet, Qt::Key_F1);
        EXPECT_TRUE(QTest::qWaitFor([&help] { return help.count() == 1; }));
        EXPECT_TRUE(sheet.isVisible());

        QTest::keyClick(child<QLineEdit>(sheet, "filesLimitField"), row.key);
        EXPECT_FALSE(sheet.isVisible()) << row.key;
        EXPECT_EQ(sheet.result(), row.result) << row.key;
    }
}

} // namespace
