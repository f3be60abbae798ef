#include "cli/OptionsCommand.h"

#include "cli/Suggestion.h"
#include "cli/Usage.h"
#include "core/profiles/Settings.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaProperty>
#include <optional>

namespace tavrin::cli {

namespace {

const char kCommand[] = "options";

struct OptionsRequest {
    std::optional<int> tab;
    bool json = false;
    bool help = false;
};

// The option keys start with the name of their tab, after any "is" or "has".
struct TabPrefix {
    const char* prefix;
    int tab;
};

constexpr TabPrefix kTabPrefixes[] = {
    {"alphaNumeric", tabs::AlphaNumeric}, {"insertDelete", tabs::InsertDelete},
    {"replaceRemove", tabs::ReplaceRemove}, {"removeReplace", tabs::ReplaceRemove},
    {"prefixSuffix", tabs::PrefixSuffix}, {"dateTime", tabs::DateTime},
    {"dateFormat", tabs::DateTime}, {"timeFormat", tabs::DateTime},
    {"general", tabs::General}, {"id3", tabs::Audio},
    {"photo", tabs::Photo}, {"pathComponents", tabs::PathComponents},
    {"renameFile", tabs::FromFile},
};

QString withoutSwitchWord(const QString& key)
{
    for (const QLatin1String word : {QLatin1String("is"), QLatin1String("has")}) {
        if (key.size() > word.size() && key.startsWith(word) && key.at(word.size()).isUpper())
            return key.mid(word.size());
    }
    return key;
}

QString typeName(const QString& key)
{
    const QMetaObject& meta = Settings::staticMetaObject;
    switch (meta.property(meta.indexOfProperty(key.toLatin1().constData())).metaType().id()) {
    case QMetaType::Bool:
        return QStringLiteral("boolean");
    case QMetaType::Int:
        return QStringLiteral("integer");
    case QMetaType::QStringList:
        return QStringLiteral("list");
    case QMetaType::QDateTime:
        return QStringLiteral("date");
    default:
        return QStringLiteral("text");
    }
}

// The values an option takes when they are few: a switch's 0 and 1, a radio group's indexes.
QStringList allowedValues(const QString& key, const QString& type)
{
    if (type == QLatin1String("boolean"))
        return {QStringLiteral("0"), QStringLiteral("1")};
    QStringList values;
    if (!Settings::isRadioIndexKey(key))
        return values;
    Settings scratch;
    for (int index = 0; scratch.chooseRadioOption(key, index); ++index)
        values.append(QString::number(index));
    return values;
}

QString description(const QString& key)
{
    const QString tableKey = QStringLiteral("OPTION_") + key;
    const QString text = LocalizedStrings::text(tableKey);
    return text == tableKey ? QString() : text;
}

QJsonObject optionJson(const Settings& defaults, const QString& key)
{
    const QString type = typeName(key);
    const int tab = tabOfOption(key);
    return QJsonObject{
        {QStringLiteral("key"), key},
        {QStringLiteral("type"), type},
        {QStringLiteral("default"), defaults.optionToString(key)},
        {QStringLiteral("allowed"), QJsonArray::fromStringList(allowedValues(key, type))},
        {QStringLiteral("tab"), tab < 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(tabName(tab))},
        {QStringLiteral("description"), description(key)},
    };
}

bool parseRequest(const QStringList& arguments, OptionsRequest& request, QString& error)
{
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const QString& argument = arguments.at(index);
        if (argument == QLatin1String("--json")) {
            request.json = true;
        } else if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            request.help = true;
        } else if (argument == QLatin1String("--tab") && index + 1 < arguments.size()) {
            const QString name = arguments.at(++index);
            request.tab = tabFromName(name);
            if (!request.tab) {
                error = localized("CLIUNKNOWNTAB").arg(name);
                return false;
            }
        } else {
            error = localized("CLIUNKNOWNOPTION").arg(argument)
                + didYouMean(argument, {QStringLiteral("--tab"), QStringLiteral("--json"), QStringLiteral("--help")});
            return false;
        }
    }
    return true;
}

QStringList chosenKeys(const OptionsRequest& request)
{
    QStringList keys;
    for (const QString& key : Settings::optionKeys()) {
        if (!request.tab || tabOfOption(key) == *request.tab)
            keys.append(key);
    }
    return keys;
}

void printText(const QJsonArray& options, QTextStream& out)
{
    for (const QJsonValue& value : options) {
        const QJsonObject option = value.toObject();
        QStringList allowed;
        for (const QJsonValue& each : option.value(QStringLiteral("allowed")).toArray())
            allowed.append(each.toString());
        out << option.value(QStringLiteral("key")).toString() << " (" << option.value(QStringLiteral("type")).toString();
        if (!allowed.isEmpty())
            out << ": " << allowed.join(QLatin1Char('|'));
        out << ", " << localized("CLIOPTIONDEFAULT").arg(option.value(QStringLiteral("default")).toString()) << ")\n"
            << "    " << option.value(QStringLiteral("description")).toString() << '\n';
    }
}

}  // namespace

int tabOfOption(const QString& key)
{
    const QString name = withoutSwitchWord(key);
    for (const TabPrefix& entry : kTabPrefixes) {
        if (name.startsWith(QLatin1String(entry.prefix), Qt::CaseInsensitive))
            return entry.tab;
    }
    return -1;
}

int runOptionsCommand(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    OptionsRequest request;
    QString error;
    if (!parseRequest(arguments, request, error))
        return reportUsageError(kCommand, error, err);
    if (request.help) {
        out << localized("CLIOPTIONSUSAGE") << '\n';
        return kExitDone;
    }
    const Settings defaults;
    QJsonArray options;
    for (const QString& key : chosenKeys(request))
        options.append(optionJson(defaults, key));
    if (request.json)
        out << QJsonDocument(options).toJson(QJsonDocument::Indented);
    else
        printText(options, out);
    return kExitDone;
}

}  // namespace tavrin::cli
