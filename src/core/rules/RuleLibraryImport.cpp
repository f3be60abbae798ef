#include "core/rules/RuleLibraryImport.h"

#include "core/log/VersionStamp.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QFile>
#include <QSaveFile>
#include <memory>
#include <plist/plist.h>

namespace tavrin {

namespace {

struct PlistDeleter {
    void operator()(plist_t node) const { plist_free(node); }
};

bool holdsListOfSteps(const QByteArray& content)
{
    plist_t root = nullptr;
    plist_from_memory(content.constData(), uint32_t(content.size()), &root);
    const std::unique_ptr<void, PlistDeleter> owner(root);
    return root && plist_get_node_type(root) == PLIST_ARRAY;
}

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
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !holdsListOfSteps(file.readAll()))
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
