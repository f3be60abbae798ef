#include "core/rules/RuleLibraryImport.h"

#include "core/formats/VersionStamp.h"
#include "core/formats/PropertyList.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QFile>
#include <QSaveFile>

namespace tavrin {

namespace {

// A rule chain is a few kilobytes; anything this large is not one.
constexpr qint64 kLargestRuleFile = 16 * 1024 * 1024;

void setError(QString* error, const QString& text)
{
    if (error)
        *error = text;
}

} // namespace

RuleFileCheck checkRuleFile(const QString& path)
{
    const std::optional<QString> version = appVersionInPlist(path);
    if (!version)
        return RuleFileCheck::Unreadable;
    if (!isFileVersionMatch(version))
        return RuleFileCheck::Incompatible;
    const Plist steps = readPlistFile(path, kLargestRuleFile);
    if (!steps || plist_get_node_type(steps.get()) != PLIST_ARRAY)
        return RuleFileCheck::Unreadable;
    return RuleFileCheck::Compatible;
}

QString ruleLibraryPath(const QString& rulesFolder, const QString& ruleFilePath)
{
    return joinPath(rulesFolder, lastPathComponent(ruleFilePath));
}

bool addRuleToLibrary(const QString& ruleFilePath, const QString& rulesFolder, QString* error)
{
    QFile source(ruleFilePath);
    if (!source.open(QIODevice::ReadOnly)) {
        setError(error, localized("RULECOPYFAILED").arg(ruleFilePath, source.errorString()));
        return false;
    }
    const QByteArray content = source.readAll();
    QSaveFile copy(ruleLibraryPath(rulesFolder, ruleFilePath));
    if (!copy.open(QIODevice::WriteOnly) || copy.write(content) != content.size() || !copy.commit()) {
        setError(error, localized("RULECOPYFAILED").arg(ruleFilePath, copy.errorString()));
        return false;
    }
    return true;
}

} // namespace tavrin
