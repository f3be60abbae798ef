#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include "support/QtPrinters.h"

namespace tavrin::test {

// A temporary folder that tests fill with real files, folders and links.
class TempTree {
public:
    TempTree();
    // Removes the tree byte by byte, also names that are not valid UTF-8.
    ~TempTree();
    TempTree(const TempTree&) = delete;
    TempTree& operator=(const TempTree&) = delete;

    QString root() const { return m_dir.path(); }
    // Absolute path of a path relative to the root.
    QString path(const QString& relative) const;

    // Creates a file (and its parent folders) with the given content; returns its path.
    QString file(const QString& relative, const QByteArray& content = QByteArray());
    // Creates a folder (and its parents); returns its path.
    QString folder(const QString& relative);
    // Creates a symbolic link at `relative` pointing to `target`; returns its path.
    QString symlink(const QString& target, const QString& relative);
    // Creates a file whose last name component is the given raw bytes (not always UTF-8).
    QByteArray rawFile(const QString& folderRelative, const QByteArray& rawName);

    bool exists(const QString& relative) const;
    QByteArray read(const QString& relative) const;

private:
    QTemporaryDir m_dir;
};

}  // namespace tavrin::test
