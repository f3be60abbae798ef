#pragma once

#include "core/log/RenameLogEntry.h"

#include <QByteArray>
#include <QList>
#include <QString>

// The XML layout of a rename log. The names are an exchange format shared with logs written
// by earlier versions, so they are spelled exactly as those files spell them.
namespace tavrin::logxml {

inline constexpr char Root[] = "files";
inline constexpr char Entry[] = "file";
inline constexpr char AppVersion[] = "appversion";
inline constexpr char Type[] = "type";
inline constexpr char SourceLocation[] = "srclocation";
inline constexpr char TargetLocation[] = "tarlocation";
inline constexpr char SourceName[] = "srcfilename";
inline constexpr char TargetName[] = "tarfilename";
// Attributes the first versions' readers ignore. The identity of the renamed item:
inline constexpr char Device[] = "device";
inline constexpr char Inode[] = "inode";
// A value holding a character XML 1.0 cannot hold (a control character, U+FFFE, U+FFFF) is
// written without it, as it always was, and whole, as Base64 of its UTF-8, in an attribute
// named after it with this suffix ("srcfilenamebase64"), which the reader takes instead.
inline constexpr char ExactSuffix[] = "base64";

// The values of "type": the list's files/folders mode when the batch ran.
inline constexpr char TypeFiles[] = "FILES";
inline constexpr char TypeFolders[] = "FOLDERS";

// The XML declaration and the open root, each on its own line: what a log holds before its
// first entry, while its batch is still running.
QByteArray documentHead(const QString& type);

// One entry as a line of its own, indented as in the finished document, so that a log cut
// off after any entry still reads back entry by entry. Every name XML can hold is written
// exactly as the layout always wrote it.
QByteArray entryLine(const RenameLogEntry& entry);

// The whole finished document, pretty-printed with four-space indentation. A log finished
// for a batch that was killed keeps the version stamp its batch wrote.
// Whether XML 1.0 can hold every character of the text.
bool isXmlText(const QString& text);

QByteArray document(const QString& type, const QList<RenameLogEntry>& entries,
    const QString& appVersion = QStringLiteral(TAVRIN_VERSION));

}  // namespace tavrin::logxml
