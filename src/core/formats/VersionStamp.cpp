#include "core/formats/VersionStamp.h"

#include "core/platform/InputFile.h"

#include <QFile>
#include <QXmlStreamReader>
#include <unistd.h>

namespace tavrin {

namespace {

constexpr char versionAttribute[] = "appversion";
constexpr qint64 kLargestStampedFile = qint64(1) << 30;

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
    // Only the root element is read: the cap is a log's, the largest of the stamped files.
    QFile file;
    const int fd = openInputFile(path, kLargestStampedFile);
    if (fd < 0 || !file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        if (fd >= 0)
            ::close(fd);
        qWarning("Error in appVersionInPlist : cannot read %s", qPrintable(path));
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
