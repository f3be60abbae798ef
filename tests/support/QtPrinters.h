#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

// Readable failure messages: GoogleTest finds these by argument-dependent lookup.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << '[' << texts.join(QStringLiteral(", ")).toStdString() << ']';
}
