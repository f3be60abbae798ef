#include "core/formats/KeyedArchive.h"

#include <QDateTime>
#include <QRandomGenerator>
#include <QTimeZone>
#include <QUrl>
#include <gtest/gtest.h>
#include <memory>
#include <plist/plist.h>

#include "support/QtPrinters.h"

using namespace tavrin;

namespace {

struct PlistFree {
    void operator()(plist_t node) const { plist_free(node); }
};
using Plist = std::unique_ptr<void, PlistFree>;

Plist parse(const QByteArray& bytes)
{
    plist_t root = nullptr;
    plist_from_memory(bytes.constData(), uint32_t(bytes.size()), &root);
    return Plist(root);
}

QString text(plist_t node)
{
    if (!node || plist_get_node_type(node) != PLIST_STRING)
        return QStringLiteral("<not a string>");
    uint64_t length = 0;
    const char* chars = plist_get_string_ptr(node, &length);
    return QString::fromUtf8(chars, qsizetype(length));
}

uint64_t uid(plist_t node)
{
    uint64_t value = UINT64_MAX;
    if (node && plist_get_node_type(node) == PLIST_UID)
        plist_get_uid_val(node, &value);
    return value;
}

// The "$classes" chain of the class description an object points to.
QStringList classChain(plist_t objects, plist_t object)
{
    const plist_t description = plist_array_get_item(objects, uint32_t(uid(plist_dict_get_item(object, "$class"))));
    const plist_t chain = plist_dict_get_item(description, "$classes");
    QStringList names;
    for (uint32_t index = 0; chain && index < plist_array_get_size(chain); ++index)
        names.append(text(plist_array_get_item(chain, index)));
    EXPECT_EQ(text(plist_dict_get_item(description, "$classname")), names.value(0));
    return names;
}

// An archive as an XML property list, as other archivers write it: references are
// {"CF$UID": n} dictionaries. `objects` is the body of the "$objects" array.
QByteArray xmlArchive(const QByteArray& objects, int root = 1, const QByteArray& archiver = "NSKeyedArchiver")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
           "<key>$archiver</key><string>"
        + archiver
        + "</string><key>$version</key><integer>100000</integer>"
          "<key>$top</key><dict><key>root</key><dict><key>CF$UID</key><integer>"
        + QByteArray::number(root) + "</integer></dict></dict><key>$objects</key><array><string>$null</string>"
        + objects + "</array></dict></plist>";
}

QByteArray ref(int index)
{
    return "<dict><key>CF$UID</key><integer>" + QByteArray::number(index) + "</integer></dict>";
}

QByteArray instance(const QByteArray& body, int classIndex)
{
    return "<dict>" + body + "<key>$class</key>" + ref(classIndex) + "</dict>";
}

QByteArray classDescription(const QByteArray& name)
{
    return "<dict><key>$classname</key><string>" + name + "</string><key>$classes</key><array><string>" + name
        + "</string><string>NSObject</string></array></dict>";
}

// A chain of arrays, each holding the next one; `depth` arrays in all.
QByteArray nestedArrays(int depth)
{
    QByteArray objects;
    for (int level = 1; level <= depth; ++level) {
        const QByteArray members = level < depth ? ref(level + 1) : QByteArray();
        objects += instance("<key>NS.objects</key><array>" + members + "</array>", depth + 1);
    }
    return xmlArchive(objects + classDescription("NSArray"));
}

QVariantMap step(const QString& rule, const QString& type)
{
    return {{QStringLiteral("rule"), rule}, {QStringLiteral("type"), type}, {QStringLiteral("isActive"), QStringLiteral("1")}};
}

}  // namespace

TEST(KeyedArchive, NestedValuesComeBackUnchanged)
{
    QVariantMap replace = step(QStringLiteral("ReplaceRemove"), QStringLiteral("Replace"));
    replace.insert(QStringLiteral("replaceRemoveThis"), QStringLiteral("é & <b> / $null"));
    const QVariantList chain = {
        replace,
        step(QStringLiteral("General"), QStringLiteral("General")),
        true,
        42,
        qlonglong(-1),
        2.5,
        QDateTime(QDate(2020, 2, 29), QTime(23, 59, 58, 125), QTimeZone::utc()),
        QByteArray("\0\x01\xff", 3),
        QVariantList(),
        QVariantMap(),
        QVariant(),
    };
    const std::optional<QVariant> back = keyedUnarchive(keyedArchive(chain));
    ASSERT_TRUE(back.has_value());
    EXPECT_EQ(*back, QVariant(chain));

    EXPECT_TRUE(keyedArchive(QUrl(QStringLiteral("file:///tmp"))).isEmpty());
}

TEST(KeyedArchive, WritesTheLayoutOtherProgramsRead)
{
    const QVariantMap root = {
        {QStringLiteral("a"), QVariantList {QStringLiteral("a"), QStringLiteral("a")}},
        {QStringLiteral("b"), QVariantList {QDateTime(QDate(2001, 1, 1), QTime(0, 1, 30), QTimeZone::utc())}},
    };
    const QByteArray archive = keyedArchive(root);
    ASSERT_TRUE(archive.startsWith("bplist00"));
    const Plist top = parse(archive);
    ASSERT_TRUE(top);
    EXPECT_EQ(text(plist_dict_get_item(top.get(), "$archiver")), QStringLiteral("NSKeyedArchiver"));
    uint64_t version = 0;
    plist_get_uint_val(plist_dict_get_item(top.get(), "$version"), &version);
    EXPECT_EQ(version, 100000u);

    const plist_t objects = plist_dict_get_item(top.get(), "$objects");
    ASSERT_TRUE(objects && plist_get_node_type(objects) == PLIST_ARRAY);
    EXPECT_EQ(text(plist_array_get_item(objects, 0)), QStringLiteral("$null"));
    const uint64_t rootIndex = uid(plist_dict_get_item(plist_dict_get_item(top.get(), "$top"), "root"));
    ASSERT_LT(rootIndex, plist_array_get_size(objects));
    const plist_t rootObject = plist_array_get_item(objects, uint32_t(rootIndex));
    EXPECT_EQ(classChain(objects, rootObject),
              QStringList({"NSMutableDictionary", "NSDictionary", "NSObject"}));
    EXPECT_EQ(plist_array_get_size(plist_dict_get_item(rootObject, "NS.keys")), 2u);

    int strings = 0;
    int arrayClasses = 0;
    for (uint32_t index = 1; index < plist_array_get_size(objects); ++index) {
        const plist_t object = plist_array_get_item(objects, index);
        strings += text(object) == QLatin1String("a") ? 1 : 0;
        arrayClasses += text(plist_dict_get_item(object, "$classname")) == QLatin1String("NSMutableArray") ? 1 : 0;
        if (const plist_t time = plist_dict_get_item(object, "NS.time")) {
            EXPECT_EQ(classChain(objects, object), QStringList({"NSDate", "NSObject"}));
            double seconds = 0;
            plist_get_real_val(time, &seconds);
            EXPECT_DOUBLE_EQ(seconds, 90.0);
        }
        if (plist_dict_get_item(object, "NS.objects") && !plist_dict_get_item(object, "NS.keys")) {
            EXPECT_EQ(classChain(objects, object), QStringList({"NSMutableArray", "NSArray", "NSObject"}));
        }
    }
    EXPECT_EQ(strings, 1) << "a key and two list items, all \"a\", share one string object";
    EXPECT_EQ(arrayClasses, 1) << "both lists share one class description";
}

TEST(KeyedArchive, ReadsWhatOtherArchiversWrite)
{
    // An immutable array of a mutable string and a plain one, in XML.
    const QByteArray objects = instance("<key>NS.objects</key><array>" + ref(2) + ref(4) + "</array>", 5)
        + instance("<key>NS.string</key><string>Photo</string>", 3) + classDescription("NSMutableString")
        + "<string>General</string>" + classDescription("NSArray");
    EXPECT_EQ(keyedUnarchive(xmlArchive(objects)), QVariant(QVariantList {QStringLiteral("Photo"), QStringLiteral("General")}));

    // Eighty levels of an object referring twice to the next: decoding each use anew would never end.
    QByteArray shared;
    for (int level = 1; level <= 80; ++level)
        shared += instance("<key>NS.objects</key><array>" + ref(level + 1) + ref(level + 1) + "</array>", 82);
    EXPECT_TRUE(keyedUnarchive(xmlArchive(shared + "<string>leaf</string>" + classDescription("NSArray"))).has_value());
    EXPECT_TRUE(keyedUnarchive(nestedArrays(200)).has_value());
}

TEST(KeyedArchive, RefusesMalformedArchives)
{
    const QByteArray array = classDescription("NSArray");
    const QByteArray dictionary = classDescription("NSDictionary");
    QByteArray random(4096, Qt::Uninitialized);
    QRandomGenerator generator(20240305);
    for (char& byte : random)
        byte = char(generator.bounded(256));
    const struct {
        const char* name;
        QByteArray data;
    } rows[] = {
        {"empty", QByteArray()},
        {"random bytes", random},
        {"random bytes after a binary header", "bplist00" + random},
        {"not a dictionary", "<plist version=\"1.0\"><array/></plist>"},
        {"another archiver", xmlArchive("<string>x</string>", 1, "NSArchiver")},
        {"no root", xmlArchive("<string>x</string>").replace("<key>root</key>", "<key>tip</key>")},
        {"root out of range", xmlArchive("<string>x</string>", 2)},
        {"member out of range", xmlArchive(instance("<key>NS.objects</key><array>" + ref(9) + "</array>", 2) + array)},
        {"array holding itself",
         xmlArchive(instance("<key>NS.objects</key><array>" + ref(1) + "</array>", 2) + array)},
        {"cycle through a second array",
         xmlArchive(instance("<key>NS.objects</key><array>" + ref(2) + "</array>", 3)
                    + instance("<key>NS.objects</key><array>" + ref(1) + "</array>", 3) + array)},
        {"nested too deep", nestedArrays(300)},
        {"unknown class", xmlArchive(instance("<key>NS.base</key>" + ref(0), 2) + classDescription("NSURL"))},
        {"keys and values differ in number",
         xmlArchive(instance("<key>NS.keys</key><array>" + ref(2) + ref(2) + "</array><key>NS.objects</key><array>"
                                 + ref(2) + "</array>",
                             3)
                    + "<string>k</string>" + dictionary)},
        {"key that is not a text",
         xmlArchive(instance("<key>NS.keys</key><array>" + ref(2) + "</array><key>NS.objects</key><array>" + ref(2)
                                 + "</array>",
                             3)
                    + "<integer>7</integer>" + dictionary)},
    };
    for (const auto& row : rows)
        EXPECT_FALSE(keyedUnarchive(row.data).has_value()) << row.name;

    const QByteArray archive = keyedArchive(QVariantList {step(QStringLiteral("Photo"), QStringLiteral("Photo")), 3});
    for (qsizetype length = 0; length < archive.size(); ++length)
        EXPECT_FALSE(keyedUnarchive(archive.left(length)).has_value()) << "cut to " << length << " bytes";
}
