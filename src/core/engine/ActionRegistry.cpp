#include "core/engine/ActionRegistry.h"

#include "core/engine/actions/alphanumeric.h"
#include "core/engine/actions/general.h"
#include "core/engine/actions/insertdelete.h"
#include "core/engine/actions/replaceremove.h"
#include "core/profiles/Tabs.h"

#include <iterator>
#include <optional>

namespace tavrin {

namespace {

bool runGeneral(FileSystemItem& item, const OptionValues& o, SequenceCounters&, QString& error)
{
    return renameByGeneral(item, o.integer("generalOptionIndex"), o.integer("generalFileNameCase"),
                           o.integer("generalExtensionCase"), o.text("generalChangeExtension"),
                           o.text("generalSwapSeperator"), o.text("generalSwapPosition"),
                           o.text("generalRemoveAfterString"), o.text("generalRemoveFromString"),
                           o.text("generalRemoveAfterStringOccurrence"),
                           o.text("generalRemoveFromStringOccurrence"),
                           o.text("generalConvertWindowsCompatibleString"), o.text("generalFilenameMask"), error);
}

bool runSequence(FileSystemItem& item, const OptionValues& o, SequenceCounters& counters, QString& error)
{
    const bool increment = o.boolean("isAlphaNumericIncrement");
    const bool decrement = o.boolean("isAlphaNumericDecrement");
    const bool prefix = o.boolean("isAlphaNumericPrefix");
    const bool suffix = o.boolean("isAlphaNumericSufix");
    const bool separator = o.boolean("isAlphaNumericSeperator");
    const QString separatorText = o.text("alphaNumericSeperator");
    const QString mask = o.text("alphaNumericPaddingMask");
    const int incrementBy = o.integer("alphaNumericIncrementBy");
    const int decrementBy = o.integer("alphaNumericDecrementBy");
    if (o.boolean("isAlphaNumericNumeric")) {
        return renameByNumeric(item, increment, decrement, prefix, suffix, separator, separatorText, mask,
                               counters.numeric, incrementBy, decrementBy, error);
    }
    return renameByAlphabetic(item, increment, decrement, prefix, suffix, separator, separatorText, mask,
                              counters.alphabetic, incrementBy, decrementBy, error);
}

bool runInsertDelete(FileSystemItem& item, const OptionValues& o, SequenceCounters&, QString& error)
{
    if (o.boolean("isInsertDeleteInsert")) {
        return renameByInsert(item, o.text("insertDeleteInsert"), o.integer("insertDeleteInsertOptionIndex"),
                              o.integer("insertDeleteAtCharacterPositions"),
                              o.integer("insertDeleteInsertAtPostionDirection"),
                              o.text("insertDeleteInsertAtBeforeText"),
                              o.integer("insertDeleteInsertAtBeforeOccurrence"),
                              o.text("insertDeleteInsertAtAfterText"),
                              o.integer("insertDeleteInsertAtAfterOccurrence"), error);
    }
    return renameByDelete(item, o.boolean("isInsertDeleteDeleteFromBackWard"),
                          o.integer("insertDeleteFromCharacterPosition"),
                          o.integer("insertDeleteNumberOfCharacters"), error);
}

// What the mode switches of the replace/remove tab make of the action's arguments.
struct ReplaceRemoveForm {
    QString replaceWith;
    bool removeCharacters = false;
    int startOnOccurrence = replaceremoveall::StartOnOccurrence;
    int occurrenceCount = replaceremoveall::OccurrenceCount;
};

// None when no mode is chosen: then there is nothing to run.
std::optional<ReplaceRemoveForm> replaceRemoveForm(const OptionValues& o)
{
    ReplaceRemoveForm form;
    if (o.boolean("isReplaceRemoveReplace"))
        form.replaceWith = o.text("replaceRemoveWith");
    else if (o.boolean("isReplaceRemoveRemoveCharacters"))
        form.removeCharacters = true;
    else if (!o.boolean("isReplaceRemoveRemove"))
        return std::nullopt;
    if (!form.removeCharacters && !o.boolean("isReplaceRemoveAllOccurrence")) {
        form.startOnOccurrence = o.integer("replaceRemoveStartOnOccurrence");
        form.occurrenceCount = o.integer("replaceRemoveOccuranceCount");
    }
    return form;
}

bool runReplaceRemove(FileSystemItem& item, const OptionValues& o, SequenceCounters&, QString& error)
{
    const std::optional<ReplaceRemoveForm> form = replaceRemoveForm(o);
    if (!form)
        return true;
    return renameByReplaceRemove(item, o.text("replaceRemoveThis"), form->replaceWith,
                                 o.boolean("isReplaceRemoveCaseSensitive"), form->removeCharacters,
                                 o.integer("replaceRemoveStartFromCharacter"), form->startOnOccurrence,
                                 form->occurrenceCount, o.integer("replaceRemovePositionDirection"), error);
}

// One row per tab; the actions of later tabs join this table as they are built.
const ActionEntry kActions[] = {
    {tabs::AlphaNumeric, "AlphaNumeric", runSequence, "isAlphaNumericResetSequenceOnEachFolder"},
    {tabs::InsertDelete, "InsertDelete", runInsertDelete, nullptr},
    {tabs::ReplaceRemove, "ReplaceRemove", runReplaceRemove, nullptr},
    {tabs::General, "General", runGeneral, nullptr},
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
        if (entry.run && ruleName == QLatin1String(entry.ruleName))
            return &entry;
    }
    return nullptr;
}

SequenceCounters startCounters(const OptionValues& options)
{
    return {options.integer("alphaNumericNumericStartWith"), options.text("alphaNumericAlphabeticStartWith")};
}

}  // namespace tavrin
