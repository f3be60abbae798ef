#include "core/formats/KeyedArchive.h"
#include "core/formats/PlistNesting.h"
#include "core/formats/PropertyList.h"
#include "core/profiles/Preferences.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/Settings.h"
#include "core/rules/RuleLibraryImport.h"
#include "fuzz/FuzzInput.h"

#include <QDir>

using namespace tavrin;

// Property lists, XML or binary, through every reader that takes one: the parser, the keyed
// archive decoder, and the preferences, profile and rule-file readers.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes = fuzz::bytesOf(data, size);
    // The XML form is read again, but may be refused: libplist copies the bytes of a binary
    // string as they are, which need not be UTF-8.
    if (const Plist plist = parsePlist(bytes)) {
        fuzz::require(isSafeToParse(bytes));
        parsePlist(plistToXml(plist.get()));
    }

    if (const std::optional<QVariant> value = keyedUnarchive(bytes)) {
        const QByteArray again = keyedArchive(*value);
        fuzz::require(again.isEmpty() || keyedUnarchive(again).has_value());
    }

    const QString path = fuzz::scratchFile(bytes, "profile.tnprofile");
    Settings settings;
    loadProfileFile(settings, path);
    checkRuleFile(path);
    QFile::remove(path);

    qputenv("XDG_DATA_HOME", QFile::encodeName(QDir::temp().filePath(QStringLiteral("tavrin-fuzz-data"))));
    const QString preferences = preferencesFilePath();
    QDir().mkpath(getAppPath());
    QFile file(preferences);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size()) {
        file.close();
        loadPreferences();
    }
    return 0;
}
