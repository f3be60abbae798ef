#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <plist/plist.h>

namespace tavrin {

// A libplist node that frees itself.
struct PlistFree {
    void operator()(plist_t node) const { plist_free(node); }
};
using Plist = std::unique_ptr<void, PlistFree>;

// Parses an XML or binary property list; null when the bytes are not one, or nest deeper
// than isSafeToParse() allows.
Plist parsePlist(const QByteArray& bytes);

// Reads and parses a property-list file of at most `largestSize` bytes (preferences,
// profiles and rules are small; anything larger is not one of them). Null when the file
// cannot be read, is not a regular file (see readInputFile()), is empty or too large, or is
// not a property list.
Plist readPlistFile(const QString& path, qint64 largestSize);

// The XML form of a property list, with the standard DOCTYPE.
QByteArray plistToXml(plist_t node);

// The text of a string node.
QString plistString(plist_t node);

}  // namespace tavrin
