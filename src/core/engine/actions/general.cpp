#include "core/engine/actions/general.h"

#include "core/engine/OptionValues.h"
#include "core/engine/actions/workingname.h"
#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"
#include "core/text/NameParts.h"
#include "core/text/StringUtilities.h"

#include <QStringView>
#include <exception>
#include <string_view>

namespace tavrin {

namespace {

// Windows refuses these in a name; they are replaced in this order, so a replacement
// holding one of the later characters is itself replaced again.
constexpr char16_t windowsForbiddenCharacters[] = u"/\\:*?\"<>|";

// The file system keeps a slash the user typed as a colon.
QString typedForName(const QString& text)
{
    return replaceString(text, QStringLiteral("/"), QStringLiteral(":"), 1, -1, false);
}

QString capitalizedWord(QStringView word)
{
    const bool startsWithPair = word.size() >= 2 && word.at(0).isHighSurrogate() && word.at(1).isLowSurrogate();
    const qsizetype first = startsWithPair ? 2 : 1;
    return word.left(first).toString().toUpper() + word.mid(first).toString().toLower();
}

QString properCase(const QString& text)
{
    QString result;
    result.reserve(text.size());
    qsizetype start = 0;
    while (start < text.size()) {
        const bool isBlank = text.at(start).isSpace();
        qsizetype end = start;
        while (end < text.size() && text.at(end).isSpace() == isBlank)
            ++end;
        const QStringView run = QStringView(text).mid(start, end - start);
        if (isBlank)
            result += run;
        else
            result += capitalizedWord(run);
        start = end;
    }
    return result;
}

// Right-aligns the name in a field as wide as the mask, padded on the left with the mask's
// own characters; a longer name keeps only its last characters.
QString maskedName(const QString& name, const QString& mask)
{
    if (mask.isEmpty())
        return name;
    if (mask.size() < name.size())
        return name.right(mask.size());
    return mask.left(mask.size() - name.size()) + name;
}

QString windowsCompatibleName(const QString& name, const GeneralOptions& options)
{
    const QString& replacement = options.windowsReplacement;
    QString result = name;
    for (const char16_t forbidden : std::u16string_view(windowsForbiddenCharacters))
        result = replaceString(result, QString(QChar(forbidden)), replacement, 1, -1, false);
    return result;
}

QString withoutSpaces(const QString& name)
{
    QString result = name;
    result.remove(QLatin1Char(' '));
    return result;
}

// Option 3 adds the new extension to files only, but the old extension is dropped for
// every kind of record: a folder "x.y" becomes "x".
QString transformedName(const QString& name, const GeneralOptions& in, bool isFile)
{
    switch (in.option) {
    case generaloption::ConvertFilenameCase:
        return convertLetterCase(name, in.fileNameCase);
    case generaloption::ChangeExtension:
        return isFile ? name + QLatin1Char('.') + in.changeExtension : name;
    case generaloption::ReverseFilename:
        return reverseString(name);
    case generaloption::RemoveSpaces:
        return withoutSpaces(name);
    case generaloption::SwapBySeperator:
        return swapStringBySeperator(name, in.swapSeperator);
    case generaloption::SwapByPosition:
        return swapStringByPosition(name, in.swapPosition);
    case generaloption::RemoveAfterString:
        return removeString(name, in.removeAfterString, in.removeAfterString, 1, in.removeAfterOccurrence, true);
    case generaloption::RemoveFromString:
        return removeString(name, in.removeFromString, QString(), 1, in.removeFromOccurrence, true);
    case generaloption::FilenameMask:
        return maskedName(name, in.filenameMask);
    case generaloption::ConvertWindowsCompatible:
        return windowsCompatibleName(name, in);
    default:
        return name;
    }
}

bool dropsExtension(generaloption::GeneralOption option)
{
    return option == generaloption::RemoveExtension || option == generaloption::ChangeExtension;
}

QString proposedName(const FileSystemItem& item, const GeneralOptions& in)
{
    const NameParts parts = workingNameParts(item);
    QString name = transformedName(parts.name, in, item.itemType() == ItemType::File);
    const QString extension = in.option == generaloption::ConvertExtensionCase
        ? convertLetterCase(parts.extension, in.extensionCase)
        : parts.extension;
    if (extension.isEmpty() || dropsExtension(in.option))
        return name;
    return name + QLatin1Char('.') + extension;
}

}  // namespace

QString convertLetterCase(const QString& text, lettercase::LetterCase letterCase)
{
    switch (letterCase) {
    case lettercase::Upper:
        return text.toUpper();
    case lettercase::Lower:
        return text.toLower();
    case lettercase::Proper:
        return properCase(text);
    default:
        return text;
    }
}

GeneralOptions GeneralOptions::from(const OptionValues& values)
{
    GeneralOptions options;
    options.option = static_cast<generaloption::GeneralOption>(values.integer(Settings::generalOptionIndexKey));
    options.fileNameCase = static_cast<lettercase::LetterCase>(values.integer(Settings::generalFileNameCaseKey));
    options.extensionCase = static_cast<lettercase::LetterCase>(values.integer(Settings::generalExtensionCaseKey));
    options.changeExtension = values.text(Settings::generalChangeExtensionKey);
    options.swapSeperator = values.text(Settings::generalSwapSeperatorKey);
    options.swapPosition = values.integer(Settings::generalSwapPositionKey);
    options.removeAfterString = values.text(Settings::generalRemoveAfterStringKey);
    options.removeAfterOccurrence = values.integer(Settings::generalRemoveAfterStringOccurrenceKey);
    options.removeFromString = values.text(Settings::generalRemoveFromStringKey);
    options.removeFromOccurrence = values.integer(Settings::generalRemoveFromStringOccurrenceKey);
    options.windowsReplacement = values.text(Settings::generalConvertWindowsCompatibleStringKey);
    options.filenameMask = values.text(Settings::generalFilenameMaskKey);
    return options;
}

bool renameByGeneral(FileSystemItem& item, const GeneralOptions& options, QString& error)
{
    try {
        // The windows replacement stays as typed: a slash that ends up in the proposal
        // becomes a colon where every proposed name is checked.
        GeneralOptions in = options;
        in.changeExtension = typedForName(options.changeExtension);
        in.swapSeperator = typedForName(options.swapSeperator);
        in.removeAfterString = typedForName(options.removeAfterString);
        in.removeFromString = typedForName(options.removeFromString);
        in.filenameMask = typedForName(options.filenameMask);
        item.setObject(proposedName(item, in), QLatin1String(itemkeys::NewFilename));
    } catch (const std::exception& e) {
        error = localized("UNABLETOGENERATENEWFILENAMEERROR").arg(QString::fromLocal8Bit(e.what()));
    }
    return error.isEmpty();
}

}  // namespace tavrin
