#include "gui/app/ClipboardPaths.h"

#include <QDir>
#include <QMimeData>
#include <QUrl>

namespace tavrin {

namespace {

// GNOME's own format starts with the operation ("copy" or "cut"), then one URI a line.
QList<QUrl> gnomeCopiedFiles(const QByteArray& content)
{
    QList<QUrl> urls;
    const QList<QByteArray> lines = content.split('\n');
    for (qsizetype line = 1; line < lines.size(); ++line) {
        const QByteArray uri = lines[line].trimmed();
        if (!uri.isEmpty())
            urls.append(QUrl::fromEncoded(uri));
    }
    return urls;
}

QStringList localPaths(const QList<QUrl>& urls)
{
    QStringList paths;
    for (const QUrl& url : urls) {
        if (url.isLocalFile())
            paths.append(QDir::cleanPath(url.toLocalFile()));
    }
    return paths;
}

QStringList absolutePathLines(const QString& text)
{
    QStringList paths;
    for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const QString path = line.trimmed();
        if (QDir::isAbsolutePath(path))
            paths.append(QDir::cleanPath(path));
        else if (path.startsWith(QLatin1String("file://")))
            paths.append(localPaths({ QUrl(path) }));
    }
    return paths;
}

QStringList copiedPaths(const QMimeData* data)
{
    const QString gnomeFormat = QStringLiteral("x-special/gnome-copied-files");
    if (data->hasFormat(gnomeFormat))
        return localPaths(gnomeCopiedFiles(data->data(gnomeFormat)));
    if (data->hasUrls())
        return localPaths(data->urls());
    if (data->hasText())
        return absolutePathLines(data->text());
    return {};
}

} // namespace

QStringList pathsFromClipboard(const QMimeData* data)
{
    if (!data)
        return {};
    QStringList paths = copiedPaths(data);
    paths.removeDuplicates();
    return paths;
}

} // namespace tavrin
