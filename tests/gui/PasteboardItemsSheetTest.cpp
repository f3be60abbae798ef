#include "gui/list/PasteboardItemsSheet.h"

#include "core/text/LocalizedStrings.h"
#include "gui/list/PastedItemsModel.h"
#include "support/TempTree.h"

#include <QCheckBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

using namespace tavrin;
using tavrin::test::TempTree;

namespace {

class PasteboardItemsSheetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        // A link to a folder is renamed as the link it is, so it counts as a file.
        paths = { tree.file(QStringLiteral("a.txt")), tree.folder(QStringLiteral("Photos")),
            tree.symlink(tree.path(QStringLiteral("Photos")), QStringLiteral("Photos link")),
            tree.folder(QStringLiteral("Music/Live")), tree.file(QStringLiteral("Music/b.mp3")) };
        sheet = std::make_unique<PasteboardItemsSheet>(paths, ListChoice { ListMode::Files, false });
        sheet->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(sheet.get()));
    }

    template <typename T> T* child(const char* name) const
    {
        T* found = sheet->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    QString countLine() const { return child<QLabel>("pastedCountLabel")->text(); }
    QString cell(int row, int column) const { return sheet->model()->index(row, column).data().toString(); }

    void selectRows(std::initializer_list<int> rows) const
    {
        QItemSelectionModel* selection = sheet->table()->selectionModel();
        selection->clearSelection();
        for (const int row : rows) {
            selection->select(
                sheet->model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
    }

    TempTree tree;
    QStringList paths;
    std::unique_ptr<PasteboardItemsSheet> sheet;
};

TEST_F(PasteboardItemsSheetTest, ListsTheItemsAndCountsFilesAndFolders)
{
    EXPECT_EQ(countLine(), QStringLiteral("Items: 5 (files: 3, folders: 2)"));
    EXPECT_EQ(sheet->paths(), paths);
    EXPECT_EQ(cell(3, PastedItemsModel::NameColumn), QStringLiteral("Live"));
    EXPECT_EQ(cell(3, PastedItemsModel::LocationColumn), tree.path(QStringLiteral("Music")));
    EXPECT_FALSE(sheet->isFolders());
    EXPECT_FALSE(sheet->isIncludeSubFolders());
}

TEST_F(PasteboardItemsSheetTest, RemovedRowsLeaveTheRestInOrderUntilNoneIsLeftToAdd)
{
    auto* add = child<QPushButton>("addToListButton");
    auto* remove = child<QPushButton>("removeButton");
    EXPECT_FALSE(remove->isEnabled());

    // Rows apart from each other go in one stroke; the row after the first one removed is
    // selected, so a second Delete goes on from there.
    selectRows({ 1, 4, 0 });
    QTest::keyClick(sheet->table(), Qt::Key_Delete);
    EXPECT_EQ(sheet->paths(), QStringList({ paths[2], paths[3] }));
    EXPECT_EQ(countLine(), QStringLiteral("Items: 2 (files: 1, folders: 1)"));
    QTest::keyClick(sheet->table(), Qt::Key_Delete);
    EXPECT_EQ(sheet->paths(), QStringList({ paths[3] }));
    EXPECT_TRUE(add->isEnabled());

    selectRows({ 0 });
    remove->click();
    EXPECT_TRUE(sheet->paths().isEmpty());
    EXPECT_EQ(countLine(), QStringLiteral("Items: 0 (files: 0, folders: 0)"));
    EXPECT_FALSE(add->isEnabled());
    EXPECT_FALSE(remove->isEnabled());
}

QString addCountAfterCounting(const QLabel* label)
{
    if (!QTest::qWaitFor([label] { return label->text() != localized("PASTEDCOUNTING"); }, 5000))
        return QStringLiteral("<still counting>");
    return label->text();
}

// Regression: the sheet always started from files without sub-folders, so "Add to List" on a
// folder listed nothing and unticked the window's own choice.
TEST(PasteboardItemsSheetStart, StartsFromTheWindowsChoiceAndCountsWhatEachChoiceAdds)
{
    TempTree tree;
    tree.file(QStringLiteral("Photos/2024/a.jpg"));
    tree.file(QStringLiteral("Photos/b.jpg"));
    PasteboardItemsSheet sheet({ tree.path(QStringLiteral("Photos")) }, ListChoice { ListMode::Files, true });
    EXPECT_FALSE(sheet.isFolders());
    EXPECT_TRUE(sheet.isIncludeSubFolders());
    const auto* count = sheet.findChild<QLabel*>(QStringLiteral("addCountLabel"));
    ASSERT_NE(count, nullptr);
    EXPECT_EQ(addCountAfterCounting(count), localized("PASTEDWOULDADDFILES").arg(2));
    // Without sub-folders a folder adds none of its files: the sheet says so before adding.
    sheet.findChild<QCheckBox*>(QStringLiteral("includeSubFoldersBox"))->click();
    EXPECT_EQ(addCountAfterCounting(count), localized("PASTEDWOULDADDFILES").arg(0));
    sheet.findChild<QRadioButton*>(QStringLiteral("renameFoldersButton"))->click();
    EXPECT_EQ(addCountAfterCounting(count), localized("PASTEDWOULDADDFOLDERS").arg(1));
}

TEST_F(PasteboardItemsSheetTest, AnswersTheChosenOptions)
{
    child<QRadioButton>("renameFoldersButton")->click();
    child<QCheckBox>("includeSubFoldersBox")->click();
    QTest::keyClick(sheet->table(), Qt::Key_Return);
    EXPECT_EQ(sheet->result(), QDialog::Accepted);
    EXPECT_TRUE(sheet->isFolders());
    EXPECT_TRUE(sheet->isIncludeSubFolders());
}

} // namespace
