#include "core/engine/ActionRegistry.h"

#include "core/engine/actions/alphanumeric.h"
#include "core/engine/actions/audiotags.h"
#include "core/engine/actions/datetime.h"
#include "core/engine/actions/general.h"
#include "core/engine/actions/insertdelete.h"
#include "core/engine/actions/pathcomponents.h"
#include "core/engine/actions/prefixsuffix.h"
#include "core/engine/actions/photo.h"
#include "core/engine/actions/replaceremove.h"
#include "core/metadata/MetaDataCatalogue.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/rules/RuleStep.h"

namespace tavrin {

namespace {

BoundAction bindGeneral(const OptionValues& values)
{
    return [options = GeneralOptions::from(values)](FileSystemItem& item, QString& error) {
        return renameByGeneral(item, options, error);
    };
}

BoundAction bindSequence(const OptionValues& values)
{
    const SequenceOptions options = SequenceOptions::from(values);
    if (options.kind == SequenceKind::Numeric) {
        return [options, counter = options.numericStart](FileSystemItem& item, QString& error) mutable {
            return renameByNumeric(item, options, counter, error);
        };
    }
    return [options, counter = options.alphabeticStart](FileSystemItem& item, QString& error) mutable {
        return renameByAlphabetic(item, options, counter, error);
    };
}

BoundAction bindInsertDelete(const OptionValues& values)
{
    if (values.boolean(Settings::isInsertDeleteInsertKey)) {
        return [options = InsertOptions::from(values)](FileSystemItem& item, QString& error) {
            return renameByInsert(item, options, error);
        };
    }
    return [options = DeleteOptions::from(values)](FileSystemItem& item, QString& error) {
        return renameByDelete(item, options, error);
    };
}

BoundAction bindReplaceRemove(const OptionValues& values)
{
    return [options = ReplaceRemoveOptions::from(values)](FileSystemItem& item, QString& error) {
        return renameByReplaceRemove(item, options, error);
    };
}

BoundAction bindPrefixSuffix(const OptionValues& values)
{
    return [options = PrefixSuffixOptions::from(values)](FileSystemItem& item, QString& error) {
        return renameByPrefixSuffix(item, options, error);
    };
}

BoundAction bindDateTime(const OptionValues& values)
{
    return [options = DateTimeOptions::from(values)](FileSystemItem& item, QString& error) {
        return renameByDateTime(item, options, error);
    };
}

BoundAction bindPathComponents(const OptionValues& values)
{
    return [options = PathComponentsOptions::from(values)](FileSystemItem& item, QString& error) {
        return renameByPathComponents(item, options, error);
    };
}

BoundAction bindID3Tags(const OptionValues& values)
{
    return [options = ID3Options::from(values)](FileSystemItem& item, QString& error) {
        return renameByID3Tags(item, options, error);
    };
}

// Each run fills a catalogue of its own with the values of the photo at hand; the running
// number starts at 1.
BoundAction bindPhoto(const OptionValues& values)
{
    MetaDataCatalogue catalogue;
    catalogue.InitializeMetaDataList();
    return [options = PhotoOptions::from(values), catalogue, number = 1](FileSystemItem& item,
                                                                         QString& error) mutable {
        return renameByPhotoEXIFTags(item, options, catalogue, number, error);
    };
}

// The options each kind of rule step stores, in the order rule files list them.
using S = Settings;

constexpr const char* kNumericStepKeys[] = {
    S::isAlphaNumericIncrementKey, S::isAlphaNumericDecrementKey, S::isAlphaNumericPrefixKey,
    S::isAlphaNumericSufixKey, S::isAlphaNumericSeperatorKey, S::alphaNumericSeperatorKey,
    S::alphaNumericPaddingMaskKey, S::alphaNumericNumericStartWithKey, S::alphaNumericIncrementByKey,
    S::alphaNumericDecrementByKey, stepkeys::Sequence, S::isAlphaNumericResetSequenceOnEachFolderKey};
constexpr const char* kAlphabeticStepKeys[] = {
    S::isAlphaNumericIncrementKey, S::isAlphaNumericDecrementKey, S::isAlphaNumericPrefixKey,
    S::isAlphaNumericSufixKey, S::isAlphaNumericSeperatorKey, S::alphaNumericSeperatorKey,
    S::alphaNumericPaddingMaskKey, S::alphaNumericAlphabeticStartWithKey, S::alphaNumericIncrementByKey,
    S::alphaNumericDecrementByKey, stepkeys::Sequence, S::isAlphaNumericResetSequenceOnEachFolderKey};
constexpr const char* kInsertStepKeys[] = {
    S::insertDeleteInsertKey, S::insertDeleteInsertOptionIndexKey, S::insertDeleteAtCharacterPositionsKey,
    S::insertDeleteInsertAtPostionDirectionKey, S::insertDeleteInsertAtBeforeTextKey,
    S::insertDeleteInsertAtBeforeOccurrenceKey, S::insertDeleteInsertAtAfterTextKey,
    S::insertDeleteInsertAtAfterOccurrenceKey};
constexpr const char* kDeleteStepKeys[] = {
    S::isInsertDeleteDeleteFromBackWardKey, S::insertDeleteFromCharacterPositionKey,
    S::insertDeleteNumberOfCharactersKey};
constexpr const char* kReplaceStepKeys[] = {
    S::replaceRemoveThisKey, S::replaceRemoveWithKey, S::isReplaceRemoveCaseSensitiveKey,
    S::isReplaceRemoveAllOccurrenceKey, S::replaceRemoveStartFromCharacterKey, S::replaceRemoveStartOnOccurrenceKey,
    S::replaceRemoveOccuranceCountKey, S::replaceRemovePositionDirectionKey, S::isReplaceRemoveRegularExpressionKey};
constexpr const char* kRemoveStepKeys[] = {
    S::replaceRemoveThisKey, S::isReplaceRemoveCaseSensitiveKey, S::isReplaceRemoveAllOccurrenceKey,
    S::replaceRemoveStartFromCharacterKey, S::replaceRemoveStartOnOccurrenceKey, S::replaceRemoveOccuranceCountKey,
    S::replaceRemovePositionDirectionKey, S::isReplaceRemoveRegularExpressionKey};
constexpr const char* kPrefixSuffixStepKeys[] = {
    S::isPrefixSuffixStringKey, S::isPrefixSuffixDateKey, S::prefixSuffixPrefixKey, S::prefixSuffixSuffixKey,
    S::isPrefixSuffixDatePrefixKey, S::isPrefixSuffixDateSuffixKey, S::prefixSuffixFileDateAttributeKey,
    S::prefixSuffixDatePart1Key, S::prefixSuffixDateSeperator1Key, S::prefixSuffixDatePart2Key,
    S::prefixSuffixDateSeperator2Key, S::prefixSuffixDatePart3Key, S::prefixSuffixTimePart1Key,
    S::prefixSuffixTimeSeperator1Key, S::prefixSuffixTimePart2Key, S::prefixSuffixTimeSeperator2Key,
    S::prefixSuffixTimePart3Key, S::prefixSuffixDatePrefixKey, S::prefixSuffixDateSuffixKey};
constexpr const char* kDateTimeStepKeys[] = {
    S::dateTimeDateOptionIndexKey, S::hasDateTimeCustomDateKey, S::dateTimeCustomDateKey,
    S::dateTimeOptionsIndexKey, S::dateTimeAtPositionNoKey, S::dateTimeAtPositionDirectionKey,
    S::dateTimeAtBeforeTextKey, S::dateTimeAtBeforeTextOccurrenceKey, S::dateTimeAtAfterTextKey,
    S::dateTimeAtAfterTextOccurrenceKey, S::hasDateFormatKey, S::hasTimeFormatKey, S::dateTimeFormatDatePart1Key,
    S::dateTimeFormatDateSeperator1Key, S::dateTimeFormatDatePart2Key, S::dateTimeFormatDateSeperator2Key,
    S::dateTimeFormatDatePart3Key, S::dateTimeFormatTimePart1Key, S::dateTimeFormatTimeSeperator1Key,
    S::dateTimeFormatTimePart2Key, S::dateTimeFormatTimeSeperator2Key, S::dateTimeFormatTimePart3Key,
    S::isDateTimeColonReplaceKey, S::dateTimeColonReplaceKey, S::dateTimeSeparatorKey, S::dateTimePrefixKey,
    S::dateTimeSuffixKey};
constexpr const char* kGeneralStepKeys[] = {
    S::generalOptionIndexKey, S::generalFileNameCaseKey, S::generalExtensionCaseKey, S::generalChangeExtensionKey,
    S::generalSwapSeperatorKey, S::generalSwapPositionKey, S::generalRemoveAfterStringKey,
    S::generalRemoveFromStringKey, S::generalRemoveAfterStringOccurrenceKey,
    S::generalRemoveFromStringOccurrenceKey, S::generalConvertWindowsCompatibleStringKey,
    S::generalFilenameMaskKey};
constexpr const char* kID3StepKeys[] = {
    S::isID3RenamingSeperatorKey, S::isID3RenamingColonReplaceKey, S::id3RenamingSeperatorKey,
    S::id3RenamingColonReplaceKey, S::id3RenamingMaskKey, S::id3ExtensionsKey, S::id3RenamingTagsListKey};
constexpr const char* kPhotoStepKeys[] = {
    S::isPhotoRenamingSeperatorKey, S::isPhotoRenamingColonReplaceKey, S::photoRenamingSeperatorKey,
    S::photoRenamingColonReplaceKey, S::photoRenamingMaskKey, S::photoDatePart1Key, S::photoDateSeperator1Key,
    S::photoDatePart2Key, S::photoDateSeperator2Key, S::photoDatePart3Key, S::photoTimePart1Key,
    S::photoTimeSeperator1Key, S::photoTimePart2Key, S::photoTimeSeperator2Key, S::photoTimePart3Key,
    S::photoPaddingMaskKey, S::photoExtensionsKey, S::photoMetaDataListKey, stepkeys::MetaDataList,
    S::isPhotoResetSequenceOnEachFolderKey};
constexpr const char* kPathComponentsStepKeys[] = {
    S::pathComponentsLevelNoKey, S::pathComponentsOptionsIndexKey, S::pathComponentsAtPositionNoKey,
    S::pathComponentsAtPositionDirectionKey, S::pathComponentsAtBeforeTextKey,
    S::pathComponentsAtBeforeOccurrenceKey, S::pathComponentsAtAfterTextKey,
    S::pathComponentsAtAfterOccurrenceKey, S::pathComponentsSeparatorKey, S::pathComponentsPrefixKey,
    S::pathComponentsSuffixKey};

constexpr StepForm kSequenceForms[] = {
    {"Numeric", S::isAlphaNumericNumericKey, S::alphaNumericNumericAlphabeticIndexKey, 0, kNumericStepKeys},
    {"Alphabetic", S::isAlphaNumericAlphabeticKey, S::alphaNumericNumericAlphabeticIndexKey, 1, kAlphabeticStepKeys},
};
constexpr StepForm kInsertDeleteForms[] = {
    {"Insert", S::isInsertDeleteInsertKey, S::insertDeleteIndexKey, 0, kInsertStepKeys},
    {"Delete", S::isInsertDeleteDeleteKey, S::insertDeleteIndexKey, 1, kDeleteStepKeys},
};
constexpr StepForm kReplaceRemoveForms[] = {
    {"Replace", S::isReplaceRemoveReplaceKey, S::removeReplaceIndexKey, 0, kReplaceStepKeys},
    {"Remove Characters", S::isReplaceRemoveRemoveCharactersKey, S::removeReplaceIndexKey, 2, kRemoveStepKeys},
    {"Remove", S::isReplaceRemoveRemoveKey, S::removeReplaceIndexKey, 1, kRemoveStepKeys},
};
constexpr StepForm kPrefixSuffixForms[] = {
    {"As Date", S::isPrefixSuffixDateKey, S::prefixSuffixIndexKey, 1, kPrefixSuffixStepKeys},
    {"As String", S::isPrefixSuffixStringKey, S::prefixSuffixIndexKey, 0, kPrefixSuffixStepKeys},
};
constexpr StepForm kDateTimeForms[] = {{"DateTime", nullptr, nullptr, 0, kDateTimeStepKeys}};
constexpr StepForm kGeneralForms[] = {{"General", nullptr, nullptr, 0, kGeneralStepKeys}};
constexpr StepForm kID3Forms[] = {{"ID3Tag", nullptr, nullptr, 0, kID3StepKeys}};
constexpr StepForm kPhotoForms[] = {{"Photo", nullptr, nullptr, 0, kPhotoStepKeys}};
constexpr StepForm kPathComponentsForms[] = {{"Path Components", nullptr, nullptr, 0, kPathComponentsStepKeys}};

// One row per tab; the actions of later tabs join this table as they are built, each with
// the kinds of rule step it makes.
const ActionEntry kActions[] = {
    {tabs::AlphaNumeric, "AlphaNumeric", bindSequence, Settings::isAlphaNumericResetSequenceOnEachFolderKey,
     kSequenceForms},
    {tabs::InsertDelete, "InsertDelete", bindInsertDelete, nullptr, kInsertDeleteForms},
    {tabs::ReplaceRemove, "ReplaceRemove", bindReplaceRemove, nullptr, kReplaceRemoveForms},
    {tabs::PrefixSuffix, "PrefixSuffix", bindPrefixSuffix, nullptr, kPrefixSuffixForms},
    {tabs::DateTime, "Date & Time", bindDateTime, nullptr, kDateTimeForms},
    {tabs::General, "General", bindGeneral, nullptr, kGeneralForms},
    {tabs::Audio, "ID3", bindID3Tags, nullptr, kID3Forms},
    {tabs::PathComponents, "PathComponents", bindPathComponents, nullptr, kPathComponentsForms},
    {tabs::Photo, "Photo", bindPhoto, Settings::isPhotoResetSequenceOnEachFolderKey, kPhotoForms},
    {tabs::FromFile, "", nullptr, nullptr},
};

}  // namespace

const ActionEntry* actionForTab(int tab)
{
    for (const ActionEntry& entry : kActions) {
        if (entry.tab == tab)
            return &entry;
    }
    return nullptr;
}

const ActionEntry* actionForRule(const QString& ruleName)
{
    for (const ActionEntry& entry : kActions) {
        if (entry.bind && ruleName == QLatin1String(entry.ruleName))
            return &entry;
    }
    return nullptr;
}

const StepForm* stepFormOf(const ActionEntry& action, const QString& type)
{
    for (const StepForm& form : action.stepForms) {
        if (type == QLatin1String(form.type))
            return &form;
    }
    return nullptr;
}

}  // namespace tavrin
