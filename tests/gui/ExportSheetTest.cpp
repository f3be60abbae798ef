#include "GuiFixture.h"

#include "gui/io/ExportSheetController.h"

namespace tavrin::test {
namespace {

class ExportSheetTest : public WindowFixture {
protected:
    ExportSheetController* openSheet()
    {
        window.findChild<QAction*>(u"exportListAction"_s)->trigger();
        return window.findChild<ExportSheetController*>(u"exportSheet"_s);
    }
    QString folder() const { return tree.path(u"files"_s); }
};

TEST_F(ExportSheetTest, ExportsThePreviewedListAndRefusesAnEmptyChoice)
{
    listFiles({u"a.txt"_s, u"b.txt"_s});
    chooseUpperCase();
    ASSERT_TRUE(clickPreviewAndWait());
    ExportSheetController* sheet = openSheet();
    ASSERT_NE(sheet, nullptr);

    const char* unchecked[] = {"isFilename", "isNewFilename", "isLocation"};
    for (const char* name : unchecked)
        part<QCheckBox>(sheet, QString::fromLatin1(name))->setChecked(false);
    press(part<QPushButton>(sheet, u"exportButton"_s));
    EXPECT_EQ(prompter->alertTexts(), QStringList({localized("EXPORTFILESTITLE") + u'|' + localized("EXPORTNOCOLUMN")}));
    EXPECT_TRUE(prompter->choices.isEmpty());

    for (const char* name : unchecked)
        part<QCheckBox>(sheet, QString::fromLatin1(name))->setChecked(true);
    prompter->chosenFile = tree.path(u"export.txt"_s);
    press(part<QPushButton>(sheet, u"exportButton"_s));
    EXPECT_EQ(prompter->choices, QList({Prompter::Choice::ExportList}));
    EXPECT_EQ(tree.read(u"export.txt"_s),
              (u"Filename\tNew Filename\tLocation\na.txt\tA.txt\t%1\nb.txt\tB.txt\t%1\n"_s.arg(folder())).toUtf8());
    EXPECT_EQ(prompter->alerts.last().message, localized("EXPORTFILESEXPORTEDSUCCESS"));
}

TEST_F(ExportSheetTest, FromFileTabLoadsAListReadyToRename)
{
    listFiles({u"a.txt"_s, u"b.txt"_s});
    settings().setSelectedTab(tabs::FromFile);
    prompter->chosenFile = tree.file(u"bad.txt"_s, "a.txt\tx\n");
    press(child<QPushButton>(u"browseRenameFileButton"_s));
    EXPECT_EQ(child<QLineEdit>(u"renameFile"_s)->text(), prompter->chosenFile);
    press(child<QPushButton>(u"loadRenameFileButton"_s));
    EXPECT_EQ(prompter->alerts.last().message, localized("RENAMEFROMFILEMESSAGE"));
    EXPECT_TRUE(settings().renameFile().isEmpty());

    prompter->chosenFile = tree.file(u"list.txt"_s,
        (u"a.txt\tfirst.txt\t%1\nb.txt\t\t%1\ngone.txt\tx\t%1\n"_s.arg(folder())).toUtf8());
    press(child<QPushButton>(u"browseRenameFileButton"_s));
    ASSERT_TRUE(runAndWait(&rename(), &RenameController::previewFinished, [&] {
        press(child<QPushButton>(u"loadRenameFileButton"_s));
        return true;
    }));
    EXPECT_EQ(shownNewNames(), QStringList({u"first.txt"_s, u"No Changes"_s, u"File Not Found"_s}));
    ASSERT_TRUE(clickRenameAndWait());
    EXPECT_EQ(tree.read(u"files/first.txt"_s), "a.txt");
}

}  // namespace
}  // namespace tavrin::test
