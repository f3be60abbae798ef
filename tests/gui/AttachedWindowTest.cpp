#include "gui/ui/AttachedWindow.h"

#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

using namespace tavrin;

namespace {

class AttachedWindowTest : public ::testing::Test {
protected:
    // A button in a small window placed at the given spot of the screen.
    QPushButton* buttonAt(const QPoint& topLeft)
    {
        host.setGeometry(QRect(topLeft, QSize(120, 60)));
        host.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&host));
        return &button;
    }

    QRect globalRect(const QWidget* widget) const
    {
        return QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
    }

    QWidget host;
    QPushButton button { QStringLiteral("Remove"), &host };
    AttachedWindow attached { &host };
};

TEST_F(AttachedWindowTest, PointsAtTheControlFromItsRight)
{
    QPushButton* anchor = buttonAt(QPoint(50, 50));
    attached.showMessage(anchor, QStringLiteral("Select something first."));

    ASSERT_TRUE(attached.isVisible());
    EXPECT_EQ(attached.text(), QStringLiteral("Select something first."));
    EXPECT_EQ(attached.side(), AttachedWindow::Side::Right);
    const QRect control = globalRect(anchor);
    const QRect bubble = attached.frameGeometry();
    EXPECT_GT(bubble.left(), control.right());
    EXPECT_EQ(bubble.left(), std::max(control.center().x() + 30, control.right() + 4));
    EXPECT_NEAR(bubble.center().y(), control.center().y(), 1) << "the arrow is level with the control";
}

TEST_F(AttachedWindowTest, TurnsToTheLeftWhereTheScreenEnds)
{
    const QRect screen = host.screen()->availableGeometry();
    QPushButton* anchor = buttonAt(QPoint(screen.right() - 130, 50));
    attached.showMessage(anchor, QStringLiteral("No room on the right."));

    EXPECT_EQ(attached.side(), AttachedWindow::Side::Left);
    EXPECT_LT(attached.frameGeometry().right(), globalRect(anchor).left());
}

TEST_F(AttachedWindowTest, ALongTextWrapsInsteadOfGrowingWithoutEnd)
{
    QPushButton* anchor = buttonAt(QPoint(10, 10));
    attached.showMessage(anchor, QStringLiteral("word ").repeated(60));
    EXPECT_LE(attached.width(), 320 + 2 * 10 + 15 + 2);
    EXPECT_GT(attached.height(), 2 * attached.fontMetrics().height());
}

TEST_F(AttachedWindowTest, TheNextClickOrKeyPressDismissesIt)
{
    QPushButton* anchor = buttonAt(QPoint(50, 50));
    attached.showMessage(anchor, QStringLiteral("One."));
    QTest::keyClick(&host, Qt::Key_A);
    EXPECT_FALSE(attached.isVisible());

    attached.showMessage(anchor, QStringLiteral("Two."));
    ASSERT_TRUE(attached.isVisible());
    QTest::mouseClick(&host, Qt::LeftButton);
    EXPECT_FALSE(attached.isVisible());
}

TEST_F(AttachedWindowTest, ANewMessageReplacesTheShownOne)
{
    QPushButton* anchor = buttonAt(QPoint(50, 50));
    attached.showMessage(anchor, QStringLiteral("First."));
    attached.showMessage(anchor, QStringLiteral("Second, a little longer."));
    EXPECT_TRUE(attached.isVisible());
    EXPECT_EQ(attached.text(), QStringLiteral("Second, a little longer."));
}

TEST_F(AttachedWindowTest, MovingTheWindowDismissesIt)
{
    QPushButton* anchor = buttonAt(QPoint(50, 50));
    attached.showMessage(anchor, QStringLiteral("Here."));
    host.move(host.pos() + QPoint(40, 0));
    QTest::qWait(0);
    EXPECT_FALSE(attached.isVisible());
}

} // namespace
