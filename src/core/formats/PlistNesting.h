#pragma once

#include <QByteArray>

namespace tavrin {

// Property lists nest arrays and dictionaries a few levels deep; the parser recurses once per
// level, so a file nesting them thousands deep would exhaust the stack.
inline constexpr int kDeepestPlistNesting = 128;

// Whether the bytes of an XML or binary property list may be handed to the parser: they stay
// within `deepest` levels of nesting, found without parsing them recursively; an XML document
// declares no entities; a binary one has no objects referring to each other in a circle, and
// no dictionary key that is not a string, or holds a NUL (the parser asserts on one).
// Bytes that are neither form are not judged here (true): the parser refuses them.
bool isSafeToParse(const QByteArray& bytes, int deepest = kDeepestPlistNesting);

}  // namespace tavrin
