#include "GuiFixture.h"

#include "core/rules/RuleFile.h"
#include "core/rules/StepRecord.h"
#include "gui/app/WindowSheets.h"
#include "gui/rules/RulesCommands.h"
#include "gui/rules/RulesDrawer.h"
#include "gui/rules/RulesSheet.h"

#include <QMenu>
#include <QTreeView>

using namespace tavrin;
using namespace tavrin::test;

namespace {

class RulesDrawerTest : public WindowFixture {
protected:
    void SetUp() override
    {
        WindowFixture::SetUp();
        Preferences preferences = controller.session().preferences();
        preferences.defaultRulesFolderPath = tree.folder(u"rules"_s);
        controller.session().setPreferences(preferences);
    }

    RulesDrawer* drawer() const { return window.rules()->drawer(); }
    QPushButton* button(const char* name) const { return part<QPushButton>(drawer(), QString::fromLatin1(name)); }
    const RuleChain& chain() { return controller.session().rules(); }

    void clickRow(QTableView* table, int row)
    {
        const QRect cell = table->visualRect(table->model()->index(row, 1));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
    }

    // Sets options as the tabs would, then presses Add.
    void addStep(int tab, const std::function<void(Settings&)>& set)
    {
        settings().setSelectedTab(tab);
        set(settings());
        press(button("addButton"));
    }

    void addThreeSteps()
    {
        addStep(tabs::ReplaceRemove, [](Settings& s) {
            s.setReplaceRemoveThis(u" "_s);
            s.setReplaceRemoveWith(u"_"_s);
        });
        addStep(tabs::General, [](Settings& s) { s.chooseGeneralOption(0); s.setGeneralFileNameCase(1); });
        addStep(tabs::AlphaNumeric, [](Settings& s) { s.setIsAlphaNumericSufix(true); });
    }

    QAction* libraryItem(const QString& title)
    {
        QMenu* menu = window.rules()->menu();
        emit menu->aboutToShow();
        for (QAction* action : menu->actions())
            if (action->text() == title)
                return action;
        return nullptr;
    }

    QMap<QString, bool> enabledButtons() const
    {
        QMap<QString, bool> states;
        for (const char* name : { "clearButton", "updateRuleButton", "moveUp", "moveDown", "saveRuleButton", "clearAllButton" })
            states.insert(QString::fromLatin1(name), button(name)->isEnabled());
        return states;
    }
};

// What a new user does: a three-step rule made in the drawer, saved, kept over a restart,
// and picked again from the Rules menu, each time giving the same names.
TEST_F(RulesDrawerTest, AThreeStepRuleIsSavedKeptAndPickedFromTheMenu)
{
    listFiles({ u"a b.txt"_s, u"c d.txt"_s });
    window.rules()->toggleDrawerAction()->trigger();
    ASSERT_TRUE(drawer()->isVisible());
    EXPECT_EQ(window.rules()->toggleDrawerAction()->text(), localized("HIDERULES"));
    addThreeSteps();
    ASSERT_EQ(chain().size(), 3);
    EXPECT_EQ(drawer()->table()->selectionModel()->selectedRows().value(0).row(), 2);

    prompter->chosenFile = tree.path(u"rules/three.tnrule"_s);
    press(button("saveRuleButton"));
    EXPECT_EQ(prompter->alertTexts().last(), localized("RULESETTINGSFILETITLE") + u'|' + localized("RULESETTINGSFILESAVEDSUCCESS"));
    ASSERT_TRUE(clickPreviewAndWait());
    const QStringList expected { u"A_B1.txt"_s, u"C_D2.txt"_s };
    EXPECT_EQ(shownNewNames(), expected);

    controller.applicationShouldTerminate();
    TavrinAppController second;
    second.applicationDidFinishLaunching();
    EXPECT_EQ(second.session().rules(), chain());

    press(button("clearAllButton"));
    EXPECT_TRUE(chain().isEmpty());
    QAction* item = libraryItem(u"three"_s);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->toolTip(), u"three.tnrule"_s);
    item->trigger();
    EXPECT_EQ(chain().size(), 3);
    EXPECT_EQ(drawer()->table()->selectionModel()->selectedRows().value(0).row(), 0);
    ASSERT_TRUE(clickPreviewAndWait());
    EXPECT_EQ(shownNewNames(), expected);

    // Closed, the drawer leaves the tab's action to preview.
    window.rules()->toggleDrawerAction()->trigger();
    ASSERT_TRUE(clickPreviewAndWait());
    EXPECT_EQ(shownNewNames(), QStringList({ u"a b1.txt"_s, u"c d2.txt"_s }));
}

TEST_F(RulesDrawerTest, TheCommandsFollowTheSelectionAndChoosingAStepLoadsIt)
{
    window.rules()->showDrawer();
    for (const int option : { 4, 5, 6 })
        addStep(tabs::General, [option](Settings& s) { s.chooseGeneralOption(option); });
    drawer()->resetData(true);
    const QMap<QString, bool> afterReload { { u"clearButton"_s, false }, { u"updateRuleButton"_s, false },
        { u"moveUp"_s, false }, { u"moveDown"_s, true }, { u"saveRuleButton"_s, true }, { u"clearAllButton"_s, true } };
    EXPECT_EQ(enabledButtons(), afterReload);
    settings().chooseGeneralOption(0);
    clickRow(drawer()->table(), 0);
    EXPECT_TRUE(button("clearButton")->isEnabled());
    EXPECT_TRUE(button("updateRuleButton")->isEnabled());
    EXPECT_EQ(settings().generalOptionIndex(), 4);

    press(button("clearButton"));
    ASSERT_EQ(chain().size(), 2);
    EXPECT_EQ(drawer()->table()->selectionModel()->selectedRows().value(0).row(), 0);
    EXPECT_EQ(chain().first().value(u"generalOptionIndex"_s), QVariant(u"5"_s));

    // Another action's options never replace a step.
    settings().setSelectedTab(tabs::InsertDelete);
    settings().setInsertDeleteInsert(u"x"_s);
    clickRow(drawer()->table(), 1);
    settings().setSelectedTab(tabs::InsertDelete);
    press(button("updateRuleButton"));
    EXPECT_EQ(stepRule(chain().at(1)), u"General"_s);
    press(button("moveUp"));
    EXPECT_EQ(chain().first().value(u"generalOptionIndex"_s), QVariant(u"6"_s));

    // A prefix and suffix step is shown but never loaded back.
    addStep(tabs::PrefixSuffix, [](Settings& s) { s.setPrefixSuffixPrefix(u"p"_s); });
    settings().setSelectedTab(tabs::General);
    settings().setPrefixSuffixPrefix(u"changed"_s);
    clickRow(drawer()->table(), 2);
    EXPECT_EQ(settings().selectedTab(), tabs::General);
    EXPECT_EQ(settings().prefixSuffixPrefix(), u"changed"_s);
}

TEST_F(RulesDrawerTest, EveryCommandWaitsWhileAJobRunsAndComesBackAsItWas)
{
    window.rules()->showDrawer();
    addStep(tabs::General, [](Settings&) {});
    std::atomic_bool release { false };
    ASSERT_TRUE(list().run({ u"busy"_s, "test", false },
        [&release](FileList&, const std::atomic_bool&, ProgressObserver*) {
            while (!release.load())
                QThread::msleep(5);
        },
        [] {}));
    for (QWidget* control : drawer()->findChildren<QWidget*>()) {
        const bool isCommand = qobject_cast<QPushButton*>(control) || qobject_cast<QTableView*>(control);
        if (isCommand && control->objectName() != u"rulesHelpButton"_s) {
            EXPECT_FALSE(control->isEnabled()) << qPrintable(control->objectName());
        }
    }
    QSignalSpy finished(&list(), &ListController::executingChanged);
    release = true;
    ASSERT_TRUE(finished.wait(kWaitMilliseconds));
    EXPECT_TRUE(button("addButton")->isEnabled());
    EXPECT_TRUE(button("saveRuleButton")->isEnabled());
    EXPECT_FALSE(button("moveDown")->isEnabled());
}

// The menu opens any version and drops the old "Rule - " prefix; Open refuses another major version.
TEST_F(RulesDrawerTest, AnotherMajorVersionOpensFromTheMenuButNotThroughOpen)
{
    tree.file(u"rules/old.tnrule"_s,
        "<?xml version=\"1.0\"?><plist version=\"1.0\" appversion=\"9.0\"><array><dict><key>rule</key>"
        "<string>Rule - General</string><key>type</key><string>General</string><key>isActive</key><string>1</string>"
        "</dict></array></plist>");
    window.rules()->showDrawer();
    prompter->chosenFile = tree.path(u"rules/old.tnrule"_s);
    press(button("openRuleButton"));
    ASSERT_EQ(prompter->alerts.size(), 1);
    EXPECT_EQ(prompter->alerts[0].severity, Prompter::Severity::Critical);
    EXPECT_EQ(prompter->alerts[0].title, localized("OPENRULETITLE"));
    EXPECT_TRUE(chain().isEmpty());

    libraryItem(u"old"_s)->trigger();
    ASSERT_EQ(chain().size(), 1);
    EXPECT_EQ(stepRule(chain().first()), u"General"_s);
}

TEST_F(RulesDrawerTest, TheRulesSheetShowsAStepsOptionsAndPreviewsTheRule)
{
    listFiles({ u"x y.txt"_s });
    window.rules()->showDrawer();
    addThreeSteps();
    ASSERT_TRUE(saveRuleFile(chain(), tree.path(u"rules/saved.tnrule"_s)));
    press(button("clearAllButton"));

    window.sheets()->openRulesSheet();
    auto* sheet = window.findChild<RulesSheet*>();
    ASSERT_NE(sheet, nullptr);
    prompter->chosenFile = tree.path(u"rules/saved.tnrule"_s);
    press(part<QPushButton>(sheet, u"openRuleButton"_s));
    EXPECT_EQ(part<QLineEdit>(sheet, u"ruleFilePath"_s)->text(), prompter->chosenFile);
    ASSERT_EQ(chain().size(), 3);
    clickRow(sheet->table(), 1);
    const QAbstractItemModel* outline = sheet->outline()->model();
    const QModelIndex root = outline->index(0, 0);
    EXPECT_EQ(root.data().toString(), localized("General"));
    EXPECT_EQ(outline->rowCount(root), 1);
    EXPECT_EQ(outline->index(0, 1, root).data().toString(), localized("Upper Case"));

    ASSERT_TRUE(runAndWait(&rename(), &RenameController::previewFinished, [&] {
        press(part<QPushButton>(sheet, u"previewButton"_s));
        return true;
    }));
    EXPECT_EQ(shownNewNames(), QStringList({ u"X_Y1.txt"_s }));
}

} // namespace
