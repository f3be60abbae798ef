#pragma once

#include "core/profiles/Settings.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace tavrin::test {

// An action tab shown on its own over settings at their start values, with the ways a user
// reaches its inputs.
template <typename Tab> class ActionTabFixture : public ::testing::Test {
protected:
    void SetUp() override
    {
        settings.resetToStartValues();
        tab.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&tab));
    }

    QAbstractButton* button(const char* objectName) const
    {
        auto* found = tab.template findChild<QAbstractButton*>(QString::fromLatin1(objectName));
        EXPECT_NE(found, nullptr) << objectName;
        return found;
    }

    // A wide button only answers a mouse click on its indicator and text; the space bar
    // presses it wherever it is.
    void click(const char* objectName) const
    {
        QAbstractButton* pressed = button(objectName);
        pressed->setFocus();
        QTest::keyClick(pressed, Qt::Key_Space);
    }

    template <typename T> T* field(const char* optionKey) const
    {
        auto* found = qobject_cast<T*>(tab.fieldForOption(QString::fromLatin1(optionKey)));
        EXPECT_NE(found, nullptr) << optionKey;
        return found;
    }

    bool isEnabled(const char* optionKey) const { return field<QWidget>(optionKey)->isEnabled(); }

    // Replaces the field's text by typing, as a user who selected it all would.
    void typeInto(const char* optionKey, const QString& text) const
    {
        auto* line = field<QLineEdit>(optionKey);
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, text);
    }

    // Picks an item with the keyboard, which is how a choice reports a user's pick.
    void chooseItem(const char* optionKey, int index) const
    {
        auto* chooser = field<QComboBox>(optionKey);
        chooser->setFocus();
        QTest::keyClick(chooser, Qt::Key_Home);
        for (int step = 0; step < index; ++step)
            QTest::keyClick(chooser, Qt::Key_Down);
    }

    Settings settings;
    Tab tab { settings };
};

} // namespace tavrin::test
