#include "gui/engine/AudioTab.h"

#include "GuiFixture.h"
#include "core/engine/OptionValues.h"
#include "core/engine/actions/audiotags.h"
#include "core/metadata/AudioFiles.h"
#include "core/profiles/Preferences.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/MainWindow.h"
#include "gui/engine/ActionTabs.h"
#include "gui/engine/RenamePanel.h"
#include "gui/list/FileTableModel.h"
#include "gui/ui/ExtensionsEditorSheet.h"
#include "support/TempTree.h"

#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <gtest/gtest.h>

using namespace tavrin;
using test::AudioFormat;

namespace {

QString q(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

// The tab shown on its own over settings at their start values.
class AudioTabTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        settings.resetToStartValues();
        tab.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&tab));
    }

    // A wide button only answers a mouse click on its indicator and text; the space bar
    // presses it wherever it is.
    void click(const char* objectName) const
    {
        auto* pressed = tab.findChild<QAbstractButton*>(QString::fromLatin1(objectName));
        ASSERT_NE(pressed, nullptr) << objectName;
        pressed->setFocus();
        QTest::keyClick(pressed, Qt::Key_Space);
    }

    QWidget* field(const char* optionKey) const
    {
        QWidget* found = tab.fieldForOption(QString::fromLatin1(optionKey));
        EXPECT_NE(found, nullptr) << optionKey;
        return found;
    }

    bool isEnabled(const char* optionKey) const { return field(optionKey)->isEnabled(); }

    // Replaces the field's text by typing, as a user who selected it all would.
    void typeInto(const char* optionKey, const QString& text) const
    {
        auto* line = qobject_cast<QLineEdit*>(field(optionKey));
        ASSERT_NE(line, nullptr) << optionKey;
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, text);
    }

    Settings settings;
    AudioTab tab { settings };
};

QString maskShown(const AudioTab& tab)
{
    return qobject_cast<QLineEdit*>(tab.fieldForOption(QString::fromLatin1(Settings::id3RenamingMaskKey)))
        ->text();
}

TEST_F(AudioTabTest, TokenButtonsAppendTheirTokensAndTheMaskFollows)
{
    const struct {
        const char* name;
        std::vector<const char*> buttons;
        bool separate;
        const char* mask;
    } rows[] = {
        { "artist then title", { "id3Token1", "id3Token4" }, false, "<Artist><Title>" },
        { "with the separator", { "id3Token1", "id3Token4" }, true, "<Artist> - <Title>" },
        { "every button in turn",
            { "id3Token1", "id3Token2", "id3Token3", "id3Token4", "id3Token5", "id3Token6", "id3Token7",
                "id3Token8" },
            false, "<Artist><Year><Genre><Title><Album><Comments><TrackNumber><Composer>" },
        { "a token twice", { "id3Token7", "id3Token7" }, true, "<TrackNumber> - <TrackNumber>" },
        { "clear starts over", { "id3Token1", "id3RenamingMaskClear", "id3Token5" }, true, "<Album>" },
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        settings.resetToStartValues();
        if (row.separate) {
            click(Settings::isID3RenamingSeperatorKey);
            typeInto(Settings::id3RenamingSeperatorKey, QStringLiteral(" - "));
        }
        for (const char* button : row.buttons)
            click(button);
        EXPECT_EQ(settings.id3RenamingMask(), q(row.mask));
        EXPECT_EQ(maskShown(tab), q(row.mask));
    }
}

TEST_F(AudioTabTest, TheSeparatorSettersRebuildTheMask)
{
    click("id3Token1");
    click("id3Token4");
    EXPECT_FALSE(isEnabled(Settings::id3RenamingSeperatorKey));
    click(Settings::isID3RenamingSeperatorKey);
    EXPECT_TRUE(isEnabled(Settings::id3RenamingSeperatorKey));
    typeInto(Settings::id3RenamingSeperatorKey, QStringLiteral("_"));
    EXPECT_EQ(maskShown(tab), q("<Artist>_<Title>"));
    click(Settings::isID3RenamingSeperatorKey);
    EXPECT_EQ(maskShown(tab), q("<Artist><Title>"));

    EXPECT_FALSE(isEnabled(Settings::id3RenamingColonReplaceKey));
    click(Settings::isID3RenamingColonReplaceKey);
    typeInto(Settings::id3RenamingColonReplaceKey, QStringLiteral("-"));
    EXPECT_TRUE(settings.isID3RenamingColonReplace());
    EXPECT_EQ(settings.id3RenamingColonReplace(), q("-"));
    EXPECT_EQ(maskShown(tab), q("<Artist><Title>")) << "the colon option leaves the mask alone";
}

TEST_F(AudioTabTest, AnExtensionAddedInTheEditorRenamesItsFiles)
{
    auto* view = tab.findChild<QLineEdit*>(QStringLiteral("id3ExtensionsView"));
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->text(), q(".MP3; .M4A; .AAC; .M4B"));

    click("id3ExtensionEditor");
    auto* sheet = tab.findChild<ExtensionsEditorSheet*>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
    auto* field = sheet->findChild<QLineEdit*>(QStringLiteral("newExtensionField"));
    QTest::keyClicks(field, QStringLiteral("flac"));
    QTest::keyClick(field, Qt::Key_Return);
    sheet->accept();
    EXPECT_EQ(view->text(), q(".MP3; .M4A; .AAC; .M4B; .FLAC"));

    test::TempTree tree;
    const QString path
        = test::writeTaggedAudio(tree, q("song.flac"), AudioFormat::Flac, { { q("Ana") }, q("Sol") });
    click("id3Token1");
    click("id3Token4");
    click(Settings::isID3RenamingSeperatorKey);
    typeInto(Settings::id3RenamingSeperatorKey, QStringLiteral(" - "));
    FileSystemItem item = *FileSystemItem::initWithPath(path);
    QString error;
    ASSERT_TRUE(renameByID3Tags(item, ID3Options::from(PropertyOptionValues(settings)), error));
    EXPECT_EQ(item.newFilename(), q("Ana - Sol.flac"));
}

TEST(ExtensionsEditorSheet, TypedExtensionsTakeTheFormOfTheList)
{
    const struct {
        const char* typed;
        const char* added;
    } rows[] = {
        { "flac", ".FLAC" },
        { ".Flac", ".FLAC" },
        { "*.ogg", ".OGG" },
        { "  m4b ", ".M4B" },
        { "..wav", ".WAV" },
        { "", "" },
        { ".", "" },
        { "*", "" },
        { "tar.gz", "" },
        { "a b", "" },
        { "a/b", "" },
        { "a:b", "" },
        { "ü", ".Ü" },
    };
    for (const auto& row : rows)
        EXPECT_EQ(ExtensionsEditorSheet::normalisedExtension(q(row.typed)), q(row.added)) << row.typed;
}

TEST(ExtensionsEditorSheet, AddsEachExtensionOnceAndRemovesTheSelectedOnes)
{
    for (const auto type : { ExtensionsEditorSheet::Photo, ExtensionsEditorSheet::Audio }) {
        ExtensionsEditorSheet sheet({ q(".MP3"), q(".M4A"), q(".AAC") }, type);
        EXPECT_EQ(sheet.windowTitle(),
            localized(type == ExtensionsEditorSheet::Photo ? "EXTENSIONSEDITORPHOTOTITLE"
                                                           : "EXTENSIONSEDITORAUDIOTITLE"));
        auto* field = sheet.findChild<QLineEdit*>(QStringLiteral("newExtensionField"));
        auto* add = sheet.findChild<QPushButton*>(QStringLiteral("addExtensionButton"));
        auto* remove = sheet.findChild<QPushButton*>(QStringLiteral("removeExtensionButton"));
        EXPECT_FALSE(add->isEnabled());
        EXPECT_FALSE(remove->isEnabled());
        for (const char* typed : { "mp3", "ogg", "OGG", "tar.gz" }) {
            field->setText(q(typed));
            add->click();
        }
        EXPECT_EQ(sheet.extensions(), QStringList({ q(".MP3"), q(".M4A"), q(".AAC"), q(".OGG") }));
        EXPECT_EQ(field->text(), q("tar.gz")) << "a refused extension stays to be corrected";

        auto* list = sheet.findChild<QListWidget*>(QStringLiteral("extensionsList"));
        list->item(0)->setSelected(true);
        list->item(2)->setSelected(true);
        EXPECT_TRUE(remove->isEnabled());
        remove->click();
        EXPECT_EQ(sheet.extensions(), QStringList({ q(".M4A"), q(".OGG") }));
    }
}

// The whole road in the window: a folder of tagged MP3 files named "Artist - Title".
class AudioWindowTest : public test::WindowFixture {
protected:
    bool clickAndWait(const QString& button, void (RenameController::*finished)())
    {
        return test::runAndWait(&rename(), finished, [&] {
            QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
            return true;
        });
    }

    QStringList shownNewNames() const
    {
        QStringList names;
        for (int row = 0; row < window.tableModel()->rowCount(); ++row)
            names.append(newName(row));
        return names;
    }
};

TEST_F(AudioWindowTest, TaggedFilesPreviewAndRenameAsArtistDashTitle)
{
    const QStringList paths {
        test::writeTaggedAudio(tree, q("music/01.mp3"), AudioFormat::Mp3, { { q("Abba") }, q("Waterloo") }),
        test::writeTaggedAudio(tree, q("music/02.mp3"), AudioFormat::Mp3, { { q("Björk") }, q("東京") }),
    };
    ASSERT_TRUE(addAndWait(paths));

    ActionTabs* tabs = window.renamePanel()->tabs();
    auto* page = static_cast<AudioTab*>(tabs->pageForTab(tabs::Audio));
    ASSERT_NE(page, nullptr);
    settings().setSelectedTab(tabs::Audio);
    page->id3RenamingMaskActions(1);
    page->id3RenamingMaskActions(4);
    page->findChild<QCheckBox*>(QString::fromLatin1(Settings::isID3RenamingSeperatorKey))->click();
    auto* separator = qobject_cast<QLineEdit*>(
        page->fieldForOption(QString::fromLatin1(Settings::id3RenamingSeperatorKey)));
    separator->setFocus();
    QTest::keyClicks(separator, QStringLiteral(" - "));

    ASSERT_TRUE(clickAndWait(QStringLiteral("previewActionButton"), &RenameController::previewFinished));
    EXPECT_EQ(shownNewNames(), QStringList({ q("Abba - Waterloo.mp3"), q("Björk - 東京.mp3") }));
    ASSERT_TRUE(clickAndWait(QStringLiteral("applyActionButton"), &RenameController::applyFinished));
    EXPECT_EQ(QDir(tree.path(q("music"))).entryList(QDir::Files, QDir::Name),
        QStringList({ q("Abba - Waterloo.mp3"), q("Björk - 東京.mp3") }));
}

} // namespace
