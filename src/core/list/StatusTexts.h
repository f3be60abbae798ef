#pragma once

#include <QString>

// The status texts a record's newFilename holds instead of a proposed name. They are
// compared by the table, the pipeline and the log, and are never localized.
namespace tavrin::status {

inline constexpr char NoChanges[] = "No Changes";
inline constexpr char FileAlreadyExists[] = "File Already Exists";
inline constexpr char FolderAlreadyExists[] = "Folder Already Exists";
inline constexpr char FileNotFound[] = "File Not Found";
inline constexpr char FolderNotFound[] = "Folder Not Found";
inline constexpr char RenamingOk[] = "Renaming (OK)";

// True for the texts that mark a failed or refused proposal (shown with the error badge).
bool isErrorStatus(const QString& newFilename);

// True for every status text, including "Renaming (OK)": apply skips these records.
bool isStatus(const QString& newFilename);

}  // namespace tavrin::status
