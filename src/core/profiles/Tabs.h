#pragma once

#include <QString>
#include <optional>

// The main window's tab numbers. They are stored in profiles ("selectedTab") and pick the
// action of a preview, so they keep the window's order, not the order actions are listed in.
namespace tavrin::tabs {

inline constexpr int AlphaNumeric = 0;
inline constexpr int InsertDelete = 1;
inline constexpr int ReplaceRemove = 2;
inline constexpr int PrefixSuffix = 3;
inline constexpr int DateTime = 4;
inline constexpr int General = 5;
inline constexpr int Audio = 6;
inline constexpr int Photo = 7;
inline constexpr int PathComponents = 8;
inline constexpr int FromFile = 9;

inline constexpr int Count = 10;

}  // namespace tavrin::tabs

namespace tavrin {

// A tab named on the command line: its number ("5") or its name ("general", any case).
// None for anything else, including a number outside 0..9.
std::optional<int> tabFromName(const QString& name);

// The command-line name of a tab ("alphanumeric" ... "fromfile"); empty outside 0..9.
QString tabName(int tab);

}  // namespace tavrin
