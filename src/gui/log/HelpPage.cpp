#include "gui/log/HelpPage.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace tavrin {

QString helpPageFile(const QString& name)
{
    QFile page(QStringLiteral(":/help/") + name);
    if (!page.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = page.readAll();
    const QString folder
        = QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/help");
    if (!QDir().mkpath(folder))
        return {};
    QSaveFile copy(folder + QLatin1Char('/') + name);
    if (!copy.open(QIODevice::WriteOnly) || copy.write(content) != content.size() || !copy.commit())
        return {};
    return copy.fileName();
}

} // namespace tavrin
