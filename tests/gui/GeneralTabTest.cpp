#include "gui/engine/GeneralTab.h"

#include "core/engine/actions/general.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace tavrin;

namespace {

// The mirror boolean of each general option, in the order of the option indexes.
const char* const kMirrors[] = {
    "isGeneralConvertFilenameCase",
    "isGeneralConvertExtension",
    "isGeneralRemoveExtension",
    "isGeneralChangeExtension",
    "isGeneralReverseFileName",
    "isGeneralRemoveSpaces",
    "isGeneralSwapFromSeperator",
    "isGeneralSwapFromPostion",
    "isGeneralRemoveAfterString",
    "isGeneralRemoveFromString",
    "isGeneralFilenameMask",
    "isGeneralConvertWindowsCompatible",
};

// The inputs of each option, by settings key.
struct OptionInputs {
    int index;
    std::vector<const char*> keys;
};

const OptionInputs kInputs[] = {
    { 0, { "generalFileNameCase" } },
    { 1, { "generalExtensionCase" } },
    { 2, {} },
    { 3, { "generalChangeExtension" } },
    { 4, {} },
    { 5, {} },
    { 6, { "generalSwapSeperator" } },
    { 7, { "generalSwapPosition" } },
    { 8, { "generalRemoveAfterString", "generalRemoveAfterStringOccurrence" } },
    { 9, { "generalRemoveFromString", "generalRemoveFromStringOccurrence" } },
    { 10, { "generalFilenameMask" } },
    { 11, { "generalConvertWindowsCompatibleString" } },
};

class GeneralTabTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        settings.resetToStartValues();
        tab.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&tab));
    }

    QRadioButton* option(int index) const
    {
        return tab.findChild<QRadioButton*>(QStringLiteral("generalOption%1").arg(index));
    }

    template <typename T> T* field(const char* key) const
    {
        auto* found = qobject_cast<T*>(tab.fieldForOption(QString::fromLatin1(key)));
        EXPECT_NE(found, nullptr) << key;
        return found;
    }

    Settings settings;
    GeneralTab tab { settings };
};

TEST_F(GeneralTabTest, ChoosingAnOptionSetsItsIndexAndExactlyItsMirror)
{
    for (int index = 11; index >= 0; --index) {
        ASSERT_NE(option(index), nullptr) << index;
        QTest::mouseClick(option(index), Qt::LeftButton);
        EXPECT_EQ(settings.generalOptionIndex(), index);
        for (int mirror = 0; mirror < 12; ++mirror)
            EXPECT_EQ(settings.property(kMirrors[mirror]).toBool(), mirror == index)
                << index << " " << kMirrors[mirror];
    }
}

TEST_F(GeneralTabTest, OnlyTheChosenOptionsInputsAreEnabled)
{
    for (const OptionInputs& chosen : kInputs) {
        QTest::mouseClick(option(chosen.index), Qt::LeftButton);
        for (const OptionInputs& other : kInputs) {
            for (const char* key : other.keys) {
                QWidget* input = tab.fieldForOption(QString::fromLatin1(key));
                ASSERT_NE(input, nullptr) << key;
                EXPECT_EQ(input->isEnabled(), other.index == chosen.index)
                    << "chosen " << chosen.index << ", " << key;
            }
        }
    }
    // The word between the text and the occurrence follows its option too.
    QTest::mouseClick(option(generaloption::RemoveAfterString), Qt::LeftButton);
    int enabledWords = 0;
    for (const QLabel* label : tab.findChildren<QLabel*>())
        enabledWords += label->isEnabled() ? 1 : 0;
    EXPECT_EQ(enabledWords, 1);
}

TEST_F(GeneralTabTest, TypingAndChoosingSetTheOptions)
{
    QTest::mouseClick(option(generaloption::RemoveAfterString), Qt::LeftButton);
    QTest::keyClicks(field<QLineEdit>("generalRemoveAfterString"), QStringLiteral("a/b"));
    EXPECT_EQ(settings.generalRemoveAfterString(), QStringLiteral("a/b"));

    auto* occurrence = field<QLineEdit>("generalRemoveAfterStringOccurrence");
    occurrence->selectAll();
    QTest::keyClicks(occurrence, QStringLiteral("x2"));
    EXPECT_EQ(settings.generalRemoveAfterStringOccurrence(), QStringLiteral("2"))
        << "a number field takes digits only";

    QTest::mouseClick(option(generaloption::ConvertFilenameCase), Qt::LeftButton);
    auto* nameCase = field<QComboBox>("generalFileNameCase");
    nameCase->setFocus();
    QTest::keyClick(nameCase, Qt::Key_Down);
    EXPECT_EQ(settings.generalFileNameCase(), lettercase::Lower);
    QTest::keyClick(nameCase, Qt::Key_Down);
    EXPECT_EQ(settings.generalFileNameCase(), lettercase::Proper);
    EXPECT_EQ(settings.generalExtensionCase(), lettercase::Upper)
        << "the extension's chooser is another option";
}

TEST_F(GeneralTabTest, ChangesOfTheSettingsShowInTheWidgets)
{
    settings.chooseGeneralOption(generaloption::FilenameMask);
    settings.setGeneralFilenameMask(QStringLiteral("0000"));
    settings.setGeneralExtensionCase(lettercase::Proper);

    EXPECT_TRUE(option(generaloption::FilenameMask)->isChecked());
    EXPECT_FALSE(option(generaloption::ConvertFilenameCase)->isChecked());
    EXPECT_TRUE(field<QLineEdit>("generalFilenameMask")->isEnabled());
    EXPECT_EQ(field<QLineEdit>("generalFilenameMask")->text(), QStringLiteral("0000"));
    EXPECT_EQ(field<QComboBox>("generalExtensionCase")->currentData().toInt(), lettercase::Proper);

    // A code the chooser does not offer must not pass for one it does.
    settings.setGeneralFileNameCase(0);
    EXPECT_EQ(field<QComboBox>("generalFileNameCase")->currentIndex(), -1);
}

TEST_F(GeneralTabTest, AFieldBeingTypedInKeepsItsCursor)
{
    QTest::mouseClick(option(generaloption::ChangeExtension), Qt::LeftButton);
    auto* extension = field<QLineEdit>("generalChangeExtension");
    QTest::keyClicks(extension, QStringLiteral("jpg"));
    extension->setCursorPosition(1);
    QTest::keyClicks(extension, QStringLiteral("e"));
    EXPECT_EQ(extension->text(), QStringLiteral("jepg"));
    EXPECT_EQ(settings.generalChangeExtension(), QStringLiteral("jepg"));
    EXPECT_EQ(extension->cursorPosition(), 2) << "the echo of the setting does not reset the field";
}

TEST_F(GeneralTabTest, EveryInputIsFoundByItsOptionAndExplained)
{
    for (const OptionInputs& inputs : kInputs) {
        EXPECT_FALSE(option(inputs.index)->text().isEmpty());
        EXPECT_FALSE(option(inputs.index)->toolTip().isEmpty()) << inputs.index;
        for (const char* key : inputs.keys) {
            QWidget* input = tab.fieldForOption(QString::fromLatin1(key));
            ASSERT_NE(input, nullptr) << key;
            EXPECT_EQ(input->toolTip(), option(inputs.index)->toolTip()) << key;
            EXPECT_FALSE(input->accessibleName().isEmpty()) << key;
        }
    }
    EXPECT_EQ(tab.fieldForOption(QStringLiteral("generalRemoveAfterString"))->accessibleName(),
        option(generaloption::RemoveAfterString)->text());
    EXPECT_EQ(tab.fieldForOption(QStringLiteral("generalRemoveAfterStringOccurrence"))->accessibleName(),
        localized("OCCURRENCE"));
    EXPECT_EQ(tab.fieldForOption(QStringLiteral("replaceRemoveThis")), nullptr);
}

} // namespace
