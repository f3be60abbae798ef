#include "core/engine/actions/dateformat.h"

#include "core/engine/OptionValues.h"

namespace tavrin {

namespace {

QString field(const QString& part)
{
    return part == QLatin1String(dateformat::NoField) ? QString() : part;
}

}  // namespace

DateFormatFields DateFormatFields::from(const OptionValues& values, const std::array<const char*, 5>& keys)
{
    return {values.text(keys[0]), values.text(keys[1]), values.text(keys[2]), values.text(keys[3]),
            values.text(keys[4])};
}

QString assembledFormat(const DateFormatFields& fields, const QString& fallback)
{
    const QString format
        = field(fields.part1) + fields.separator1 + field(fields.part2) + fields.separator2 + field(fields.part3);
    return format.isEmpty() ? fallback : format;
}

}  // namespace tavrin
