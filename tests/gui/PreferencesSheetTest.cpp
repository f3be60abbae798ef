#include "gui/app/PreferencesSheet.h"

#include "GuiFixture.h"

using namespace tavrin;
using namespace tavrin::test;

namespace {

class PreferencesSheetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        original.defaultRulesFolderPath = tree.folder(u"Rules"_s);
        original.defaultProfileFolderPath = tree.folder(u"Profiles"_s);
        original.defaultLogFolderPath = tree.folder(u"Logs"_s);
        sheet = std::make_unique<PreferencesSheet>(original, true, &prompter);
        sheet->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(sheet.get()));
    }

    QLineEdit* field(const char* name) const { return part<QLineEdit>(sheet.get(), name); }

    TempTree tree;
    Preferences original;
    ScriptedPrompter prompter;
    std::unique_ptr<PreferencesSheet> sheet;
};

// A relative path would be read against the program's working folder, which the user
// never sees: "." is refused although it always names a folder.
TEST_F(PreferencesSheetTest, SaveRefusesAFolderThatIsNotThereAndFocusesItsField)
{
    const std::pair<const char*, QString> rows[] = {
        { "rulesFolderField", tree.path(u"Gone"_s) },
        { "profilesFolderField", u"."_s },
        { "logsFolderField", tree.file(u"notes.txt"_s) },
    };
    for (const auto& [name, path] : rows) {
        const QString before = field(name)->text();
        field(name)->setText(path);
        prompter.alerts.clear();
        part<QPushButton>(sheet.get(), "saveButton")->click();
        EXPECT_EQ(prompter.alertTexts(),
            QStringList(u"Preferences|There is no folder at “%1”. Choose a folder that exists."_s.arg(path)));
        EXPECT_TRUE(sheet->isVisible()) << name;
        EXPECT_TRUE(field(name)->hasFocus()) << name;
        field(name)->setText(before);
    }

    field("logsFolderField")->setText(tree.root() + u"//Rules/../Logs/"_s);
    part<QCheckBox>(sheet.get(), "automaticSaveBox")->click();
    QTest::keyClick(field("rulesFolderField"), Qt::Key_Return);
    EXPECT_EQ(sheet->result(), QDialog::Accepted);
    Preferences expected = original;
    expected.automaticSaveCurrProfile = true;
    EXPECT_EQ(sheet->preferences(), expected) << "the paths are cleaned";
}

// The chooser starts at the field's folder; a cancelled one leaves the field as it was.
TEST_F(PreferencesSheetTest, ChooserStartsAtTheFieldsFolderAndFillsIt)
{
    const QString chosen = tree.folder(u"Elsewhere/Rules"_s);
    for (const QString& answer : { chosen + u'/', QString() }) {
        prompter.chosenFile = answer;
        part<QPushButton>(sheet.get(), "rulesFolderButton")->click();
        EXPECT_EQ(field("rulesFolderField")->text(), chosen);
    }
    EXPECT_EQ(prompter.choices, QList({ Prompter::Choice::Folder, Prompter::Choice::Folder }));
    EXPECT_EQ(prompter.chooserQuestions,
        QStringList({ u"Choose the Folder for Rules|"_s + original.defaultRulesFolderPath,
            u"Choose the Folder for Rules|"_s + chosen }));
    EXPECT_EQ(sheet->preferences().defaultRulesFolderPath, chosen);
}

} // namespace
