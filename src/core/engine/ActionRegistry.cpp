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

// One row per tab; the actions of later tabs join this table as they are built.
const ActionEntry kActions[] = {
    {tabs::AlphaNumeric, "AlphaNumeric", bindSequence, Settings::isAlphaNumericResetSequenceOnEachFolderKey},
    {tabs::InsertDelete, "InsertDelete", bindInsertDelete, nullptr},
    {tabs::ReplaceRemove, "ReplaceRemove", bindReplaceRemove, nullptr},
    {tabs::PrefixSuffix, "PrefixSuffix", bindPrefixSuffix, nullptr},
    {tabs::DateTime, "Date & Time", bindDateTime, nullptr},
    {tabs::General, "General", bindGeneral, nullptr},
    {tabs::Audio, "ID3", bindID3Tags, nullptr},
    {tabs::PathComponents, "PathComponents", bindPathComponents, nullptr},
    {tabs::Photo, "Photo", bindPhoto, Settings::isPhotoResetSequenceOnEachFolderKey},
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

}  // namespace tavrin
