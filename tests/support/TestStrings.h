#pragma once

#include <QString>
#include <QStringList>
#include <initializer_list>

namespace tavrin::test {

// Short forms for the many literal names the list and CLI tests spell out.
inline QString str(const char* text)
{
    return QString::fromUtf8(text);
}

inline QStringList strs(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list.append(str(text));
    return list;
}

}  // namespace tavrin::test
