#pragma once

#include <QString>
#include <array>

namespace tavrin {

class OptionValues;

namespace dateformat {
// The field value that leaves a field out.
inline constexpr char NoField[] = "None";
// The patterns used when every field of the date, or of the time, is left out.
inline constexpr char DateFallback[] = "MM/dd/yyyy";
inline constexpr char TimeFallback[] = "hh mm ss a";
}  // namespace dateformat

// The date part or the time part of a name's date: three fields, each a Unicode date
// pattern ("dd", "MMM", "HH" ...) or "None", with the texts that follow the first two.
// The texts are part of the pattern, so letters in them are fields too.
struct DateFormatFields {
    QString part1{};
    QString separator1{};
    QString part2{};
    QString separator2{};
    QString part3{};

    // Read by the keys of the five options, in the order of the members.
    static DateFormatFields from(const OptionValues& values, const std::array<const char*, 5>& keys);
};

// The fields that are not "None", in order, with each separator after its field whether or
// not that field is left out; `fallback` when all that is empty.
QString assembledFormat(const DateFormatFields& fields, const QString& fallback);

}  // namespace tavrin
