#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

class QObject;

namespace tavrin {

// Where an action's option values come from: the settings object for a tab's preview, or
// a rule step's stored strings for a rule chain. Actions ask by option key.
class OptionValues {
public:
    virtual ~OptionValues() = default;
    virtual QString text(const char* key) const = 0;
    virtual int integer(const char* key) const = 0;
    virtual bool boolean(const char* key) const = 0;
    virtual QStringList list(const char* key) const = 0;
    virtual QDateTime date(const char* key) const = 0;
};

// The Qt properties of an object (the settings object) as they are when this is made: a
// boolean property answers its value, a text property its integer conversion. Taking them
// once keeps a worker thread off the live object and keeps 100,000 lookups cheap.
class PropertyOptionValues final : public OptionValues {
public:
    explicit PropertyOptionValues(const QObject& object);

    QString text(const char* key) const override;
    int integer(const char* key) const override;
    bool boolean(const char* key) const override;
    QStringList list(const char* key) const override;
    // An invalid date for an option that holds none.
    QDateTime date(const char* key) const override;

private:
    QVariant value(const char* key) const;
    QHash<QByteArray, QVariant> m_values;
};

}  // namespace tavrin
