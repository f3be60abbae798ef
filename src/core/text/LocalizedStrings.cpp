#include "core/text/LocalizedStrings.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QMutex>
#include <QMutexLocker>

namespace tavrin {

namespace {

using Table = QHash<QString, QString>;

const QString kEnglish = QStringLiteral("en");

// A language's table is the union of its area files (":/strings/en/list.json", ...).
Table loadTable(const QString& language)
{
    Table table;
    const QDir folder(QStringLiteral(":/strings/") + language);
    for (const QString& name : folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QJsonParseError error;
        const QJsonObject object = QJsonDocument::fromJson(file.readAll(), &error).object();
        if (error.error != QJsonParseError::NoError)
            qWarning("String table %s: %s", qPrintable(file.fileName()), qPrintable(error.errorString()));
        for (auto it = object.begin(); it != object.end(); ++it)
            table.insert(it.key(), it.value().toString());
    }
    return table;
}

struct State {
    QMutex mutex;
    QHash<QString, Table> tables;
    QString language = LocalizedStrings::systemLanguage();

    const Table& table(const QString& lang)
    {
        auto it = tables.find(lang);
        if (it == tables.end())
            it = tables.insert(lang, loadTable(lang));
        return *it;
    }
};

State& state()
{
    static State instance;
    return instance;
}

}  // namespace

QString LocalizedStrings::text(const QString& key)
{
    State& s = state();
    QMutexLocker lock(&s.mutex);
    const Table& current = s.table(s.language);
    if (auto it = current.constFind(key); it != current.constEnd())
        return *it;
    const Table& english = s.table(kEnglish);
    if (auto it = english.constFind(key); it != english.constEnd())
        return *it;
    return key;
}

void LocalizedStrings::setLanguage(const QString& language)
{
    State& s = state();
    QMutexLocker lock(&s.mutex);
    s.language = languages().contains(language) ? language : kEnglish;
}

QString LocalizedStrings::language()
{
    State& s = state();
    QMutexLocker lock(&s.mutex);
    return s.language;
}

QString LocalizedStrings::systemLanguage()
{
    const QStringList preferred = QLocale::system().uiLanguages();
    const QString first = preferred.isEmpty() ? kEnglish : preferred.first().left(2).toLower();
    return languages().contains(first) ? first : kEnglish;
}

QStringList LocalizedStrings::languages()
{
    return {QStringLiteral("en"), QStringLiteral("fr"), QStringLiteral("de"), QStringLiteral("es")};
}

QStringList LocalizedStrings::keys(const QString& language)
{
    State& s = state();
    QMutexLocker lock(&s.mutex);
    return s.table(language).keys();
}

}  // namespace tavrin
