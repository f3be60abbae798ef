#include "gui/log/HelpPage.h"

#include "core/text/LocalizedStrings.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace tavrin {

namespace {

QString resourcePage(const QString& language, const QString& name)
{
    return QStringLiteral(":/help/%1/%2").arg(language, name);
}

// A page of the resources and where its copy goes.
struct PageCopy {
    QString resource;
    QString file;
};

bool copyPage(const PageCopy& page)
{
    QFile resource(page.resource);
    if (!resource.open(QIODevice::ReadOnly))
        return false;
    const QByteArray content = resource.readAll();
    QSaveFile copy(page.file);
    return copy.open(QIODevice::WriteOnly) && copy.write(content) == content.size() && copy.commit();
}

} // namespace

QString helpPageFile(const QString& name)
{
    const QString language = LocalizedStrings::language();
    QStringList pages = QDir(QStringLiteral(":/help/en")).entryList(QDir::Files)
        + QDir(QStringLiteral(":/help/") + language).entryList(QDir::Files);
    pages.removeDuplicates();
    if (!pages.contains(name))
        return {};
    const QString helpFolder
        = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/help");
    const QString folder = helpFolder + QLatin1Char('/') + language;
    // Every language's pages share one stylesheet, beside their folders.
    if (!QDir().mkpath(folder)
        || !copyPage({ QStringLiteral(":/help/help.css"), helpFolder + QStringLiteral("/help.css") }))
        return {};
    for (const QString& page : pages) {
        const QString translated = resourcePage(language, page);
        const QString from
            = QFile::exists(translated) ? translated : resourcePage(QStringLiteral("en"), page);
        if (!copyPage({ from, folder + QLatin1Char('/') + page }))
            return {};
    }
    return folder + QLatin1Char('/') + name;
}

QString helpUnavailableText(const QString& pageFile)
{
    QString text = localized("HELPUNAVAILABLE");
    if (!pageFile.isEmpty())
        text += QLatin1Char('\n') + localized("HELPPAGEAT").arg(pageFile);
    return text;
}

} // namespace tavrin
