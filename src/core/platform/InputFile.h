#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace tavrin {

// Why an input file was refused.
enum class InputFileError { None, Missing, NotRegular, TooLarge, Unreadable };

// Opens a file the program reads (preferences, profiles, rule files, logs) without ever
// blocking: only a regular file, reached through symbolic links or not, is opened, and the
// open itself never waits for a writer the way a FIFO's would. Answers the descriptor, or -1
// with `error` saying why. The caller closes it.
int openInputFile(const QString& path, qint64 largestSize, InputFileError* error = nullptr);

// The whole content of such a file, at most `largestSize` bytes; nothing when it is missing,
// not a regular file, larger, or cannot be read.
std::optional<QByteArray> readInputFile(
    const QString& path, qint64 largestSize, InputFileError* error = nullptr);

}  // namespace tavrin
