#pragma once

#include <QDateTime>
#include <QFile>
#include <QTimeZone>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <time.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

namespace tavrin::test {

// Berlin's offset differs between winter and summer, so a date formatted in the wrong zone,
// or converted twice, shows up whatever zone the machine runs in. Dates in US English.
inline constexpr char kZone[] = "Europe/Berlin";

inline void useFixedZoneAndLocale()
{
    qputenv("TZ", kZone);
    tzset();
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(kZone)));
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale("en_US"), status);
    ASSERT_TRUE(U_SUCCESS(status));
}

inline QDateTime inBerlin(int year, int month, int day, int hour, int minute, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), QTimeZone(kZone));
}

// Sets the modification date; a birth time cannot be set.
inline void setModified(const QString& path, const QDateTime& when)
{
    const timespec times[2] = {{0, UTIME_OMIT}, {static_cast<time_t>(when.toSecsSinceEpoch()), 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, AT_SYMLINK_NOFOLLOW), 0);
}

// The creation date as statx reports it (the modification date where there is no birth
// time), in Berlin.
inline QDateTime reportedCreation(const QString& path)
{
    struct statx info {};
    EXPECT_EQ(::statx(AT_FDCWD, QFile::encodeName(path).constData(), AT_SYMLINK_NOFOLLOW,
                      STATX_BTIME | STATX_MTIME, &info),
              0);
    const struct statx_timestamp& stamp = (info.stx_mask & STATX_BTIME) ? info.stx_btime : info.stx_mtime;
    return QDateTime::fromSecsSinceEpoch(stamp.tv_sec, QTimeZone(kZone));
}

}  // namespace tavrin::test
