#include "core/engine/actions/pathcomponents.h"

#include "core/engine/OptionValues.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"

#include <QStringList>
#include <exception>

namespace tavrin {

PathComponentsOptions PathComponentsOptions::from(const OptionValues& values)
{
    PathComponentsOptions options;
    options.level = values.integer(Settings::pathComponentsLevelNoKey);
    options.placement = InsertOptions::placement(
        values, {Settings::pathComponentsOptionsIndexKey, Settings::pathComponentsAtPositionNoKey,
                 Settings::pathComponentsAtPositionDirectionKey, Settings::pathComponentsAtBeforeTextKey,
                 Settings::pathComponentsAtBeforeOccurrenceKey, Settings::pathComponentsAtAfterTextKey,
                 Settings::pathComponentsAtAfterOccurrenceKey});
    options.separator = values.text(Settings::pathComponentsSeparatorKey);
    options.prefix = values.text(Settings::pathComponentsPrefixKey);
    options.suffix = values.text(Settings::pathComponentsSuffixKey);
    return options;
}

// An absolute path's first component is the root "/", which the clamp leaves out.
QString folderText(const QString& folderPath, int level, const QString& separator)
{
    QStringList components = folderPath.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (folderPath.startsWith(QLatin1Char('/')))
        components.prepend(QStringLiteral("/"));
    const qsizetype deepest = components.size() - 1;
    const qsizetype levels = level < 0 || level > deepest ? deepest : level;
    return components.mid(components.size() - levels).join(separator);
}

// Every "/" of the insert text the insertion keeps as ":"; folder names hold none.
bool renameByPathComponents(FileSystemItem& item, const PathComponentsOptions& options, QString& error)
{
    try {
        InsertOptions insert = options.placement;
        insert.text = options.prefix + folderText(item.fileLocation(), options.level, options.separator)
            + options.suffix;
        return renameByInsert(item, insert, error);
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromUtf8(e.what()));
    }
    return error.isEmpty();
}

}  // namespace tavrin
