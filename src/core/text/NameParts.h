#pragma once

#include <QString>

namespace tavrin {

// A last path component split into name and extension. The extension is the text after
// the last "." when that dot is neither the first nor the last character: ".bashrc" has
// none, "a." has none, "a.tar.gz" has "gz".
struct NameParts {
    QString name;
    QString extension;
};

NameParts splitNameAndExtension(const QString& component);

// The last path component of a path ("/a/b.txt" -> "b.txt").
QString lastPathComponent(const QString& path);

// The path without its last component ("/a/b.txt" -> "/a", "/b" -> "/").
QString parentPath(const QString& path);

// Joins a folder and a name with exactly one "/" between them.
QString joinPath(const QString& folder, const QString& name);

// What a user sees for a stored name: every ":" shown as "/".
QString displayName(const QString& storedName);

// What the file system stores for a typed name: every "/" kept as ":".
QString storedName(const QString& typedName);

}  // namespace tavrin
