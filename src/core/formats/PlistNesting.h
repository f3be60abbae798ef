#pragma once

#include <QByteArray>

namespace tavrin {

// Property lists nest arrays and dictionaries a few levels deep; the parser recurses once per
// level, so a file nesting them thousands deep would exhaust the stack.
inline constexpr int kDeepestPlistNesting = 128;

// Whether the bytes of an XML or binary property list stay within `deepest` levels of
// nesting, found without parsing them recursively. An XML document that declares entities is
// refused as well, and so is a binary one whose objects refer to each other in a circle.
// Bytes that are neither form are not judged here (true): the parser refuses them.
bool isNestingWithin(const QByteArray& bytes, int deepest = kDeepestPlistNesting);

}  // namespace tavrin
