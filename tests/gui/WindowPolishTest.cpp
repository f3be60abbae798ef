#include "GuiFixture.h"
#include "core/text/LocalizedStrings.h"

#include <QHeaderView>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

using namespace tavrin;
using namespace tavrin::test;

namespace {

class WindowPolishTest : public WindowFixture {
protected:
    void TearDown() override { LocalizedStrings::setLanguage(u"en"_s); }

    int sortColumn() const { return child<QTableView>(u"fileTable"_s)->horizontalHeader()->sortIndicatorSection(); }
};

// Half of a 1920-pixel screen, in every language, is room enough for the whole window.
TEST(WindowFit, TheWindowFitsHalfAFullHdScreenInEveryLanguage)
{
    for (const QString& language : LocalizedStrings::languages()) {
        LocalizedStrings::setLanguage(language);
        TavrinAppController controller;
        MainWindow window(&controller);
        EXPECT_LE(window.minimumSizeHint().width(), 960) << language.toStdString();
        EXPECT_LE(window.minimumSizeHint().height(), 1080 - 80) << language.toStdString();
    }
    LocalizedStrings::setLanguage(u"en"_s);
}

// Regression: Ctrl+Z in a text field reached the window's Undo instead of the field.
TEST_F(WindowPolishTest, CtrlZInATextFieldUndoesTheTyping)
{
    auto* field = window.findChild<QLineEdit*>(u"replaceRemoveThis"_s);
    ASSERT_NE(field, nullptr);
    settings().setSelectedTab(tabs::ReplaceRemove);
    field->setFocus();
    QTest::keyClicks(field, u"abc"_s);
    QTest::keySequence(field, QKeySequence::Undo);
    EXPECT_NE(field->text(), u"abc"_s);
    EXPECT_TRUE(prompter->alerts.isEmpty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "the undo sheet opened";
}

// Items arrive in the order people count; an order the user made stays theirs.
TEST_F(WindowPolishTest, ArrivingItemsAreSortedByNameUnlessTheUserMadeAnOrder)
{
    list().setSortOnArrival(true);
    listFiles({u"file10"_s, u"File2"_s, u"file1"_s});
    EXPECT_EQ(listedNames(), (QStringList{u"file1"_s, u"File2"_s, u"file10"_s}));
    EXPECT_EQ(sortColumn(), int(FileTableModel::NameColumn));

    window.findChild<QTableView*>(u"fileTable"_s)->selectRow(0);
    list().moveDown({0});
    listFiles({u"a"_s});
    EXPECT_EQ(listedNames(), (QStringList{u"File2"_s, u"file1"_s, u"file10"_s, u"a"_s}));

    list().clear();
    list().setSortOnArrival(false);
    listFiles({u"b"_s, u"a"_s});
    EXPECT_EQ(listedNames(), (QStringList{u"b"_s, u"a"_s}));
    EXPECT_EQ(sortColumn(), -1);
}

// The record keeps the English status (the log and the CLI show it); the table translates it.
TEST_F(WindowPolishTest, StatusTextsAreShownInTheUsersLanguage)
{
    listFiles({u"ALREADY.txt"_s});
    chooseUpperCase();
    ASSERT_TRUE(previewAndWait());
    EXPECT_EQ(newNames(), QStringList{u"No Changes"_s});
    LocalizedStrings::setLanguage(u"de"_s);
    EXPECT_EQ(newName(0), u"Keine Änderungen"_s);
}

// A pattern's problem shows under the find field as it is typed, and only for a pattern.
TEST_F(WindowPolishTest, APatternsProblemShowsAsItIsTyped)
{
    settings().setSelectedTab(tabs::ReplaceRemove);
    auto* find = child<QLineEdit>(u"replaceRemoveThis"_s);
    auto* problem = child<QLabel>(u"patternProblemLabel"_s);
    QTest::keyClicks(find, u"IMG_(\\d+"_s);
    EXPECT_TRUE(problem->isHidden()) << "plain text has no problem";
    child<QCheckBox>(QString::fromLatin1(Settings::isReplaceRemoveRegularExpressionKey))->click();
    EXPECT_TRUE(settings().isReplaceRemoveRegularExpression());
    EXPECT_FALSE(problem->isHidden());
    EXPECT_TRUE(problem->text().contains(u"parenthesis"_s)) << problem->text().toStdString();
    QTest::keyClicks(find, u")"_s);
    EXPECT_TRUE(problem->isHidden());
}

}  // namespace
