#include "gui/engine/AudioTab.h"

#include "GuiFixture.h"
#include "core/metadata/AudioFiles.h"
#include "gui/engine/ActionTabs.h"
#include "gui/engine/RenamePanel.h"
#include "gui/ui/ExtensionsEditorSheet.h"

#include <QListWidget>

using namespace tavrin;
using namespace tavrin::test;

namespace {

// The tab shown on its own over settings at their start values.
class AudioTabTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        settings.resetToStartValues();
        tab.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&tab));
    }

    void click(const char* name) const { press(part<QAbstractButton>(&tab, name)); }
    QWidget* field(const char* optionKey) const { return tab.fieldForOption(QString::fromLatin1(optionKey)); }
    QString maskShown() const
    {
        return qobject_cast<QLineEdit*>(field(Settings::id3RenamingMaskKey))->text();
    }

    Settings settings;
    AudioTab tab { settings };
};

// Each button adds its own tag; the settings build the mask from the tags.
TEST_F(AudioTabTest, TokenButtonsAppendTheirTokensAndClearStartsOver)
{
    for (const char* button : { "id3Token1", "id3Token2", "id3Token3", "id3Token4", "id3Token5", "id3Token6",
             "id3Token7", "id3Token8" })
        click(button);
    EXPECT_EQ(maskShown(), u"<Artist><Year><Genre><Title><Album><Comments><TrackNumber><Composer>"_s);
    click("id3RenamingMaskClear");
    click("id3Token5");
    EXPECT_EQ(settings.id3RenamingMask(), u"<Album>"_s);
    EXPECT_EQ(maskShown(), u"<Album>"_s);
}

TEST_F(AudioTabTest, TheSeparatorRebuildsTheMaskAndTheColonOptionLeavesItAlone)
{
    click("id3Token1");
    click("id3Token4");
    EXPECT_FALSE(field(Settings::id3RenamingSeperatorKey)->isEnabled());
    click(Settings::isID3RenamingSeperatorKey);
    typeInto(field(Settings::id3RenamingSeperatorKey), u"_"_s);
    EXPECT_EQ(maskShown(), u"<Artist>_<Title>"_s);
    click(Settings::isID3RenamingSeperatorKey);
    EXPECT_EQ(maskShown(), u"<Artist><Title>"_s);

    EXPECT_FALSE(field(Settings::id3RenamingColonReplaceKey)->isEnabled());
    click(Settings::isID3RenamingColonReplaceKey);
    typeInto(field(Settings::id3RenamingColonReplaceKey), u"-"_s);
    EXPECT_TRUE(settings.isID3RenamingColonReplace());
    EXPECT_EQ(settings.id3RenamingColonReplace(), u"-"_s);
    EXPECT_EQ(maskShown(), u"<Artist><Title>"_s);
}

TEST(ExtensionsEditorSheet, TypedExtensionsTakeTheFormOfTheList)
{
    const std::pair<QString, QString> rows[] = { { u"flac"_s, u".FLAC"_s }, { u".Flac"_s, u".FLAC"_s },
        { u"*.ogg"_s, u".OGG"_s }, { u"  m4b "_s, u".M4B"_s }, { u"..wav"_s, u".WAV"_s }, { u""_s, u""_s },
        { u"."_s, u""_s }, { u"*"_s, u""_s }, { u"tar.gz"_s, u""_s }, { u"a b"_s, u""_s },
        { u"a/b"_s, u""_s }, { u"a:b"_s, u""_s }, { u"ü"_s, u".Ü"_s } };
    for (const auto& [typed, added] : rows)
        EXPECT_EQ(ExtensionsEditorSheet::normalisedExtension(typed), added) << typed.toStdString();
}

TEST(ExtensionsEditorSheet, AddsEachExtensionOnceAndRemovesTheSelectedOnes)
{
    for (const auto type : { ExtensionsEditorSheet::Photo, ExtensionsEditorSheet::Audio }) {
        ExtensionsEditorSheet sheet({ u".MP3"_s, u".M4A"_s, u".AAC"_s }, type);
        EXPECT_EQ(sheet.windowTitle(),
            localized(type == ExtensionsEditorSheet::Photo ? "EXTENSIONSEDITORPHOTOTITLE"
                                                           : "EXTENSIONSEDITORAUDIOTITLE"));
        auto* field = part<QLineEdit>(&sheet, "newExtensionField");
        auto* add = part<QPushButton>(&sheet, "addExtensionButton");
        auto* remove = part<QPushButton>(&sheet, "removeExtensionButton");
        EXPECT_FALSE(add->isEnabled() || remove->isEnabled());
        for (const QString& typed : { u"mp3"_s, u"ogg"_s, u"OGG"_s, u"tar.gz"_s }) {
            field->setText(typed);
            add->click();
        }
        EXPECT_EQ(sheet.extensions(), QStringList({ u".MP3"_s, u".M4A"_s, u".AAC"_s, u".OGG"_s }));
        EXPECT_EQ(field->text(), u"tar.gz"_s) << "a refused extension stays to be corrected";

        auto* list = part<QListWidget>(&sheet, "extensionsList");
        list->item(0)->setSelected(true);
        list->item(2)->setSelected(true);
        remove->click();
        EXPECT_EQ(sheet.extensions(), QStringList({ u".M4A"_s, u".OGG"_s }));
    }
}

using AudioWindowTest = WindowFixture;

// The whole road in the window: an extension added in the editor, and tagged files
// previewed as "Artist - Title".
TEST_F(AudioWindowTest, TheAudioTabPreviewsTaggedFilesOfTheExtensionsItAllows)
{
    const QStringList paths {
        writeTaggedAudio(tree, u"music/01.mp3"_s, AudioFormat::Mp3, { { u"Björk"_s }, u"東京"_s }),
        writeTaggedAudio(tree, u"music/02.flac"_s, AudioFormat::Flac, { { u"Ana"_s }, u"Sol"_s }),
    };
    ASSERT_TRUE(addAndWait(paths));
    ActionTabs* tabs = window.renamePanel()->tabs();
    auto* page = static_cast<AudioTab*>(tabs->pageForTab(tabs::Audio));
    ASSERT_NE(page, nullptr);
    settings().setSelectedTab(tabs::Audio);
    auto* view = part<QLineEdit>(page, "id3ExtensionsView");
    EXPECT_EQ(view->text(), u".MP3; .M4A; .AAC; .M4B"_s);
    press(part<QAbstractButton>(page, "id3ExtensionEditor"));
    auto* sheet = page->findChild<ExtensionsEditorSheet*>();
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->windowModality(), Qt::WindowModal);
    typeInto(part<QLineEdit>(sheet, "newExtensionField"), u"flac"_s);
    QTest::keyClick(part<QLineEdit>(sheet, "newExtensionField"), Qt::Key_Return);
    sheet->accept();
    EXPECT_EQ(view->text(), u".MP3; .M4A; .AAC; .M4B; .FLAC"_s);

    press(part<QAbstractButton>(page, "id3Token1"));
    press(part<QAbstractButton>(page, "id3Token4"));
    press(part<QAbstractButton>(page, Settings::isID3RenamingSeperatorKey));
    typeInto(page->fieldForOption(QString::fromLatin1(Settings::id3RenamingSeperatorKey)), u" - "_s);
    ASSERT_TRUE(clickPreviewAndWait());
    EXPECT_EQ(shownNewNames(), QStringList({ u"Björk - 東京.mp3"_s, u"Ana - Sol.flac"_s }));
}

} // namespace
