#include "core/engine/ActionRegistry.h"

#include "core/engine/actions/general.h"
#include "core/profiles/Tabs.h"

#include <iterator>

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

// One row per tab; the actions of later tabs join this table as they are built.
const ActionEntry kActions[] = {
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
