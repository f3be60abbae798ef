#include "core/engine/Validation.h"
#include "core/engine/actions/general.h"
#include "core/engine/actions/insertdelete.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"

#include <functional>
#include <gtest/gtest.h>

using namespace tavrin;
using namespace Qt::StringLiterals;

namespace {

struct ValidationRow {
    const char* name;
    int tab;
    std::function<void(Settings&)> set;
    const char* titleKey;  // null: the options run
    const char* messageKey;
    const char* focus;
};

void insertTexts(Settings& settings, int place, const QString& text, const QString& before, const QString& after)
{
    settings.chooseInsertPosition(place);
    settings.setInsertDeleteInsert(text);
    settings.setInsertDeleteInsertAtBeforeText(before);
    settings.setInsertDeleteInsertAtAfterText(after);
}

TEST(Validation, MissingInputsNameTheirAlertAndField)
{
    using namespace generaloption;
    const auto general = [](GeneralOption option) { return [option](Settings& s) { s.chooseGeneralOption(option); }; };
    const ValidationRow rows[] = {
        {"remove after", tabs::General, general(RemoveAfterString), "GENERALINVALIDINPUT", "ENTERVALIDVALUE",
         Settings::generalRemoveAfterStringKey},
        {"remove from", tabs::General, general(RemoveFromString), "GENERALINVALIDINPUT", "ENTERVALIDVALUE",
         Settings::generalRemoveFromStringKey},
        {"mask", tabs::General, general(FilenameMask), "GENERALINVALIDINPUT", "ENTERVALIDVALUE", Settings::generalFilenameMaskKey},
        {"swap by position needs nothing", tabs::General, general(SwapByPosition), nullptr, nullptr, nullptr},
        {"replace", tabs::ReplaceRemove, [](Settings& s) { s.chooseReplaceRemoveMode(0); },
         "REPLACEREMOVEINVALIDINPUT", "ENTERVALIDVALUE", Settings::replaceRemoveThisKey},
        {"remove characters", tabs::ReplaceRemove, [](Settings& s) { s.chooseReplaceRemoveMode(2); },
         "REPLACEREMOVEINVALIDINPUT", "ENTERVALIDVALUE", Settings::replaceRemoveThisKey},
        {"find text given", tabs::ReplaceRemove, [](Settings& s) { s.setReplaceRemoveThis(u"-"_s); }, nullptr,
         nullptr, nullptr},
        {"invalid pattern", tabs::ReplaceRemove,
         [](Settings& s) {
             s.setReplaceRemoveThis(u"IMG_(\\d+"_s);
             s.setIsReplaceRemoveRegularExpression(true);
         },
         "REPLACEREMOVEINVALIDPATTERN", "PATTERNPROBLEM", Settings::replaceRemoveThisKey},
        {"the same text as plain text", tabs::ReplaceRemove, [](Settings& s) { s.setReplaceRemoveThis(u"IMG_(\\d+"_s); },
         nullptr, nullptr, nullptr},
        {"photo mask", tabs::Photo, [](Settings&) {}, "PHOTOINVALIDINPUT", "INVALIDPHOTORENAMINGMASK",
         Settings::photoRenamingMaskKey},
        {"audio mask", tabs::Audio, [](Settings& s) { s.setIsID3RenamingSeperator(true); }, "ID3INVALIDINPUT",
         "INVALIDID3RENAMINGMASK", Settings::id3RenamingMaskKey},
        {"audio mask given", tabs::Audio, [](Settings& s) { s.setId3RenamingMask(u"<Title>"_s); }, nullptr, nullptr,
         nullptr},
        {"insert text", tabs::InsertDelete, [](Settings& s) { insertTexts(s, 0, {}, u"_"_s, u"_"_s); },
         "INSERTINVALIDINPUT", "ENTERVALIDVALUE", Settings::insertDeleteInsertKey},
        {"before text", tabs::InsertDelete, [](Settings& s) { insertTexts(s, 3, u"x"_s, {}, u"_"_s); },
         "INSERTTEXTATBEFORETEXT", "ENTERSOMETEXT", Settings::insertDeleteInsertAtBeforeTextKey},
        {"after text", tabs::InsertDelete, [](Settings& s) { insertTexts(s, 4, u"x"_s, u"_"_s, {}); },
         "INSERTTEXTATAFTERTEXT", "ENTERSOMETEXT", Settings::insertDeleteInsertAtAfterTextKey},
        {"after text unused", tabs::InsertDelete, [](Settings& s) { insertTexts(s, 3, u"x"_s, u"_"_s, {}); },
         nullptr, nullptr, nullptr},
        {"anchors unused", tabs::InsertDelete, [](Settings& s) { insertTexts(s, 2, u"x"_s, {}, {}); }, nullptr,
         nullptr, nullptr},
        {"deleting needs no text", tabs::InsertDelete,
         [](Settings& s) {
             insertTexts(s, 3, {}, {}, {});
             s.chooseInsertOrDelete(1);
         },
         nullptr, nullptr, nullptr},
    };
    for (const ValidationRow& row : rows) {
        SCOPED_TRACE(row.name);
        Settings settings;
        row.set(settings);
        const auto failure = validateAndNormalise(settings, row.tab);
        ASSERT_EQ(failure.has_value(), row.titleKey != nullptr);
        if (!failure)
            continue;
        EXPECT_EQ(failure->titleKey, QLatin1String(row.titleKey));
        EXPECT_EQ(failure->messageKey, QLatin1String(row.messageKey));
        EXPECT_EQ(failure->focusOption, QLatin1String(row.focus));
        EXPECT_FALSE(failure->message().contains(u'%')) << "every argument is filled in";
    }
}

struct NormaliseRow {
    const char* name;
    int tab;
    std::function<void(Settings&)> set;
    const char* key;
    const char* expected;
};

TEST(Validation, NormalisesWhatTheActionsCannotRunWith)
{
    const auto steps = [](int numericOrAlphabetic, const char* increment, const char* decrement) {
        return [=](Settings& s) {
            s.chooseNumericOrAlphabetic(numericOrAlphabetic);
            s.setAlphaNumericIncrementBy(QString::fromLatin1(increment));
            s.setAlphaNumericDecrementBy(QString::fromLatin1(decrement));
            s.setAlphaNumericAlphabeticStartWith(QString());
        };
    };
    const NormaliseRow rows[] = {
        {"number step 0", tabs::AlphaNumeric, steps(0, "0", "1"), Settings::alphaNumericIncrementByKey, "1"},
        {"number step below 0", tabs::AlphaNumeric, steps(0, "1", "-4"), Settings::alphaNumericDecrementByKey, "1"},
        {"number steps have no upper bound", tabs::AlphaNumeric, steps(0, "500", "1"),
         Settings::alphaNumericIncrementByKey, "500"},
        {"numbers keep an empty letter start", tabs::AlphaNumeric, steps(0, "1", "1"),
         Settings::alphaNumericAlphabeticStartWithKey, ""},
        {"letter step above 26", tabs::AlphaNumeric, steps(1, "40", "1"), Settings::alphaNumericIncrementByKey, "26"},
        {"letter step 0", tabs::AlphaNumeric, steps(1, "1", "0"), Settings::alphaNumericDecrementByKey, "1"},
        {"letter step in range", tabs::AlphaNumeric, steps(1, "7", "1"), Settings::alphaNumericIncrementByKey, "7"},
        {"empty letter start", tabs::AlphaNumeric, steps(1, "1", "1"), Settings::alphaNumericAlphabeticStartWithKey,
         "a"},
        {"empty swap position", tabs::General, [](Settings& s) { s.setGeneralSwapPosition(QString()); },
         Settings::generalSwapPositionKey, "1"},
        {"other tabs leave the steps", tabs::General, steps(1, "40", "1"), Settings::alphaNumericIncrementByKey, "40"},
    };
    for (const NormaliseRow& row : rows) {
        SCOPED_TRACE(row.name);
        Settings settings;
        row.set(settings);
        validateAndNormalise(settings, row.tab);
        EXPECT_EQ(settings.property(row.key).toString(), QString::fromLatin1(row.expected));
    }
}

}  // namespace
