#include "core/engine/actions/audiotags.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/workingname.h"
#include "core/metadata/AudioTagReader.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"

#include <QChar>
#include <array>
#include <exception>
#include <stdexcept>

namespace tavrin {

namespace {

// The tokens in the order of their button tags and of their substitution in a mask.
constexpr std::array<const char*, 8> kTokens = { id3token::Artist, id3token::Year, id3token::Genre,
    id3token::Title, id3token::Album, id3token::Comments, id3token::TrackNumber, id3token::Composer };

struct TokenValue {
    const char* token;
    QString value;
};
using TokenValues = std::array<TokenValue, kTokens.size()>;

ID3Options storedTexts(const ID3Options& options)
{
    ID3Options stored = options;
    stored.mask = storedName(options.mask);
    stored.separator = storedName(options.separator);
    stored.colonReplace = storedName(options.colonReplace);
    return stored;
}

// A tag's text as a name holds it. Colons are replaced before a "/" of the tag becomes the
// ":" that shows as "/", so "AC/DC" still reads "AC/DC".
QString nameText(const QString& value, const ID3Options& options)
{
    QString text = value.trimmed();
    if (options.isColonReplace)
        text.replace(QLatin1Char(':'), options.colonReplace);
    return storedName(text);
}

QString numberText(const std::optional<int>& number)
{
    return number ? QString::number(*number) : QString();
}

// Code points that are no characters at all (unassigned, or the non-characters) at
// either end of a comment come off, as blanks do.
QString trimmedOfNonCharacters(const QString& text)
{
    const QList<uint> points = text.toUcs4();
    const auto isNoCharacter
        = [](uint point) { return QChar::category(char32_t(point)) == QChar::Other_NotAssigned; };
    qsizetype first = 0;
    qsizetype end = points.size();
    while (first < end && isNoCharacter(points[first]))
        ++first;
    while (end > first && isNoCharacter(points[end - 1]))
        --end;
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(points.constData()) + first, end - first);
}

// Each pair of blanks is dropped, so two blanks vanish and three leave one.
QString commentText(const QString& comment, const ID3Options& options)
{
    QString text = trimmedOfNonCharacters(comment.trimmed());
    text.replace(QLatin1String("  "), QString());
    return nameText(text, options);
}

TokenValues tokenValues(const AudioTags& tags, const ID3Options& options)
{
    return { {
        { id3token::Artist, nameText(tags.authors.join(QLatin1Char(',')), options) },
        { id3token::Year, numberText(tags.recordingYear) },
        { id3token::Genre, nameText(tags.musicalGenre, options) },
        { id3token::Title, nameText(tags.title, options) },
        { id3token::Album, nameText(tags.album, options) },
        { id3token::Comments, commentText(tags.comment, options) },
        { id3token::TrackNumber, numberText(tags.audioTrackNumber) },
        { id3token::Composer, nameText(tags.composer, options) },
    } };
}

const QString& valueOf(const TokenValues& values, const QString& token)
{
    for (const TokenValue& entry : values) {
        if (token == QLatin1String(entry.token))
            return entry.value;
    }
    throw std::invalid_argument("Unknown audio tag token " + token.toStdString());
}

QString joinedValues(const TokenValues& values, const ID3Options& options)
{
    QString name;
    for (const QString& token : options.tags) {
        const QString& value = valueOf(values, token);
        if (!name.isEmpty() && !value.isEmpty())
            name += options.separator;
        name += value;
    }
    return name;
}

QString filledMask(const TokenValues& values, const ID3Options& options)
{
    QString name = options.mask;
    for (const TokenValue& entry : values)
        name.replace(QLatin1String(entry.token), entry.value, Qt::CaseSensitive);
    return name;
}

bool isAllowed(const QString& extension, const ID3Options& options)
{
    return options.allowedExtensions.contains(QLatin1Char('.') + extension.toUpper());
}

// The tagged name of an allowed file, empty when the tags give nothing.
QString taggedName(const QString& path, const ID3Options& options)
{
    const TokenValues values = tokenValues(AudioTagReader::read(path), options);
    if (options.isSeparator && !options.separator.isEmpty())
        return joinedValues(values, options);
    return filledMask(values, options);
}

} // namespace

QString id3TokenForTag(int tag)
{
    if (tag < 1 || tag > int(kTokens.size()))
        return {};
    return QLatin1String(kTokens[tag - 1]);
}

ID3Options ID3Options::from(const OptionValues& values)
{
    ID3Options options;
    options.mask = values.text(Settings::id3RenamingMaskKey);
    options.isSeparator = values.boolean(Settings::isID3RenamingSeperatorKey);
    options.separator = values.text(Settings::id3RenamingSeperatorKey);
    options.isColonReplace = values.boolean(Settings::isID3RenamingColonReplaceKey);
    options.colonReplace = values.text(Settings::id3RenamingColonReplaceKey);
    options.tags = values.list(Settings::id3RenamingTagsListKey);
    options.allowedExtensions = values.list(Settings::id3ExtensionsKey);
    return options;
}

bool renameByID3Tags(FileSystemItem& item, const ID3Options& options, QString& error)
{
    try {
        const ID3Options stored = storedTexts(options);
        const NameParts parts = workingNameParts(item);
        QString name;
        if (!stored.mask.isEmpty() && isAllowed(parts.extension, stored))
            name = taggedName(item.fullPath(), stored);
        if (name.isEmpty())
            name = parts.name;
        item.setObject(withExtension(name, parts.extension), QLatin1String(itemkeys::NewFilename));
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromUtf8(e.what()));
    }
    return error.isEmpty();
}

} // namespace tavrin
