#include "gui/app/PreferencesSheet.h"

#include "GuiFixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace tavrin::test;

namespace {

class PreferencesSheetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        original.defaultRulesFolderPath = tree.folder(QStringLiteral("Rules"));
        original.defaultProfileFolderPath = tree.folder(QStringLiteral("Profiles"));
        original.defaultLogFolderPath = tree.folder(QStringLiteral("Logs"));
        sheet = std::make_unique<PreferencesSheet>(original, true, &prompter);
        sheet->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(sheet.get()));
    }

    template <typename T> T* child(const char* name) const
    {
        T* found = sheet->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    TempTree tree;
    Preferences original;
    ScriptedPrompter prompter;
    std::unique_ptr<PreferencesSheet> sheet;
};

TEST_F(PreferencesSheetTest, AnswersTheEditedValuesWithCleanedPaths)
{
    EXPECT_EQ(sheet->preferences(), original);

    child<QLineEdit>("logsFolderField")->setText(tree.root() + QStringLiteral("//Rules/../Logs/"));
    child<QCheckBox>("automaticSaveBox")->click();
    QTest::keyClick(child<QLineEdit>("rulesFolderField"), Qt::Key_Return);

    EXPECT_TRUE(prompter.alerts.isEmpty());
    EXPECT_EQ(sheet->result(), QDialog::Accepted);
    Preferences expected = original;
    expected.automaticSaveCurrProfile = true;
    EXPECT_EQ(sheet->preferences(), expected);
}

// A relative path would be read against the program's working folder, which the user
// never sees: "." is refused although it always names a folder.
TEST_F(PreferencesSheetTest, SaveRefusesAFolderThatIsNotThereAndFocusesItsField)
{
    const struct {
        const char* field;
        QString path;
    } rows[] = {
        { "rulesFolderField", tree.path(QStringLiteral("Gone")) },
        { "profilesFolderField", QStringLiteral(".") },
        { "logsFolderField", tree.file(QStringLiteral("notes.txt")) },
    };
    for (const auto& row : rows) {
        auto* field = child<QLineEdit>(row.field);
        const QString before = field->text();
        field->setText(row.path);
        prompter.alerts.clear();
        child<QPushButton>("saveButton")->click();

        EXPECT_EQ(prompter.alertTexts(),
            QStringList(QStringLiteral("Preferences|There is no folder at “%1”. Choose a folder "
                                       "that exists.")
                            .arg(row.path)))
            << row.field;
        EXPECT_TRUE(sheet->isVisible()) << row.field;
        EXPECT_NE(sheet->result(), QDialog::Accepted) << row.field;
        EXPECT_TRUE(field->hasFocus()) << row.field;
        field->setText(before);
    }
}

TEST_F(PreferencesSheetTest, ChooserStartsAtTheFieldsFolderAndFillsIt)
{
    const QString chosen = tree.folder(QStringLiteral("Elsewhere/Rules"));
    prompter.chosenFile = chosen + QLatin1Char('/');
    child<QPushButton>("rulesFolderButton")->click();
    EXPECT_EQ(child<QLineEdit>("rulesFolderField")->text(), chosen);
    // A cancelled dialog answers nothing and leaves the field as it was.
    prompter.chosenFile.clear();
    child<QPushButton>("rulesFolderButton")->click();
    EXPECT_EQ(child<QLineEdit>("rulesFolderField")->text(), chosen);

    EXPECT_EQ(prompter.choices, QList({ Prompter::Choice::Folder, Prompter::Choice::Folder }));
    EXPECT_EQ(prompter.chooserQuestions,
        QStringList({ QStringLiteral("Choose the Folder for Rules|") + original.defaultRulesFolderPath,
            QStringLiteral("Choose the Folder for Rules|") + chosen }));
    EXPECT_EQ(sheet->preferences().defaultRulesFolderPath, chosen);
}

} // namespace
