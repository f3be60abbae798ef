#include "gui/ui/AttachedWindow.h"

#include "GuiFixture.h"

#include <QScreen>

using namespace tavrin;
using namespace tavrin::test;

namespace {

class AttachedWindowTest : public ::testing::Test {
protected:
    // The button of a small window placed at the given spot of the screen.
    QPushButton* buttonAt(const QPoint& topLeft)
    {
        host.setGeometry(QRect(topLeft, QSize(120, 60)));
        host.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&host));
        return &button;
    }

    QRect globalRect(const QWidget* widget) const
    {
        return { widget->mapToGlobal(QPoint(0, 0)), widget->size() };
    }

    QWidget host;
    QPushButton button { u"Remove"_s, &host };
    AttachedWindow attached { &host };
};

TEST_F(AttachedWindowTest, PointsAtTheControlFromItsRightOrWhereTheScreenEndsFromItsLeft)
{
    QPushButton* anchor = buttonAt(QPoint(50, 50));
    attached.showMessage(anchor, u"First."_s);
    attached.showMessage(anchor, u"Select something first."_s);
    ASSERT_TRUE(attached.isVisible());
    EXPECT_EQ(attached.text(), u"Select something first."_s) << "a new message replaces the shown one";
    EXPECT_EQ(attached.side(), AttachedWindow::Side::Right);
    const QRect control = globalRect(anchor);
    const QRect bubble = attached.frameGeometry();
    EXPECT_EQ(bubble.left(), std::max(control.center().x() + 30, control.right() + 4));
    EXPECT_NEAR(bubble.center().y(), control.center().y(), 1) << "the arrow is level with the control";

    anchor = buttonAt(QPoint(host.screen()->availableGeometry().right() - 130, 50));
    attached.showMessage(anchor, u"No room on the right."_s);
    EXPECT_EQ(attached.side(), AttachedWindow::Side::Left);
    EXPECT_LT(attached.frameGeometry().right(), globalRect(anchor).left());
}

TEST_F(AttachedWindowTest, ALongTextWrapsInsteadOfGrowingWithoutEnd)
{
    attached.showMessage(buttonAt(QPoint(10, 10)), u"word "_s.repeated(60));
    EXPECT_LE(attached.width(), 320 + 2 * 10 + 15 + 2);
    EXPECT_GT(attached.height(), 2 * attached.fontMetrics().height());
}

TEST_F(AttachedWindowTest, TheNextClickKeyPressOrMoveOfTheWindowDismissesIt)
{
    QPushButton* anchor = buttonAt(QPoint(50, 50));
    const std::function<void()> dismissals[]
        = { [&] { QTest::keyClick(&host, Qt::Key_A); }, [&] { QTest::mouseClick(&host, Qt::LeftButton); },
              [&] {
                  host.move(host.pos() + QPoint(40, 0));
                  QTest::qWait(0);
              } };
    for (const auto& dismiss : dismissals) {
        attached.showMessage(anchor, u"Here."_s);
        ASSERT_TRUE(attached.isVisible());
        dismiss();
        EXPECT_FALSE(attached.isVisible());
    }
}

} // namespace
