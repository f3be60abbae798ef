#include "cli/ActionFlags.h"

#include "core/engine/actions/general.h"
#include "core/engine/actions/insertdelete.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"

#include <functional>

namespace tavrin::cli {

namespace {

using Assignment = QPair<QString, QString>;

QString key(const char* name)
{
    return QString::fromLatin1(name);
}

QString number(int value)
{
    return QString::number(value);
}

// A flag: its tab, the settings it always sets, and the keys its values go to, in order.
struct Flag {
    const char* name;
    int tab;
    QList<Assignment> fixed;
    QList<const char*> valueKeys;
};

const QList<Flag>& flags()
{
    using namespace generaloption;
    static const QList<Flag> table = {
        {"--upper", tabs::General,
         {{key(Settings::generalOptionIndexKey), number(ConvertFilenameCase)},
          {key(Settings::generalFileNameCaseKey), number(lettercase::Upper)}},
         {}},
        {"--lower", tabs::General,
         {{key(Settings::generalOptionIndexKey), number(ConvertFilenameCase)},
          {key(Settings::generalFileNameCaseKey), number(lettercase::Lower)}},
         {}},
        {"--title", tabs::General,
         {{key(Settings::generalOptionIndexKey), number(ConvertFilenameCase)},
          {key(Settings::generalFileNameCaseKey), number(lettercase::Proper)}},
         {}},
        {"--ext", tabs::General, {{key(Settings::generalOptionIndexKey), number(ChangeExtension)}},
         {Settings::generalChangeExtensionKey}},
        {"--replace", tabs::ReplaceRemove,
         {{key(Settings::removeReplaceIndexKey), number(0)}, {key(Settings::isReplaceRemoveAllOccurrenceKey), number(1)}},
         {Settings::replaceRemoveThisKey, Settings::replaceRemoveWithKey}},
        {"--remove", tabs::ReplaceRemove,
         {{key(Settings::removeReplaceIndexKey), number(1)}, {key(Settings::isReplaceRemoveAllOccurrenceKey), number(1)}},
         {Settings::replaceRemoveThisKey}},
        {"--regex", tabs::ReplaceRemove, {{key(Settings::isReplaceRemoveRegularExpressionKey), number(1)}}, {}},
        {"--insert", tabs::InsertDelete, {{key(Settings::insertDeleteIndexKey), number(0)}},
         {Settings::insertDeleteInsertKey}},
        {"--number", tabs::AlphaNumeric,
         {{key(Settings::alphaNumericNumericAlphabeticIndexKey), number(0)},
          {key(Settings::alphaNumericIncrementDecrementIndexKey), number(0)}},
         {Settings::alphaNumericNumericStartWithKey}},
        {"--pad", tabs::AlphaNumeric, {}, {Settings::alphaNumericPaddingMaskKey}},
        {"--step", tabs::AlphaNumeric, {}, {Settings::alphaNumericIncrementByKey}},
        {"--prefix", tabs::PrefixSuffix, {{key(Settings::prefixSuffixIndexKey), number(0)}},
         {Settings::prefixSuffixPrefixKey}},
        {"--suffix", tabs::PrefixSuffix, {{key(Settings::prefixSuffixIndexKey), number(0)}},
         {Settings::prefixSuffixSuffixKey}},
    };
    return table;
}

const Flag* findFlag(const QString& name)
{
    for (const Flag& flag : flags()) {
        if (name == QLatin1String(flag.name))
            return &flag;
    }
    return nullptr;
}

// "--at start", "--at end" or "--at N": where --insert puts its text.
std::optional<FlagMeaning> insertPlace(const QString& place, QString& error)
{
    FlagMeaning meaning{tabs::InsertDelete, {}};
    const QString optionIndex = key(Settings::insertDeleteInsertOptionIndexKey);
    bool isNumber = false;
    const int position = place.toInt(&isNumber);
    if (place == QLatin1String("start")) {
        meaning.assignments = {{optionIndex, number(insertoption::AtBeginning)}};
    } else if (place == QLatin1String("end")) {
        meaning.assignments = {{optionIndex, number(insertoption::AtEnd)}};
    } else if (isNumber && position >= 1) {
        meaning.assignments = {{optionIndex, number(insertoption::AtPosition)},
                               {key(Settings::insertDeleteAtCharacterPositionsKey), place}};
    } else {
        error = localized("CLIBADINSERTPLACE").arg(place);
        return std::nullopt;
    }
    return meaning;
}

}  // namespace

QStringList actionFlagNames()
{
    QStringList names;
    for (const Flag& flag : flags())
        names.append(QString::fromLatin1(flag.name));
    names.append(QStringLiteral("--at"));
    return names;
}

bool isActionFlag(const QString& name)
{
    return findFlag(name) || name == QLatin1String("--at");
}

std::optional<FlagMeaning> actionFlagMeaning(const QString& name, const std::function<std::optional<QString>()>& value,
                                             QString& error)
{
    if (name == QLatin1String("--at")) {
        const std::optional<QString> place = value();
        if (!place) {
            error = localized("CLIMISSINGVALUE").arg(name);
            return std::nullopt;
        }
        return insertPlace(*place, error);
    }
    const Flag* flag = findFlag(name);
    if (!flag)
        return std::nullopt;
    FlagMeaning meaning{flag->tab, flag->fixed};
    for (const char* valueKey : flag->valueKeys) {
        const std::optional<QString> given = value();
        if (!given) {
            error = localized("CLIMISSINGVALUE").arg(name);
            return std::nullopt;
        }
        meaning.assignments.append({key(valueKey), *given});
    }
    return meaning;
}

}  // namespace tavrin::cli
