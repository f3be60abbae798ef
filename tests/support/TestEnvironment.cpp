#include "support/TestEnvironment.h"

#include <QByteArray>
#include <QDir>
#include <QTemporaryDir>
#include <cstdlib>
#include <memory>

namespace tavrin::test {

namespace {
std::unique_ptr<QTemporaryDir>& homeDir()
{
    static std::unique_ptr<QTemporaryDir> dir;
    return dir;
}

void setPath(const char* variable, const QString& path)
{
    QDir().mkpath(path);
    qputenv(variable, QFile::encodeName(path));
}
}  // namespace

void isolateHome()
{
    homeDir() = std::make_unique<QTemporaryDir>(QDir::tempPath() + QStringLiteral("/tavrin-test-home-XXXXXX"));
    const QString home = homeDir()->path();
    setPath("HOME", home);
    setPath("XDG_DATA_HOME", home + QStringLiteral("/.local/share"));
    setPath("XDG_CONFIG_HOME", home + QStringLiteral("/.config"));
    setPath("XDG_CACHE_HOME", home + QStringLiteral("/.cache"));
    qputenv("LANGUAGE", "en");
}

QString temporaryHome()
{
    return homeDir() ? homeDir()->path() : QString();
}

}  // namespace tavrin::test
