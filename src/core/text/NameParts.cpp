#include "core/text/NameParts.h"

namespace tavrin {

NameParts splitNameAndExtension(const QString& component)
{
    const qsizetype dot = component.lastIndexOf(QLatin1Char('.'));
    if (dot <= 0 || dot == component.size() - 1)
        return {component, QString()};
    return {component.left(dot), component.mid(dot + 1)};
}

QString lastPathComponent(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return slash < 0 ? path : path.mid(slash + 1);
}

QString parentPath(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash < 0)
        return QString();
    if (slash == 0)
        return QStringLiteral("/");
    return path.left(slash);
}

QString joinPath(const QString& folder, const QString& name)
{
    if (folder.isEmpty())
        return name;
    if (folder.endsWith(QLatin1Char('/')))
        return folder + name;
    return folder + QLatin1Char('/') + name;
}

QString displayName(const QString& storedName)
{
    QString shown = storedName;
    shown.replace(QLatin1Char(':'), QLatin1Char('/'));
    return shown;
}

QString storedName(const QString& typedName)
{
    QString stored = typedName;
    stored.replace(QLatin1Char('/'), QLatin1Char(':'));
    return stored;
}

}  // namespace tavrin
