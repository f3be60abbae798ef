#include "gui/engine/DateFieldInputs.h"

#include "core/engine/actions/dateformat.h"
#include "core/text/LocalizedStrings.h"
#include "gui/engine/OptionBinder.h"

#include <QComboBox>
#include <QLineEdit>

namespace tavrin::datefieldinputs {

namespace {

constexpr int kSeparatorWidth = 40;
// Wide enough for most names of a field; the list shows the longer ones whole.
constexpr int kFieldCharacters = 11;

const OptionBinder::Choices& dateChoices()
{
    static const OptionBinder::Choices choices {
        { "DATEFIELDNONE", QString::fromLatin1(dateformat::NoField) },
        { "DATEFIELDDAY", QStringLiteral("dd") },
        { "DATEFIELDMONTH", QStringLiteral("MM") },
        { "DATEFIELDMONTHSHORT", QStringLiteral("MMM") },
        { "DATEFIELDMONTHLONG", QStringLiteral("MMMM") },
        { "DATEFIELDYEARSHORT", QStringLiteral("yy") },
        { "DATEFIELDYEAR", QStringLiteral("yyyy") },
        { "DATEFIELDWEEKDAYSHORT", QStringLiteral("EEE") },
        { "DATEFIELDWEEKDAY", QStringLiteral("EEEE") },
    };
    return choices;
}

const OptionBinder::Choices& timeChoices()
{
    static const OptionBinder::Choices choices {
        { "DATEFIELDNONE", QString::fromLatin1(dateformat::NoField) },
        { "TIMEFIELDHOUR24", QStringLiteral("HH") },
        { "TIMEFIELDHOUR12", QStringLiteral("hh") },
        { "TIMEFIELDMINUTES", QStringLiteral("mm") },
        { "TIMEFIELDSECONDS", QStringLiteral("ss") },
        { "TIMEFIELDAMPM", QStringLiteral("a") },
    };
    return choices;
}

QList<QWidget*> inputs(
    OptionBinder& binder, const std::array<const char*, 5>& keys, const OptionBinder::Choices& choices)
{
    QList<QWidget*> row;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (i % 2 == 0) {
            QComboBox* field = binder.choice(keys[i], choices);
            field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
            field->setMinimumContentsLength(kFieldCharacters);
            row.append(field);
        } else {
            QLineEdit* separator = binder.textField({ keys[i] });
            separator->setFixedWidth(kSeparatorWidth);
            row.append(separator);
        }
    }
    return row;
}

} // namespace

QList<QWidget*> dateInputs(OptionBinder& binder, const std::array<const char*, 5>& keys)
{
    return inputs(binder, keys, dateChoices());
}

QList<QWidget*> timeInputs(OptionBinder& binder, const std::array<const char*, 5>& keys)
{
    return inputs(binder, keys, timeChoices());
}

} // namespace tavrin::datefieldinputs
