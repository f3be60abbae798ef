#include "gui/app/MainWindow.h"

#include "GuiTestHelpers.h"
#include "core/list/StatusTexts.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/ActionTab.h"
#include "gui/engine/ActionTabs.h"
#include "gui/engine/RenamePanel.h"
#include "gui/list/FileTableModel.h"
#include "gui/list/FileTableView.h"
#include "support/TempTree.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::ScriptedPrompter;
using tavrin::test::TempTree;

namespace {

// The window over one folder of files, previewed through the tabs the way a user does it.
class TabPreviewTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        auto scripted = std::make_unique<ScriptedPrompter>();
        prompter = scripted.get();
        window.renamePanel()->setPrompter(std::move(scripted));
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void listFiles(const QStringList& names)
    {
        QStringList paths;
        for (const QString& name : names)
            paths.append(tree.file(QStringLiteral("files/") + name));
        QSignalSpy finished(&controller, &TavrinAppController::addFinished);
        window.addPaths(paths);
        ASSERT_TRUE(finished.wait(20000));
        ASSERT_EQ(window.tableModel()->rowCount(), names.size());
    }

    ActionTab* showTab(int tabNumber)
    {
        ActionTabs* tabs = window.renamePanel()->tabs();
        ActionTab* page = tabs->pageForTab(tabNumber);
        EXPECT_NE(page, nullptr) << tabNumber;
        QTest::mouseClick(
            tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(tabs->indexOf(page)).center());
        EXPECT_EQ(controller.settings().selectedTab(), tabNumber);
        return page;
    }

    void press(ActionTab* page, const char* objectName)
    {
        auto* button = page->findChild<QAbstractButton*>(QString::fromLatin1(objectName));
        ASSERT_NE(button, nullptr) << objectName;
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
    }

    void type(ActionTab* page, const char* optionKey, const QString& text)
    {
        auto* field = qobject_cast<QLineEdit*>(page->fieldForOption(QString::fromLatin1(optionKey)));
        ASSERT_NE(field, nullptr) << optionKey;
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
    }

    bool previewAndWait()
    {
        QSignalSpy finished(&controller, &TavrinAppController::previewFinished);
        QTest::mouseClick(window.renamePanel()->previewButton(), Qt::LeftButton);
        return finished.wait(20000);
    }

    QStringList newNames() const
    {
        QStringList names;
        for (int row = 0; row < window.tableModel()->rowCount(); ++row)
            names.append(window.tableModel()->index(row, FileTableModel::NewNameColumn).data().toString());
        return names;
    }

    TempTree tree;
    TavrinAppController controller;
    MainWindow window { &controller };
    ScriptedPrompter* prompter = nullptr;
};

TEST_F(TabPreviewTest, ReplacingEveryDashShowsTheNewNames)
{
    listFiles({ QStringLiteral("a-b-c.txt"), QStringLiteral("x-y.jpg") });
    ActionTab* page = showTab(tabs::ReplaceRemove);
    type(page, "replaceRemoveThis", QStringLiteral("-"));
    type(page, "replaceRemoveWith", QStringLiteral("_"));
    press(page, "isReplaceRemoveAllOccurrence");

    ASSERT_TRUE(previewAndWait());
    EXPECT_EQ(newNames(), QStringList({ QStringLiteral("a_b_c.txt"), QStringLiteral("x_y.jpg") }));
    EXPECT_TRUE(prompter->warnings.isEmpty());
}

TEST_F(TabPreviewTest, InsertingAfterTheSecondUnderscoreShowsTheNewNames)
{
    listFiles({ QStringLiteral("a_b_c.txt"), QStringLiteral("one_two.md") });
    ActionTab* page = showTab(tabs::InsertDelete);
    type(page, "insertDeleteInsert", QStringLiteral("X"));
    press(page, "insertPlace4");
    type(page, "insertDeleteInsertAtAfterText", QStringLiteral("_"));
    type(page, "insertDeleteInsertAtAfterOccurrence", QStringLiteral("2"));

    ASSERT_TRUE(previewAndWait());
    EXPECT_EQ(newNames(), QStringList({ QStringLiteral("a_b_Xc.txt"), QLatin1String(status::NoChanges) }));
}

TEST_F(TabPreviewTest, NumberingAfterTheNameShowsThePaddedSequence)
{
    listFiles({ QStringLiteral("a.jpg"), QStringLiteral("b.jpg"), QStringLiteral("c.jpg") });
    ActionTab* page = showTab(tabs::AlphaNumeric);
    type(page, "alphaNumericNumericStartWith", QStringLiteral("9"));
    press(page, "isAlphaNumericSufix");
    press(page, "isAlphaNumericSeperator");
    type(page, "alphaNumericSeperator", QStringLiteral("-"));
    type(page, "alphaNumericPaddingMask", QStringLiteral("00"));

    ASSERT_TRUE(previewAndWait());
    EXPECT_EQ(newNames(),
        QStringList({ QStringLiteral("a-09.jpg"), QStringLiteral("b-10.jpg"), QStringLiteral("c-11.jpg") }));
}

struct MissingInput {
    int tab;
    const char* place;
    const char* focusKey;
    const char* titleKey;
    const char* messageKey;
};

const MissingInput kMissingInputs[] = {
    { tabs::InsertDelete, "insertPlace0", "insertDeleteInsert", "INSERTINVALIDINPUT", "ENTERVALIDVALUE" },
    { tabs::InsertDelete, "insertPlace3", "insertDeleteInsertAtBeforeText", "INSERTTEXTATBEFORETEXT",
        "ENTERSOMETEXT" },
    { tabs::InsertDelete, "insertPlace4", "insertDeleteInsertAtAfterText", "INSERTTEXTATAFTERTEXT",
        "ENTERSOMETEXT" },
    { tabs::ReplaceRemove, nullptr, "replaceRemoveThis", "REPLACEREMOVEINVALIDINPUT", "ENTERVALIDVALUE" },
};

TEST_F(TabPreviewTest, AMissingInputWarnsAndTakesTheFocusToItsField)
{
    listFiles({ QStringLiteral("a_b.txt") });
    for (const MissingInput& missing : kMissingInputs) {
        ActionTab* page = showTab(missing.tab);
        if (missing.place) {
            press(page, missing.place);
            // Only the anchor is missing in the places that need one.
            if (QLatin1String(missing.focusKey) != QLatin1String("insertDeleteInsert"))
                type(page, "insertDeleteInsert", QStringLiteral("X"));
        }
        window.tableView()->setFocus();
        prompter->warnings.clear();

        QTest::keyClick(&window, Qt::Key_F5);

        ASSERT_EQ(prompter->warnings.size(), 1) << missing.focusKey;
        EXPECT_EQ(prompter->warnings.first(),
            localized(missing.titleKey) + QLatin1Char('|') + localized(missing.messageKey));
        EXPECT_EQ(QApplication::focusWidget(), page->fieldForOption(QString::fromLatin1(missing.focusKey)))
            << missing.focusKey;
    }
}

} // namespace
