#include "core/formats/VersionStamp.h"

#include <QFile>
#include <QXmlStreamReader>

namespace tavrin {

namespace {

constexpr char versionAttribute[] = "appversion";

QString majorComponent(const QString& version)
{
    return version.section(QLatin1Char('.'), 0, 0);
}

}  // namespace

QString appVersion()
{
    return QStringLiteral(TAVRIN_VERSION);
}

std::optional<QString> appVersionInPlist(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("Error in appVersionInPlist : %s", qPrintable(file.errorString()));
        return std::nullopt;
    }
    QXmlStreamReader reader(&file);
    if (!reader.readNextStartElement()) {
        qWarning("Error in appVersionInPlist : %s", qPrintable(reader.errorString()));
        return std::nullopt;
    }
    const QXmlStreamAttributes attributes = reader.attributes();
    if (!attributes.hasAttribute(QLatin1String(versionAttribute)))
        return std::nullopt;
    return attributes.value(QLatin1String(versionAttribute)).toString();
}

bool isFileVersionMatch(const std::optional<QString>& version, const QString& applicationVersion)
{
    return version.has_value() && majorComponent(*version) == majorComponent(applicationVersion);
}

}  // namespace tavrin
