#include "gui/engine/PhotoTab.h"

#include "GuiFixture.h"
#include "core/metadata/MetaDataCatalogue.h"
#include "core/metadata/PhotoFiles.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/MainWindow.h"
#include "gui/engine/ActionTabs.h"
#include "gui/engine/RenamePanel.h"
#include "gui/metadata/PhotoRenamingMaskEditor.h"
#include "gui/ui/ThumbnailPreview.h"
#include "support/TempTree.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTableWidget>
#include <QTreeWidget>
#include <gtest/gtest.h>

using namespace tavrin;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

const QStringList kDateAndNumber { phototoken::Date, phototoken::NumberSequence };

MetaDataCatalogue initializedCatalogue()
{
    MetaDataCatalogue catalogue;
    catalogue.InitializeMetaDataList();
    return catalogue;
}

class PhotoTabTest : public ::testing::Test {
protected:
    void SetUp() override { settings.resetToStartValues(); }

    Settings settings;
    PhotoTab tab { settings };
};

TEST_F(PhotoTabTest, QuickInsertsAddToTheMaskAndTheSeparatorRebuildsItFromTheFields)
{
    settings.setPhotoMetaDataList(kDateAndNumber);
    settings.setIsPhotoRenamingSeperator(true);
    settings.setPhotoRenamingSeperator(q("_"));
    EXPECT_EQ(settings.photoRenamingMask(), q("<EXIF_Date>_<SEQUENCES_Number_Sequence>"));
    tab.photoRenamingMaskInsert(phototoken::DeviceModel);
    EXPECT_EQ(settings.photoRenamingMask(), q("<EXIF_Date>_<SEQUENCES_Number_Sequence>_<EXIF_Device_Model>"));
    EXPECT_EQ(settings.photoMetaDataList(), kDateAndNumber) << "quick inserts leave the fields alone";

    tab.photoRenamingMaskClear();
    EXPECT_EQ(settings.photoRenamingMask() + settings.photoMetaDataList().join(u','), QString());
    settings.setPhotoExtensions({ q(".JPG"), q(".HEIC") });
    EXPECT_EQ(tab.findChild<QLineEdit*>(q("photoExtensionsView"))->text(), q(".JPG; .HEIC"));
}

class MaskEditorTest : public ::testing::Test {
protected:
    // A double click on the outline's row of the category, or of its field.
    void pick(const char* category, const char* label = nullptr)
    {
        QList<QTreeWidgetItem*> found
            = outline()->findItems(q(label ? label : category), Qt::MatchExactly | Qt::MatchRecursive);
        found.removeIf([&](const QTreeWidgetItem* item) { return label && item->parent()->text(0) != q(category); });
        ASSERT_FALSE(found.isEmpty()) << category;
        outline()->setCurrentItem(found.first());
        editor.doubleClickOutline();
    }

    QStringList picked() const { return MetaDataField::getTagsList(editor.metadataFields()); }
    QTreeWidget* outline() const { return editor.findChild<QTreeWidget*>(q("maskEditorOutline")); }
    QTableWidget* table() const { return editor.findChild<QTableWidget*>(q("maskEditorFields")); }
    bool enabled(const char* button) const { return editor.findChild<QPushButton*>(q(button))->isEnabled(); }

    const MetaDataCatalogue catalogue = initializedCatalogue();
    PhotoRenamingMaskEditor editor { catalogue, catalogue.fieldsForTags({ q("<EXIF_Date>") }) };
};

TEST_F(MaskEditorTest, DoubleClicksInsertBeforeTheSelectedFieldFromTheSecondOn)
{
    EXPECT_EQ(outline()->topLevelItemCount(), 9);
    pick("IPTC - Contact");
    EXPECT_EQ(picked(), QStringList({ "<EXIF_Date>" })) << "a category adds nothing";

    pick("EXIF", "Time");
    EXPECT_EQ(picked(), QStringList({ "<EXIF_Date>", "<EXIF_Time>" })) << "first row selected: appended";
    EXPECT_EQ(table()->currentRow(), 0) << "the selection goes to the first row";
    table()->selectRow(1);
    pick("File Details", "Filename");
    EXPECT_EQ(picked(), QStringList({ "<EXIF_Date>", "<FILEINFO_Filename>", "<EXIF_Time>" }));
    EXPECT_EQ(table()->currentRow(), 1);
    EXPECT_EQ(table()->item(1, 1)->text(), q("FILEINFO"));
    EXPECT_EQ(table()->item(1, 2)->text(), q("<FILEINFO_Filename>"));

    table()->selectRow(2);
    table()->setFocus();
    QTest::keyClick(table(), Qt::Key_Delete);
    EXPECT_EQ(picked(), QStringList({ "<EXIF_Date>", "<FILEINFO_Filename>" }));
}

TEST_F(MaskEditorTest, ButtonsMoveAndRemoveTheSelectedField)
{
    pick("EXIF", "Time");
    pick("EXIF", "Device Model");
    const struct {
        const char* name;
        int select;
        void (PhotoRenamingMaskEditor::*action)();
        QStringList after;
        bool up, down, clear;
    } rows[] = {
        { "down from the first", 0, &PhotoRenamingMaskEditor::moveDown,
            { "<EXIF_Time>", "<EXIF_Date>", "<EXIF_Device_Model>" }, true, true, true },
        { "down from the last stays", 2, &PhotoRenamingMaskEditor::moveDown,
            { "<EXIF_Time>", "<EXIF_Date>", "<EXIF_Device_Model>" }, true, false, true },
        { "up from the last", 2, &PhotoRenamingMaskEditor::moveUp,
            { "<EXIF_Time>", "<EXIF_Device_Model>", "<EXIF_Date>" }, true, true, true },
        { "remove", 1, &PhotoRenamingMaskEditor::clearSelected, { "<EXIF_Time>", "<EXIF_Date>" }, false, true, true },
        { "remove again", 0, &PhotoRenamingMaskEditor::clearSelected, { "<EXIF_Date>" }, false, false, true },
        { "remove the last", 0, &PhotoRenamingMaskEditor::clearSelected, {}, false, false, false },
    };
    for (const auto& row : rows) {
        table()->selectRow(row.select);
        (editor.*row.action)();
        EXPECT_EQ(picked(), row.after) << row.name;
        EXPECT_EQ(enabled("maskEditorMoveUp"), row.up) << row.name;
        EXPECT_EQ(enabled("maskEditorMoveDown"), row.down) << row.name;
        EXPECT_EQ(enabled("maskEditorClear"), row.clear) << row.name;
    }
    EXPECT_FALSE(table()->isEnabled()) << "an empty list is disabled";
}

TEST_F(MaskEditorTest, SearchFindsAFieldByLabelAndReturnAddsIt)
{
    auto* search = editor.findChild<QLineEdit*>(q("maskEditorSearch"));
    editor.show();
    search->setFocus();
    QTest::keyClicks(search, q("model"));
    ASSERT_NE(outline()->currentItem(), nullptr);
    EXPECT_EQ(outline()->currentItem()->text(0), q("Device Model"));
    EXPECT_EQ(outline()->currentItem()->parent()->text(0), q("EXIF"));
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(picked(), QStringList({ "<EXIF_Date>", "<EXIF_Device_Model>" }));
    EXPECT_TRUE(editor.isVisible()) << "Return belongs to the search, not to OK";
    EXPECT_FALSE(editor.filterItems(q("no such label")));
    EXPECT_TRUE(editor.filterItems(q("POSTAL")));
    EXPECT_EQ(outline()->currentItem()->text(0), q("Postal Code"));

    LocalizedStrings::setLanguage(q("de"));
    PhotoRenamingMaskEditor german(catalogue, {});
    LocalizedStrings::setLanguage(q("en"));
    EXPECT_TRUE(german.filterItems(q("postleit"))) << "labels are searched as they are shown";
    EXPECT_EQ(german.findChild<QTreeWidget*>()->currentItem()->parent()->text(0), q("IPTC - Kontakt"));
}

TEST_F(MaskEditorTest, FieldsAreDraggedFromTheOutlineToTheList)
{
    QAbstractItemModel* model = outline()->model();
    const QModelIndex exif = model->index(2, 0);
    EXPECT_EQ(model->mimeData({ exif }), nullptr) << "a category cannot be dragged";
    std::unique_ptr<QMimeData> dragged(model->mimeData({ model->index(1, 0, exif) }));
    ASSERT_NE(dragged, nullptr);

    editor.show();
    const QPoint onFirstRow = table()->visualRect(table()->model()->index(0, 0)).center();
    QDragEnterEvent enter(onFirstRow, Qt::MoveAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(table()->viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(onFirstRow, Qt::MoveAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(table()->viewport(), &drop);
    EXPECT_EQ(picked(), QStringList({ "<EXIF_Time>", "<EXIF_Date>" }));

    QMimeData text;
    text.setText(q("<EXIF_Date>"));
    QDropEvent refused(onFirstRow, Qt::MoveAction, &text, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(table()->viewport(), &refused);
    EXPECT_EQ(picked().size(), 2);
}

TEST_F(PhotoTabTest, TheEditorsOkRebuildsTheMaskAndCancelLeavesIt)
{
    settings.setIsPhotoRenamingSeperator(true);
    settings.setPhotoRenamingSeperator(q("_"));
    settings.setPhotoRenamingMask(q("kept"));
    for (const bool ok : { false, true }) {
        tab.photoRenamingMaskEditor();
        const auto editors = tab.findChildren<PhotoRenamingMaskEditor*>();
        ASSERT_FALSE(editors.isEmpty());
        PhotoRenamingMaskEditor* editor = editors.last();
        auto* search = editor->findChild<QLineEdit*>(q("maskEditorSearch"));
        for (const char* label : { "Date", "Time" }) {
            search->clear();
            editor->filterItems(q(label));
            editor->doubleClickOutline();
        }
        if (ok) {
            editor->accept();
        } else {
            editor->reject();
            EXPECT_EQ(settings.photoRenamingMask(), q("kept"));
            EXPECT_TRUE(settings.photoMetaDataList().isEmpty());
        }
    }
    EXPECT_EQ(settings.photoRenamingMask(), q("<EXIF_Date>_<EXIF_Time>"));
    EXPECT_EQ(settings.photoMetaDataList(), QStringList({ "<EXIF_Date>", "<EXIF_Time>" }));
}

TEST(ThumbnailPreview, ShowsImagesOnlyBesideTheirRow)
{
    test::TempTree tree;
    QStandardItemModel model(3, 1);
    const QString photo = test::writeTaggedPhoto(tree, q("a.jpg"), {});
    const QString items[] = { photo, tree.file(q("b.jpg"), "not an image"), tree.folder(q("c.jpg")) };
    for (int row = 0; row < 3; ++row)
        model.setData(model.index(row, 0), items[row], ThumbnailPreview::PathRole);
    QTableView view;
    view.setModel(&model);
    ThumbnailPreview preview(&view);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));

    QSignalSpy shown(&preview, &ThumbnailPreview::shown);
    preview.showFor(model.index(0, 0));
    ASSERT_TRUE(shown.wait(5000));
    EXPECT_EQ(shown.at(0).at(0).toString(), photo);
    EXPECT_TRUE(preview.popup()->isVisible());
    EXPECT_EQ(preview.popup()->pixmap().size(), QSize(8, 6));
    for (int row : { 1, 2 }) {
        preview.showFor(model.index(row, 0));
        EXPECT_FALSE(preview.popup()->isVisible()) << row;
    }
    view.setCurrentIndex(model.index(0, 0));
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Space);
    ASSERT_TRUE(shown.wait(5000)) << "Space shows the current row's image";
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_FALSE(preview.popup()->isVisible());
}

// The whole road in the window: tagged photos named by date and number.
class PhotoWindowTest : public test::WindowFixture { };

TEST_F(PhotoWindowTest, TaggedPhotosPreviewAndRenameByDateAndNumber)
{
    const auto taken = [](const char* date) {
        return test::PhotoTags { .exif = { { q("Exif.Photo.DateTimeOriginal"), q(date) } } };
    };
    ASSERT_TRUE(addAndWait({ test::writeTaggedPhoto(tree, q("photos/IMG_1.jpg"), taken("2010:05:01 10:00:00")),
        test::writeTaggedPhoto(tree, q("photos/IMG_2.JPG"), taken("2010:05:01 11:00:00")) }));
    ActionTabs* tabs = window.renamePanel()->tabs();
    auto* page = static_cast<PhotoTab*>(tabs->pageForTab(tabs::Photo));
    ASSERT_NE(page, nullptr);
    settings().setSelectedTab(tabs::Photo);
    settings().setPhotoDatePart1(q("yyyy"));
    settings().setPhotoDatePart3(q("dd"));
    settings().setPhotoDateSeperator1(q("-"));
    settings().setPhotoDateSeperator2(q("-"));
    settings().setPhotoPaddingMask(q("000"));
    page->photoRenamingMaskInsert(phototoken::Date);
    page->photoRenamingMaskInsert(q("_"));
    page->photoRenamingMaskInsert(phototoken::NumberSequence);

    ASSERT_TRUE(previewAndWait());
    EXPECT_EQ(newNames(), QStringList({ q("2010-05-01_001.jpg"), q("2010-05-01_002.JPG") }));
    ASSERT_TRUE(applyAndWait());
    EXPECT_EQ(QDir(tree.path(q("photos"))).entryList(QDir::Files, QDir::Name),
        QStringList({ q("2010-05-01_001.jpg"), q("2010-05-01_002.JPG") }));
}

} // namespace
