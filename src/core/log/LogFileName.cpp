#include "core/log/LogFileName.h"

#include "core/text/NameParts.h"
#include "core/text/StringUtilities.h"

#include <QDateTime>
#include <QStringList>

namespace tavrin::logfilename {

namespace {

constexpr int pieceCount = 6;
constexpr char logExtension[] = "xml";
constexpr char countPlaceholder[] = "#";
constexpr char dateFormat[] = "dd-MM-yyyy";
constexpr char timeFormat[] = "HH-mm-ss";
constexpr char namePrefix[] = "Log ";

bool hasLogExtension(const QString& fileName)
{
    return splitNameAndExtension(fileName).extension.compare(QLatin1String(logExtension), Qt::CaseInsensitive)
        == 0;
}

std::optional<QStringList> pieces(const QString& fileName)
{
    if (!hasLogExtension(fileName))
        return std::nullopt;
    const QStringList parts = splitNameAndExtension(fileName).name.split(QLatin1Char('-'));
    if (parts.size() != pieceCount)
        return std::nullopt;
    return parts;
}

// "Log 15-11-2026 09-05-07-#.xml" -> 15 November 2026 09:05:07, read as a wall-clock time so
// that moving it on never trips over a change to or from daylight saving time.
std::optional<QDateTime> timeInName(const QString& interimName)
{
    const QString name = splitNameAndExtension(interimName).name;
    const QString prefix = QLatin1String(namePrefix);
    const QString suffix = QLatin1Char('-') + QLatin1String(countPlaceholder);
    if (!name.startsWith(prefix) || !name.endsWith(suffix))
        return std::nullopt;
    const QStringList dateAndTime
        = name.mid(prefix.size(), name.size() - prefix.size() - suffix.size()).split(QLatin1Char(' '));
    if (dateAndTime.size() != 2)
        return std::nullopt;
    const QDate date = QDate::fromString(dateAndTime[0], QLatin1String(dateFormat));
    const QTime time = QTime::fromString(dateAndTime[1], QLatin1String(timeFormat));
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC);
}

}  // namespace

std::optional<int> countFromFileName(const QString& fileName)
{
    const std::optional<QStringList> parts = pieces(fileName);
    if (!parts || parts->last().contains(QLatin1String(countPlaceholder)))
        return std::nullopt;
    return toInteger(parts->last());
}

bool isInterimFileName(const QString& fileName)
{
    const std::optional<QStringList> parts = pieces(fileName);
    return parts && parts->last() == QLatin1String(countPlaceholder);
}

QString finishedFileName(const QString& interimName, int count, int secondsLater)
{
    if (!isInterimFileName(interimName))
        return QString();
    const NameParts parts = splitNameAndExtension(interimName);
    if (secondsLater == 0)
        return parts.name.chopped(1) + QString::number(count) + QLatin1Char('.') + parts.extension;
    const std::optional<QDateTime> time = timeInName(interimName);
    if (!time)
        return QString();
    const QDateTime later = time->addSecs(secondsLater);
    return QLatin1String(namePrefix) + later.toString(QLatin1String(dateFormat)) + QLatin1Char(' ')
        + later.toString(QLatin1String(timeFormat)) + QLatin1Char('-') + QString::number(count)
        + QLatin1Char('.') + parts.extension;
}

}  // namespace tavrin::logfilename
