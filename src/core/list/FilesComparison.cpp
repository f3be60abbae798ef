#include "core/list/FilesComparison.h"

#include <memory>
#include <stdexcept>
#include <unicode/ucol.h>

namespace tavrin {

namespace {

struct CollatorCloser {
    void operator()(UCollator* collator) const { ucol_close(collator); }
};
using CollatorPtr = std::unique_ptr<UCollator, CollatorCloser>;

// The root locale, not the system one, so the order does not change with LANG and is
// never the byte order a C locale would give. Secondary strength ignores case but keeps
// accents apart; numeric collation reads runs of digits as numbers.
CollatorPtr openFilesCollator()
{
    UErrorCode status = U_ZERO_ERROR;
    CollatorPtr collator(ucol_open("", &status));
    if (U_FAILURE(status))
        throw std::runtime_error(u_errorName(status));
    ucol_setStrength(collator.get(), UCOL_SECONDARY);
    ucol_setAttribute(collator.get(), UCOL_NUMERIC_COLLATION, UCOL_ON, &status);
    if (U_FAILURE(status))
        throw std::runtime_error(u_errorName(status));
    return collator;
}

// One collator per thread: a scan on a worker thread and a sort on the main thread never
// share one.
const UCollator* filesCollator()
{
    thread_local const CollatorPtr collator = openFilesCollator();
    return collator.get();
}

const UChar* utf16(const QString& text)
{
    return reinterpret_cast<const UChar*>(text.utf16());
}

int32_t length(const QString& text)
{
    return static_cast<int32_t>(text.size());
}

} // namespace

int compareFiles(const QString& a, const QString& b)
{
    switch (ucol_strcoll(filesCollator(), utf16(a), length(a), utf16(b), length(b))) {
    case UCOL_LESS:
        return -1;
    case UCOL_GREATER:
        return 1;
    case UCOL_EQUAL:
        break;
    }
    return a.compare(b, Qt::CaseSensitive);
}

QByteArray filesSortKey(const QString& text)
{
    const UCollator* collator = filesCollator();
    QByteArray key(64, Qt::Uninitialized);
    int32_t needed = ucol_getSortKey(collator, utf16(text), length(text),
        reinterpret_cast<uint8_t*>(key.data()), static_cast<int32_t>(key.size()));
    if (needed > key.size()) {
        key.resize(needed);
        needed = ucol_getSortKey(collator, utf16(text), length(text), reinterpret_cast<uint8_t*>(key.data()),
            static_cast<int32_t>(key.size()));
    }
    // The collator's key ends with a 0 byte; the UTF-16 code units after it break ties
    // between names equal but for case, big-endian so bytes compare as code points do.
    key.resize(needed);
    key.reserve(needed + text.size() * 2);
    for (const QChar ch : text) {
        key.append(static_cast<char>(ch.unicode() >> 8));
        key.append(static_cast<char>(ch.unicode() & 0xff));
    }
    return key;
}

} // namespace tavrin
