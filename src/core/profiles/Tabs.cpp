#include "core/profiles/Tabs.h"

#include <array>

namespace tavrin {

namespace {

// Indexed by tab number.
constexpr std::array<const char*, tabs::Count> kTabNames = {
    "alphanumeric", "insertdelete", "replaceremove", "prefixsuffix", "datetime",
    "general",      "audio",        "photo",         "pathcomponents", "fromfile",
};

}  // namespace

std::optional<int> tabFromName(const QString& name)
{
    const QString wanted = name.trimmed();
    bool isNumber = false;
    const int number = wanted.toInt(&isNumber, 10);
    if (isNumber)
        return number >= 0 && number < tabs::Count ? std::optional<int>(number) : std::nullopt;
    for (int tab = 0; tab < tabs::Count; ++tab) {
        if (wanted.compare(QLatin1String(kTabNames[tab]), Qt::CaseInsensitive) == 0)
            return tab;
    }
    return std::nullopt;
}

QString tabName(int tab)
{
    if (tab < 0 || tab >= tabs::Count)
        return {};
    return QString::fromLatin1(kTabNames[tab]);
}

}  // namespace tavrin
