#pragma once

#include <QString>
#include <optional>

namespace tavrin {

// The version this build stamps on the files it writes (logs, rule files, profiles).
QString appVersion();

// The "appversion" attribute of a file's root element: the stamp that rename logs, rule
// files and profiles carry. Nothing when the file cannot be read, holds no root element
// before its first error, or its root has no such attribute. Only the root's start tag is
// read, so a log cut short after it (a batch that was killed) still shows its stamp.
std::optional<QString> appVersionInPlist(const QString& path);

// Whether a file of `version` may be opened by `applicationVersion`: the texts before their
// first "." are equal ("3.1" opens in "3.0.0", "2.9" and "30.0" do not). A missing stamp never
// matches.
bool isFileVersionMatch(
    const std::optional<QString>& version, const QString& applicationVersion = appVersion());

}  // namespace tavrin
