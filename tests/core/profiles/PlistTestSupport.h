#pragma once

#include "core/profiles/Settings.h"

#include <QFile>
#include <QMetaProperty>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace tavrin::test {

// An XML property list around the given dictionary entries.
inline QByteArray plistWith(const QByteArray& dictionaryBody)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n<dict>\n"
        + dictionaryBody + "</dict>\n</plist>\n";
}

inline QByteArray stringEntry(const char* key, const QByteArray& value)
{
    return QByteArray("<key>") + key + "</key><string>" + value + "</string>\n";
}

struct PlistEntry {
    QString key;
    QString element;  // "string", "data", ...
    QString text;
};

// What a property-list file holds, read with Qt's own XML reader so that a check does not go
// through the library that wrote the file.
struct PlistDocument {
    QString dtdName;
    QString publicId;
    QString systemId;
    QString rootVersion;
    QList<PlistEntry> entries;
    bool wellFormed = false;

    QString text(const QString& key) const
    {
        for (const PlistEntry& entry : entries)
            if (entry.key == key)
                return entry.text;
        return QString();
    }
};

inline PlistDocument readPlistDocument(const QString& path)
{
    PlistDocument document;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return document;
    QXmlStreamReader xml(&file);
    QString key;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::DTD) {
            document.dtdName = xml.dtdName().toString();
            document.publicId = xml.dtdPublicId().toString();
            document.systemId = xml.dtdSystemId().toString();
        }
        if (token != QXmlStreamReader::StartElement || xml.name() == QLatin1String("dict"))
            continue;
        if (xml.name() == QLatin1String("plist")) {
            document.rootVersion = xml.attributes().value(QLatin1String("version")).toString();
            continue;
        }
        const QString element = xml.name().toString();
        const QString text = xml.readElementText();
        if (element == QLatin1String("key"))
            key = text;
        else
            document.entries.append({key, element, text});
    }
    document.wellFormed = !xml.hasError();
    return document;
}

// A text form of a value that differs from the option's current one; texts gain characters
// that XML has to escape.
inline QString differentValue(const Settings& settings, const QString& key)
{
    const QMetaObject& meta = Settings::staticMetaObject;
    const QString current = settings.optionToString(key);
    switch (meta.property(meta.indexOfProperty(key.toUtf8().constData())).metaType().id()) {
    case QMetaType::Bool:
        return current == QLatin1String("1") ? QStringLiteral("0") : QStringLiteral("1");
    case QMetaType::Int:
        return QString::number(current.toInt() + 1);
    case QMetaType::QStringList:
        return current + QStringLiteral(",.Ünï");
    case QMetaType::QDateTime:
        return QStringLiteral("2001-02-03T04:05:06");
    default:
        return current + QStringLiteral(" <&é>");
    }
}

}  // namespace tavrin::test
