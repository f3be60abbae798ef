#include "core/engine/actions/dateformat.h"
#include "core/engine/actions/general.h"
#include "core/engine/actions/insertdelete.h"
#include "core/engine/actions/prefixsuffix.h"
#include "core/engine/actions/replaceremove.h"
#include "core/profiles/Settings.h"
#include "core/profiles/SettingsRecord.h"
#include "core/rules/RuleTree.h"
#include "core/text/DateHelpers.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/StringUtilities.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace tavrin {

namespace {

using S = Settings;

constexpr char kCustomDateDisplayFormat[] = "dd/MM/yyyy hh:mm:ss a";

// The five options of a date or a time format, in the order they are joined.
using FormatKeys = std::array<const char*, 5>;

// The leaves of one step, added in the order the tab shows its options.
class Leaves {
public:
    explicit Leaves(const RuleStep& step)
        : m_step(step)
    {
    }

    QString text(const char* key) const { return m_step.value(QString::fromLatin1(key)).toString(); }
    int integer(const char* key) const { return toInteger(text(key)); }
    bool flag(const char* key) const { return integer(key) != 0; }
    bool isType(const char* type) const { return stepType(m_step) == QLatin1String(type); }

    void add(const char* label, const QString& value) { m_leaves.emplace_back(std::nullopt, localized(label), value); }
    void addText(const char* label, const char* key) { add(label, text(key)); }
    void addTrue(const char* label) { add(label, localized("TRUE")); }
    // An option shown only while its switch is on.
    void addWhenOn(const char* label, const char* key)
    {
        if (flag(key))
            addTrue(label);
    }
    void addTextWhenOn(const char* label, const char* switchKey, const char* key)
    {
        if (flag(switchKey))
            addText(label, key);
    }
    void addBoolean(const char* label, const char* key) { add(label, localized(flag(key) ? "TRUE" : "FALSE")); }
    void addDirection(const char* label, const char* key)
    {
        add(label, localized(integer(key) == insertdirection::FromEnd ? "END" : "START"));
    }
    void addList(const char* label, const char* key)
    {
        QStringList items;
        for (const QVariant& item : m_step.value(QString::fromLatin1(key)).toList())
            items.append(item.toString());
        add(label, items.join(QStringLiteral("; ")));
    }

    // Parts and separators in turn, an empty part as "None"; the fallback when all are empty.
    QString format(const FormatKeys& keys, const char* fallback) const
    {
        if (text(keys[0]).isEmpty() && text(keys[2]).isEmpty() && text(keys[4]).isEmpty())
            return QString::fromLatin1(fallback);
        QString joined;
        for (std::size_t index = 0; index < keys.size(); ++index) {
            const QString value = text(keys[index]);
            joined += index % 2 == 0 && value.isEmpty() ? localized(dateformat::NoField) : value;
        }
        return joined;
    }
    QString dateAndTime(const FormatKeys& date, const FormatKeys& time) const
    {
        return format(date, dateformat::DateFallback) + QLatin1Char(' ') + format(time, dateformat::TimeFallback);
    }

    // The place as a switch of its own ("Insert At End": TRUE), or under `heading` as its value.
    void addPlacement(const PlacementKeys& keys, const char* heading = nullptr)
    {
        static const char* const places[] = {"Insert At Beginning", "Insert At End", "Insert At Position",
                                             "Insert At Before Text", "Insert At After Text"};
        const int place = std::clamp(integer(keys.place), 0, int(std::size(places)) - 1);
        if (heading)
            add(heading, localized(places[place]));
        else
            addTrue(places[place]);
        if (place == insertoption::AtPosition) {
            addText("At Character Positions", keys.position);
            addDirection("Insert From", keys.direction);
        } else if (place == insertoption::BeforeText) {
            addText("Text To Search", keys.beforeText);
            addText("On Occurrence", keys.beforeOccurrence);
        } else if (place == insertoption::AfterText) {
            addText("Text To Search", keys.afterText);
            addText("On Occurrence", keys.afterOccurrence);
        }
    }

    std::vector<Rule> take() { return std::move(m_leaves); }

private:
    const RuleStep& m_step;
    std::vector<Rule> m_leaves;
};

void sequenceLeaves(Leaves& leaves)
{
    leaves.addText("Start With", leaves.isType("Numeric") ? S::alphaNumericNumericStartWithKey
                                                          : S::alphaNumericAlphabeticStartWithKey);
    if (leaves.flag(S::isAlphaNumericIncrementKey))
        leaves.addText("Increment by", S::alphaNumericIncrementByKey);
    else
        leaves.addText("Decrement by", S::alphaNumericDecrementByKey);
    leaves.addWhenOn("Add as Prefix", S::isAlphaNumericPrefixKey);
    leaves.addWhenOn("Add as Suffix", S::isAlphaNumericSufixKey);
    leaves.addTextWhenOn("Separator", S::isAlphaNumericSeperatorKey, S::alphaNumericSeperatorKey);
    leaves.addText("Padding Mask", S::alphaNumericPaddingMaskKey);
    leaves.addWhenOn("Reset Sequence On Each Folder", S::isAlphaNumericResetSequenceOnEachFolderKey);
}

void insertDeleteLeaves(Leaves& leaves)
{
    if (leaves.isType("Delete")) {
        leaves.addWhenOn("Delete From Backward", S::isInsertDeleteDeleteFromBackWardKey);
        leaves.addText("From Character Position", S::insertDeleteFromCharacterPositionKey);
        leaves.addText("Number of Characters", S::insertDeleteNumberOfCharactersKey);
        return;
    }
    leaves.addText("Insert", S::insertDeleteInsertKey);
    leaves.addPlacement({S::insertDeleteInsertOptionIndexKey, S::insertDeleteAtCharacterPositionsKey,
                         S::insertDeleteInsertAtPostionDirectionKey, S::insertDeleteInsertAtBeforeTextKey,
                         S::insertDeleteInsertAtBeforeOccurrenceKey, S::insertDeleteInsertAtAfterTextKey,
                         S::insertDeleteInsertAtAfterOccurrenceKey});
}

void replaceRemoveLeaves(Leaves& leaves)
{
    leaves.addText("THIS", S::replaceRemoveThisKey);
    if (leaves.isType("Replace"))
        leaves.addText("WITH", S::replaceRemoveWithKey);
    leaves.addWhenOn("Case Sensitive", S::isReplaceRemoveCaseSensitiveKey);
    const bool fromEnd = leaves.integer(S::replaceRemovePositionDirectionKey) == replaceremovedirection::FromEnd;
    leaves.add("Start From", localized(fromEnd ? "End of the filename" : "Beginning of the filename"));
    leaves.addText("Start From Character", S::replaceRemoveStartFromCharacterKey);
    if (leaves.flag(S::isReplaceRemoveAllOccurrenceKey)) {
        leaves.addTrue("All Occurrence");
        return;
    }
    leaves.addText("Start On Occurrence", S::replaceRemoveStartOnOccurrenceKey);
    leaves.addText("Occurrence Count", S::replaceRemoveOccuranceCountKey);
}

const char* fileDateLabel(int attribute)
{
    switch (attribute) {
    case prefixsuffixdate::Created:
        return "Date Created";
    case prefixsuffixdate::Modified:
        return "Date Modified";
    default:
        return "Today";
    }
}

void prefixSuffixLeaves(Leaves& leaves)
{
    if (!leaves.isType("As Date")) {
        leaves.addText("PREFIX", S::prefixSuffixPrefixKey);
        leaves.addText("SUFFIX", S::prefixSuffixSuffixKey);
        return;
    }
    leaves.add("File Date Attributes", localized(fileDateLabel(leaves.integer(S::prefixSuffixFileDateAttributeKey))));
    leaves.add("DateAndTime Format",
               leaves.dateAndTime({S::prefixSuffixDatePart1Key, S::prefixSuffixDateSeperator1Key,
                                   S::prefixSuffixDatePart2Key, S::prefixSuffixDateSeperator2Key,
                                   S::prefixSuffixDatePart3Key},
                                  {S::prefixSuffixTimePart1Key, S::prefixSuffixTimeSeperator1Key,
                                   S::prefixSuffixTimePart2Key, S::prefixSuffixTimeSeperator2Key,
                                   S::prefixSuffixTimePart3Key}));
    leaves.addWhenOn("Add as Prefix", S::isPrefixSuffixDatePrefixKey);
    leaves.addWhenOn("Add as Suffix", S::isPrefixSuffixDateSuffixKey);
    leaves.addText("PREFIX", S::prefixSuffixDatePrefixKey);
    leaves.addText("SUFFIX", S::prefixSuffixDateSuffixKey);
}

QString customDateText(const QString& description)
{
    const std::optional<QDateTime> date = recordDateFromText(description);
    return date ? formatDate(*date, QString::fromLatin1(kCustomDateDisplayFormat)) : description;
}

void dateTimeLeaves(Leaves& leaves)
{
    static const char* const sources[] = {"Date Created", "Date Modified", "Custom Date"};
    const int source = leaves.integer(S::dateTimeDateOptionIndexKey);
    if (source >= 0 && source < 3)
        leaves.add("Date Source", localized(sources[source]));
    if (leaves.flag(S::hasDateTimeCustomDateKey))
        leaves.add("Custom Date", customDateText(leaves.text(S::dateTimeCustomDateKey)));
    leaves.addPlacement({S::dateTimeOptionsIndexKey, S::dateTimeAtPositionNoKey, S::dateTimeAtPositionDirectionKey,
                         S::dateTimeAtBeforeTextKey, S::dateTimeAtBeforeTextOccurrenceKey, S::dateTimeAtAfterTextKey,
                         S::dateTimeAtAfterTextOccurrenceKey},
                        "DATE");
    if (leaves.flag(S::hasDateFormatKey))
        leaves.add("Date Format", leaves.format({S::dateTimeFormatDatePart1Key, S::dateTimeFormatDateSeperator1Key,
                                                 S::dateTimeFormatDatePart2Key, S::dateTimeFormatDateSeperator2Key,
                                                 S::dateTimeFormatDatePart3Key},
                                                dateformat::DateFallback));
    if (leaves.flag(S::hasTimeFormatKey))
        leaves.add("Time Format", leaves.format({S::dateTimeFormatTimePart1Key, S::dateTimeFormatTimeSeperator1Key,
                                                 S::dateTimeFormatTimePart2Key, S::dateTimeFormatTimeSeperator2Key,
                                                 S::dateTimeFormatTimePart3Key},
                                                dateformat::TimeFallback));
    leaves.addText("Separator", S::dateTimeSeparatorKey);
    leaves.addTextWhenOn("Replace colon[:] with character(s)", S::isDateTimeColonReplaceKey, S::dateTimeColonReplaceKey);
    leaves.addText("PREFIX", S::dateTimePrefixKey);
    leaves.addText("SUFFIX", S::dateTimeSuffixKey);
}

QString letterCaseText(int letterCase)
{
    switch (letterCase) {
    case lettercase::Upper:
        return localized("Upper Case");
    case lettercase::Lower:
        return localized("Lower Case");
    case lettercase::Proper:
        return localized("Proper Case");
    default:
        return localized(dateformat::NoField);
    }
}

void generalLeaves(Leaves& leaves)
{
    using namespace generaloption;
    switch (leaves.integer(S::generalOptionIndexKey)) {
    case ConvertFilenameCase:
        return leaves.add("Convert Filename to", letterCaseText(leaves.integer(S::generalFileNameCaseKey)));
    case ConvertExtensionCase:
        return leaves.add("Convert Extension to", letterCaseText(leaves.integer(S::generalExtensionCaseKey)));
    case RemoveExtension:
        return leaves.addTrue("Remove Extension");
    case ChangeExtension:
        return leaves.addText("Add/Change Extension", S::generalChangeExtensionKey);
    case ReverseFilename:
        return leaves.addTrue("Reverse Filename");
    case RemoveSpaces:
        return leaves.addTrue("Remove Spaces");
    case SwapBySeperator:
        return leaves.addText("Swap Filename by separator", S::generalSwapSeperatorKey);
    case SwapByPosition:
        return leaves.addText("Swap Filename by position", S::generalSwapPositionKey);
    case RemoveAfterString:
        leaves.addText("Remove All Characters After", S::generalRemoveAfterStringKey);
        return leaves.addText("On Occurrence", S::generalRemoveAfterStringOccurrenceKey);
    case RemoveFromString:
        leaves.addText("Remove All Characters From", S::generalRemoveFromStringKey);
        return leaves.addText("On Occurrence", S::generalRemoveFromStringOccurrenceKey);
    case FilenameMask:
        return leaves.addText("Filename Padding Mask", S::generalFilenameMaskKey);
    case ConvertWindowsCompatible:
        leaves.addTrue("Convert Filename To Windows Compatible");
        return leaves.addText("Replace With", S::generalConvertWindowsCompatibleStringKey);
    default:
        return;
    }
}

void id3Leaves(Leaves& leaves)
{
    leaves.addText("Renaming Mask", S::id3RenamingMaskKey);
    leaves.addTextWhenOn("Separator", S::isID3RenamingSeperatorKey, S::id3RenamingSeperatorKey);
    leaves.addTextWhenOn("Replace colon[:] with character(s)", S::isID3RenamingColonReplaceKey,
                         S::id3RenamingColonReplaceKey);
    leaves.addList("Allowed Extensions", S::id3ExtensionsKey);
}

void photoLeaves(Leaves& leaves)
{
    leaves.addText("Renaming Mask", S::photoRenamingMaskKey);
    leaves.add("DateAndTime Format",
               leaves.dateAndTime({S::photoDatePart1Key, S::photoDateSeperator1Key, S::photoDatePart2Key,
                                   S::photoDateSeperator2Key, S::photoDatePart3Key},
                                  {S::photoTimePart1Key, S::photoTimeSeperator1Key, S::photoTimePart2Key,
                                   S::photoTimeSeperator2Key, S::photoTimePart3Key}));
    leaves.addText("Sequence Padding Mask", S::photoPaddingMaskKey);
    leaves.addWhenOn("Reset Sequence On Each Folder", S::isPhotoResetSequenceOnEachFolderKey);
    leaves.addTextWhenOn("Separator", S::isPhotoRenamingSeperatorKey, S::photoRenamingSeperatorKey);
    leaves.addTextWhenOn("Replace colon[:] with character(s)", S::isPhotoRenamingColonReplaceKey,
                         S::photoRenamingColonReplaceKey);
    leaves.addList("Allowed Extensions", S::photoExtensionsKey);
}

void pathComponentsLeaves(Leaves& leaves)
{
    leaves.addText("Parent folders level", S::pathComponentsLevelNoKey);
    leaves.addPlacement({S::pathComponentsOptionsIndexKey, S::pathComponentsAtPositionNoKey,
                         S::pathComponentsAtPositionDirectionKey, S::pathComponentsAtBeforeTextKey,
                         S::pathComponentsAtBeforeOccurrenceKey, S::pathComponentsAtAfterTextKey,
                         S::pathComponentsAtAfterOccurrenceKey});
    leaves.addText("Separator", S::pathComponentsSeparatorKey);
    leaves.addText("PREFIX", S::pathComponentsPrefixKey);
    leaves.addText("SUFFIX", S::pathComponentsSuffixKey);
}

struct LeafBuilder {
    const char* ruleName;
    void (*build)(Leaves& leaves);
};

// Steps name their action by its rule name; the photo steps of other programs show too.
constexpr LeafBuilder kLeafBuilders[] = {
    {"AlphaNumeric", sequenceLeaves}, {"InsertDelete", insertDeleteLeaves}, {"ReplaceRemove", replaceRemoveLeaves},
    {"PrefixSuffix", prefixSuffixLeaves}, {"Date & Time", dateTimeLeaves}, {"General", generalLeaves},
    {"ID3", id3Leaves}, {"Photo", photoLeaves}, {"PathComponents", pathComponentsLeaves},
};

}  // namespace

std::vector<Rule> ruleLeaves(const RuleStep& step)
{
    Leaves leaves(step);
    for (const LeafBuilder& builder : kLeafBuilders) {
        if (stepRule(step) == QLatin1String(builder.ruleName))
            builder.build(leaves);
    }
    return leaves.take();
}

}  // namespace tavrin
