#include "cli/CommandSettings.h"

#include "cli/Suggestion.h"
#include "core/engine/ActionRegistry.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/rules/RuleFile.h"
#include "core/text/LocalizedStrings.h"

namespace tavrin::cli {

namespace {

// The audio and photo tabs rebuild their masks when their tokens or separators change; so
// does --set.
bool rebuildsID3Mask(const QString& key)
{
    return key == QLatin1String(Settings::id3RenamingTagsListKey)
        || key == QLatin1String(Settings::id3RenamingSeperatorKey)
        || key == QLatin1String(Settings::isID3RenamingSeperatorKey);
}

bool rebuildsPhotoMask(const QString& key)
{
    return key == QLatin1String(Settings::photoMetaDataListKey)
        || key == QLatin1String(Settings::photoRenamingSeperatorKey)
        || key == QLatin1String(Settings::isPhotoRenamingSeperatorKey);
}

bool assign(Settings& settings, const QString& key, const QString& value, QString& error)
{
    if (!Settings::hasOption(key)) {
        error = localized("CLIUNKNOWNOPTIONKEY").arg(key) + didYouMean(key, Settings::optionKeys());
        return false;
    }
    if (!Settings::isRadioIndexKey(key)) {
        if (!settings.setOptionFromString(key, value, &error))
            return false;
        if (rebuildsID3Mask(key))
            settings.resetID3Mask();
        if (rebuildsPhotoMask(key))
            settings.resetPhotoMask();
        return true;
    }
    bool isNumber = false;
    const int index = value.toInt(&isNumber);
    if (!isNumber || !settings.chooseRadioOption(key, index)) {
        error = localized("CLIBADRADIOINDEX").arg(value, key);
        return false;
    }
    return true;
}

}  // namespace

bool parseDocumentArguments(const QStringList& arguments, const QStringList& actions, DocumentArguments& parsed,
                            QString& error)
{
    if (!arguments.isEmpty() && (arguments.first() == QLatin1String("--help") || arguments.first() == QLatin1String("-h"))) {
        parsed.common.help = true;
        return true;
    }
    if (arguments.isEmpty() || !actions.contains(arguments.first())) {
        error = localized("CLIUNKNOWNACTION").arg(arguments.value(0), actions.join(QStringLiteral(", ")));
        return false;
    }
    parsed.action = arguments.first();
    if (!parseCommonOptions(arguments.mid(1), parsed.common, error, &parsed.extra))
        return false;
    if (parsed.common.help)
        return true;
    if (parsed.common.paths.size() != 1) {
        error = localized("CLIONEFILE");
        return false;
    }
    parsed.file = parsed.common.paths.first();
    return true;
}

bool configureSettings(Settings& settings, const CommonOptions& common, const RenameOptions& extra, QString& error)
{
    if (extra.profile) {
        if (loadProfileFile(settings, *extra.profile, &error) != ProfileLoadResult::Loaded)
            return false;
        if (common.scan.folders)
            settings.chooseFilesOrFolders(1);
        if (common.scan.includeSubFolders)
            settings.setIsIncludeSubFolders(true);
    } else {
        settings.chooseFilesOrFolders(common.scan.folders ? 1 : 0);
        settings.setIsIncludeSubFolders(common.scan.includeSubFolders);
    }
    settings.setSelectedTab(extra.tab.value_or(settings.selectedTab()));
    for (const auto& [key, value] : extra.assignments) {
        if (!assign(settings, key, value, error))
            return false;
    }
    if (!actionForTab(settings.selectedTab())) {
        error = localized("CLITABNOTAVAILABLE").arg(tabName(settings.selectedTab()));
        return false;
    }
    return true;
}

std::optional<RuleChain> openRuleOption(const QString& path, QString& error)
{
    RuleFileOutcome opened = openRuleFile(path);
    if (opened.status != RuleFileStatus::Opened) {
        error = opened.message;
        return std::nullopt;
    }
    removeRulePrefix(opened.rules);
    return opened.rules;
}

}  // namespace tavrin::cli
