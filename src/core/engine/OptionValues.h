#pragma once

#include <QString>
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
};

// Values read by key from the Qt properties of an object (the settings object): a boolean
// property answers its value, a text property its integer conversion.
class PropertyOptionValues final : public OptionValues {
public:
    explicit PropertyOptionValues(const QObject& object)
        : m_object(object)
    {
    }

    QString text(const char* key) const override;
    int integer(const char* key) const override;
    bool boolean(const char* key) const override;

private:
    QVariant value(const char* key) const;
    const QObject& m_object;
};

}  // namespace tavrin
