#pragma once

#include <QString>

// The status texts a record shows in place of a proposed name. They are what the table, the
// JSON and the log show, and are never localized.
namespace tavrin::status {

inline constexpr char NoChanges[] = "No Changes";
inline constexpr char FileAlreadyExists[] = "File Already Exists";
inline constexpr char FolderAlreadyExists[] = "Folder Already Exists";
inline constexpr char FileNotFound[] = "File Not Found";
inline constexpr char FolderNotFound[] = "Folder Not Found";
inline constexpr char RenamingOk[] = "Renaming (OK)";

} // namespace tavrin::status

namespace tavrin {

// What became of a record's proposal, kept apart from the proposed name so that a real new
// name that reads like a status ("File Not Found" from title case) is never taken for one.
enum class RenameStatus {
    None,
    NoChanges,
    FileAlreadyExists,
    FolderAlreadyExists,
    FileNotFound,
    FolderNotFound,
    RenamingOk
};

// The text the list, the JSON and the log show for a status; empty for None.
QString statusText(RenameStatus status);

// True for the statuses of a failed or refused proposal (shown with the error badge).
bool isErrorStatus(RenameStatus status);

} // namespace tavrin
