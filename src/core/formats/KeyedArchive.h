#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QVariant>
#include <QVariantMap>
#include <optional>

namespace tavrin {

// An object of one of the program's own archivable classes: its class name and the values
// it encodes under its keys.
struct ArchivedObject {
    QByteArray className;
    QVariantMap keys;

    friend bool operator==(const ArchivedObject&, const ArchivedObject&) = default;
};

// Archives in the keyed-archiver layout of the original platform's program: a binary
// property list with "$archiver", "$version", "$top" -> "root" and the "$objects" table,
// objects referring to each other by UID. The last rule chain ("LASTRULE") and the list
// options of profiles are kept this way, so both programs read each other's archives.
//
// Values: QString, bool, integers, double, QByteArray, QDateTime (as a date object),
// QVariantList and QStringList (as a mutable array), QVariantMap (as a mutable dictionary)
// an ArchivedObject (its keys beside "$class", whose chain is the class and NSObject) and the
// null QVariant (the "$null" reference), nested freely. Equal strings and class
// descriptions are stored once, as the archiver does. Any other type, or nesting deeper
// than 256 levels, gives an empty QByteArray.
QByteArray keyedArchive(const QVariant& root);

// The value of an archive, binary or XML, also from archivers that use the immutable
// classes (NSArray, NSDictionary, NSString). Integers come back as qlonglong, dates in UTC,
// arrays as QVariantList. Nothing for anything malformed: not a property list, another
// archiver, a missing root, a reference outside the object table or back into itself,
// nesting deeper than 256 levels, a class other than those above and `objectClasses`, or a
// dictionary whose keys are not strings or differ in number from its values. An object of
// one of `objectClasses` comes back as an ArchivedObject.
std::optional<QVariant> keyedUnarchive(const QByteArray& data, const QByteArrayList& objectClasses = {});

}  // namespace tavrin

Q_DECLARE_METATYPE(tavrin::ArchivedObject)
