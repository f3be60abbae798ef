#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace tavrin::test {

TempTree::TempTree()
    : m_dir(QDir::tempPath() + QStringLiteral("/tavrin-tree-XXXXXX"))
{
    if (!m_dir.isValid())
        throw std::runtime_error("cannot make a temporary folder");
}

TempTree::~TempTree()
{
    std::error_code ignored;
    std::filesystem::remove_all(std::filesystem::path(QFile::encodeName(m_dir.path()).toStdString()), ignored);
}

QString TempTree::path(const QString& relative) const
{
    return relative.isEmpty() ? root() : root() + QLatin1Char('/') + relative;
}

QString TempTree::file(const QString& relative, const QByteArray& content)
{
    const QString full = path(relative);
    QDir().mkpath(QFileInfo(full).path());
    QFile out(full);
    if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size())
        throw std::runtime_error("cannot write test file");
    return full;
}

QString TempTree::folder(const QString& relative)
{
    const QString full = path(relative);
    if (!QDir().mkpath(full))
        throw std::runtime_error("cannot make test folder");
    return full;
}

QString TempTree::symlink(const QString& target, const QString& relative)
{
    const QString full = path(relative);
    QDir().mkpath(QFileInfo(full).path());
    if (::symlink(QFile::encodeName(target).constData(), QFile::encodeName(full).constData()) != 0)
        throw std::runtime_error("cannot make test link");
    return full;
}

QByteArray TempTree::rawFile(const QString& folderRelative, const QByteArray& rawName)
{
    const QByteArray full = QFile::encodeName(folder(folderRelative)) + '/' + rawName;
    const int fd = ::open(full.constData(), O_CREAT | O_WRONLY | O_EXCL, 0644);
    if (fd < 0)
        throw std::runtime_error("cannot make raw test file");
    ::close(fd);
    return full;
}

bool TempTree::exists(const QString& relative) const
{
    struct stat info {};
    return ::lstat(QFile::encodeName(path(relative)).constData(), &info) == 0;
}

QByteArray TempTree::read(const QString& relative) const
{
    QFile in(path(relative));
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

}  // namespace tavrin::test
