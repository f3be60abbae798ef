#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantHash>
#include <initializer_list>

// One line per option: a Qt property named exactly as the option's key (the key of
// profiles, rule steps and "tavrin-cli --set"), its getter of the same name, a setter, a
// change signal "<key>Changed", a constant "<key>Key" holding the key, and the stored value.
// The setter is the one way a value changes, also for writes through the property system,
// so the change signals are emitted in one place.
#define TAVRIN_OPTION(Type, Arg, name, setter)                                                   \
    Q_PROPERTY(Type name READ name WRITE setter NOTIFY name##Changed)                            \
public:                                                                                          \
    static constexpr char name##Key[] = #name;                                                   \
    Arg name() const { return m_##name; }                                                        \
    void setter(Arg value)                                                                       \
    {                                                                                            \
        if (m_##name == value)                                                                   \
            return;                                                                              \
        m_##name = value;                                                                        \
        emit name##Changed();                                                                    \
        noteChange();                                                                            \
    }                                                                                            \
    Q_SIGNAL void name##Changed();                                                               \
                                                                                                 \
private:                                                                                         \
    Type m_##name {};

#define TAVRIN_BOOL_OPTION(name, setter) TAVRIN_OPTION(bool, bool, name, setter)
#define TAVRIN_INT_OPTION(name, setter) TAVRIN_OPTION(int, int, name, setter)
#define TAVRIN_TEXT_OPTION(name, setter) TAVRIN_OPTION(QString, const QString&, name, setter)
#define TAVRIN_LIST_OPTION(name, setter) TAVRIN_OPTION(QStringList, const QStringList&, name, setter)
#define TAVRIN_DATE_OPTION(name, setter) TAVRIN_OPTION(QDateTime, const QDateTime&, name, setter)

namespace tavrin {

// Every option of every tab, the files/folders mode and the selected tab. The properties
// are declared in the order of the settings record, and this meta-object is the only list
// of option keys: profiles, the record and the command line walk it instead of keeping
// lists of their own. Numbers typed in text fields are held as the typed text and turned
// into integers when an action runs (integerValue).
class Settings : public QObject {
    Q_OBJECT

    // Mode
    TAVRIN_INT_OPTION(selectedTab, setSelectedTab)
    TAVRIN_BOOL_OPTION(isFiles, setIsFiles)
    TAVRIN_BOOL_OPTION(isFolders, setIsFolders)
    TAVRIN_BOOL_OPTION(isIncludeSubFolders, setIsIncludeSubFolders)

    // Numeric and alphabetic sequence
    TAVRIN_BOOL_OPTION(isAlphaNumericIncrement, setIsAlphaNumericIncrement)
    TAVRIN_BOOL_OPTION(isAlphaNumericDecrement, setIsAlphaNumericDecrement)
    TAVRIN_BOOL_OPTION(isAlphaNumericNumeric, setIsAlphaNumericNumeric)
    TAVRIN_BOOL_OPTION(isAlphaNumericAlphabetic, setIsAlphaNumericAlphabetic)
    TAVRIN_BOOL_OPTION(isAlphaNumericPrefix, setIsAlphaNumericPrefix)
    TAVRIN_BOOL_OPTION(isAlphaNumericSufix, setIsAlphaNumericSufix)
    TAVRIN_BOOL_OPTION(isAlphaNumericSeperator, setIsAlphaNumericSeperator)
    TAVRIN_TEXT_OPTION(alphaNumericSeperator, setAlphaNumericSeperator)
    TAVRIN_TEXT_OPTION(alphaNumericPaddingMask, setAlphaNumericPaddingMask)
    TAVRIN_TEXT_OPTION(alphaNumericNumericStartWith, setAlphaNumericNumericStartWith)
    TAVRIN_TEXT_OPTION(alphaNumericAlphabeticStartWith, setAlphaNumericAlphabeticStartWith)
    TAVRIN_TEXT_OPTION(alphaNumericIncrementBy, setAlphaNumericIncrementBy)
    TAVRIN_TEXT_OPTION(alphaNumericDecrementBy, setAlphaNumericDecrementBy)
    TAVRIN_BOOL_OPTION(isAlphaNumericResetSequenceOnEachFolder, setIsAlphaNumericResetSequenceOnEachFolder)

    // Insert and delete
    TAVRIN_BOOL_OPTION(isInsertDeleteInsert, setIsInsertDeleteInsert)
    TAVRIN_TEXT_OPTION(insertDeleteInsert, setInsertDeleteInsert)
    TAVRIN_INT_OPTION(insertDeleteInsertOptionIndex, setInsertDeleteInsertOptionIndex)
    TAVRIN_BOOL_OPTION(isInsertDeleteInsertAtBeginning, setIsInsertDeleteInsertAtBeginning)
    TAVRIN_BOOL_OPTION(isInsertDeleteInsertAtEnd, setIsInsertDeleteInsertAtEnd)
    TAVRIN_BOOL_OPTION(isInsertDeleteInsertAtPosition, setIsInsertDeleteInsertAtPosition)
    TAVRIN_TEXT_OPTION(insertDeleteAtCharacterPositions, setInsertDeleteAtCharacterPositions)
    TAVRIN_INT_OPTION(insertDeleteInsertAtPostionDirection, setInsertDeleteInsertAtPostionDirection)
    TAVRIN_BOOL_OPTION(isInsertDeleteInsertAtBeforeText, setIsInsertDeleteInsertAtBeforeText)
    TAVRIN_TEXT_OPTION(insertDeleteInsertAtBeforeText, setInsertDeleteInsertAtBeforeText)
    TAVRIN_TEXT_OPTION(insertDeleteInsertAtBeforeOccurrence, setInsertDeleteInsertAtBeforeOccurrence)
    TAVRIN_BOOL_OPTION(isInsertDeleteInsertAtAfterText, setIsInsertDeleteInsertAtAfterText)
    TAVRIN_TEXT_OPTION(insertDeleteInsertAtAfterText, setInsertDeleteInsertAtAfterText)
    TAVRIN_TEXT_OPTION(insertDeleteInsertAtAfterOccurrence, setInsertDeleteInsertAtAfterOccurrence)
    TAVRIN_BOOL_OPTION(isInsertDeleteDelete, setIsInsertDeleteDelete)
    TAVRIN_BOOL_OPTION(isInsertDeleteDeleteFromBackWard, setIsInsertDeleteDeleteFromBackWard)
    TAVRIN_TEXT_OPTION(insertDeleteFromCharacterPosition, setInsertDeleteFromCharacterPosition)
    TAVRIN_TEXT_OPTION(insertDeleteNumberOfCharacters, setInsertDeleteNumberOfCharacters)

    // Replace and remove
    TAVRIN_BOOL_OPTION(isReplaceRemoveReplace, setIsReplaceRemoveReplace)
    TAVRIN_BOOL_OPTION(isReplaceRemoveRemove, setIsReplaceRemoveRemove)
    TAVRIN_BOOL_OPTION(isReplaceRemoveRemoveCharacters, setIsReplaceRemoveRemoveCharacters)
    TAVRIN_TEXT_OPTION(replaceRemoveThis, setReplaceRemoveThis)
    TAVRIN_TEXT_OPTION(replaceRemoveWith, setReplaceRemoveWith)
    TAVRIN_BOOL_OPTION(isReplaceRemoveCaseSensitive, setIsReplaceRemoveCaseSensitive)
    TAVRIN_BOOL_OPTION(isReplaceRemoveAllOccurrence, setIsReplaceRemoveAllOccurrence)
    TAVRIN_INT_OPTION(replaceRemovePositionDirection, setReplaceRemovePositionDirection)
    TAVRIN_TEXT_OPTION(replaceRemoveStartFromCharacter, setReplaceRemoveStartFromCharacter)
    TAVRIN_TEXT_OPTION(replaceRemoveStartOnOccurrence, setReplaceRemoveStartOnOccurrence)
    TAVRIN_TEXT_OPTION(replaceRemoveOccuranceCount, setReplaceRemoveOccuranceCount)

    // Prefix and suffix
    TAVRIN_BOOL_OPTION(isPrefixSuffixString, setIsPrefixSuffixString)
    TAVRIN_BOOL_OPTION(isPrefixSuffixDate, setIsPrefixSuffixDate)
    TAVRIN_BOOL_OPTION(isPrefixSuffixDatePrefix, setIsPrefixSuffixDatePrefix)
    TAVRIN_BOOL_OPTION(isPrefixSuffixDateSuffix, setIsPrefixSuffixDateSuffix)
    TAVRIN_INT_OPTION(prefixSuffixFileDateAttribute, setPrefixSuffixFileDateAttribute)
    TAVRIN_TEXT_OPTION(prefixSuffixPrefix, setPrefixSuffixPrefix)
    TAVRIN_TEXT_OPTION(prefixSuffixSuffix, setPrefixSuffixSuffix)
    TAVRIN_TEXT_OPTION(prefixSuffixDatePart1, setPrefixSuffixDatePart1)
    TAVRIN_TEXT_OPTION(prefixSuffixDateSeperator1, setPrefixSuffixDateSeperator1)
    TAVRIN_TEXT_OPTION(prefixSuffixDatePart2, setPrefixSuffixDatePart2)
    TAVRIN_TEXT_OPTION(prefixSuffixDateSeperator2, setPrefixSuffixDateSeperator2)
    TAVRIN_TEXT_OPTION(prefixSuffixDatePart3, setPrefixSuffixDatePart3)
    TAVRIN_TEXT_OPTION(prefixSuffixTimePart1, setPrefixSuffixTimePart1)
    TAVRIN_TEXT_OPTION(prefixSuffixTimeSeperator1, setPrefixSuffixTimeSeperator1)
    TAVRIN_TEXT_OPTION(prefixSuffixTimePart2, setPrefixSuffixTimePart2)
    TAVRIN_TEXT_OPTION(prefixSuffixTimeSeperator2, setPrefixSuffixTimeSeperator2)
    TAVRIN_TEXT_OPTION(prefixSuffixTimePart3, setPrefixSuffixTimePart3)
    TAVRIN_TEXT_OPTION(prefixSuffixDatePrefix, setPrefixSuffixDatePrefix)
    TAVRIN_TEXT_OPTION(prefixSuffixDateSuffix, setPrefixSuffixDateSuffix)

    // Date and time
    TAVRIN_INT_OPTION(dateTimeDateOptionIndex, setDateTimeDateOptionIndex)
    TAVRIN_BOOL_OPTION(hasDateTimeCustomDate, setHasDateTimeCustomDate)
    TAVRIN_DATE_OPTION(dateTimeCustomDate, setDateTimeCustomDate)
    TAVRIN_INT_OPTION(dateTimeOptionsIndex, setDateTimeOptionsIndex)
    TAVRIN_BOOL_OPTION(isDateTimeAtBeginning, setIsDateTimeAtBeginning)
    TAVRIN_BOOL_OPTION(isDateTimeAtEnd, setIsDateTimeAtEnd)
    TAVRIN_BOOL_OPTION(isDateTimeAtPosition, setIsDateTimeAtPosition)
    TAVRIN_BOOL_OPTION(isDateTimeAtBeforeText, setIsDateTimeAtBeforeText)
    TAVRIN_BOOL_OPTION(isDateTimeAtAfterText, setIsDateTimeAtAfterText)
    TAVRIN_TEXT_OPTION(dateTimeAtPositionNo, setDateTimeAtPositionNo)
    TAVRIN_INT_OPTION(dateTimeAtPositionDirection, setDateTimeAtPositionDirection)
    TAVRIN_TEXT_OPTION(dateTimeAtBeforeText, setDateTimeAtBeforeText)
    TAVRIN_TEXT_OPTION(dateTimeAtBeforeTextOccurrence, setDateTimeAtBeforeTextOccurrence)
    TAVRIN_TEXT_OPTION(dateTimeAtAfterText, setDateTimeAtAfterText)
    TAVRIN_TEXT_OPTION(dateTimeAtAfterTextOccurrence, setDateTimeAtAfterTextOccurrence)
    TAVRIN_BOOL_OPTION(hasDateFormat, setHasDateFormat)
    TAVRIN_BOOL_OPTION(hasTimeFormat, setHasTimeFormat)
    TAVRIN_TEXT_OPTION(dateTimeFormatDatePart1, setDateTimeFormatDatePart1)
    TAVRIN_TEXT_OPTION(dateTimeFormatDateSeperator1, setDateTimeFormatDateSeperator1)
    TAVRIN_TEXT_OPTION(dateTimeFormatDatePart2, setDateTimeFormatDatePart2)
    TAVRIN_TEXT_OPTION(dateTimeFormatDateSeperator2, setDateTimeFormatDateSeperator2)
    TAVRIN_TEXT_OPTION(dateTimeFormatDatePart3, setDateTimeFormatDatePart3)
    TAVRIN_TEXT_OPTION(dateTimeFormatTimePart1, setDateTimeFormatTimePart1)
    TAVRIN_TEXT_OPTION(dateTimeFormatTimeSeperator1, setDateTimeFormatTimeSeperator1)
    TAVRIN_TEXT_OPTION(dateTimeFormatTimePart2, setDateTimeFormatTimePart2)
    TAVRIN_TEXT_OPTION(dateTimeFormatTimeSeperator2, setDateTimeFormatTimeSeperator2)
    TAVRIN_TEXT_OPTION(dateTimeFormatTimePart3, setDateTimeFormatTimePart3)
    TAVRIN_BOOL_OPTION(isDateTimeColonReplace, setIsDateTimeColonReplace)
    TAVRIN_TEXT_OPTION(dateTimeColonReplace, setDateTimeColonReplace)
    TAVRIN_TEXT_OPTION(dateTimeSeparator, setDateTimeSeparator)
    TAVRIN_TEXT_OPTION(dateTimePrefix, setDateTimePrefix)
    TAVRIN_TEXT_OPTION(dateTimeSuffix, setDateTimeSuffix)

    // General
    TAVRIN_INT_OPTION(generalOptionIndex, setGeneralOptionIndex)
    TAVRIN_INT_OPTION(generalFileNameCase, setGeneralFileNameCase)
    TAVRIN_INT_OPTION(generalExtensionCase, setGeneralExtensionCase)
    TAVRIN_BOOL_OPTION(isGeneralConvertFilenameCase, setIsGeneralConvertFilenameCase)
    TAVRIN_BOOL_OPTION(isGeneralConvertExtension, setIsGeneralConvertExtension)
    TAVRIN_BOOL_OPTION(isGeneralRemoveExtension, setIsGeneralRemoveExtension)
    TAVRIN_BOOL_OPTION(isGeneralChangeExtension, setIsGeneralChangeExtension)
    TAVRIN_BOOL_OPTION(isGeneralReverseFileName, setIsGeneralReverseFileName)
    TAVRIN_BOOL_OPTION(isGeneralRemoveSpaces, setIsGeneralRemoveSpaces)
    TAVRIN_BOOL_OPTION(isGeneralSwapFromSeperator, setIsGeneralSwapFromSeperator)
    TAVRIN_BOOL_OPTION(isGeneralSwapFromPostion, setIsGeneralSwapFromPostion)
    TAVRIN_BOOL_OPTION(isGeneralRemoveAfterString, setIsGeneralRemoveAfterString)
    TAVRIN_BOOL_OPTION(isGeneralRemoveFromString, setIsGeneralRemoveFromString)
    TAVRIN_BOOL_OPTION(isGeneralConvertWindowsCompatible, setIsGeneralConvertWindowsCompatible)
    TAVRIN_BOOL_OPTION(isGeneralFilenameMask, setIsGeneralFilenameMask)
    TAVRIN_TEXT_OPTION(generalChangeExtension, setGeneralChangeExtension)
    TAVRIN_TEXT_OPTION(generalSwapSeperator, setGeneralSwapSeperator)
    TAVRIN_TEXT_OPTION(generalSwapPosition, setGeneralSwapPosition)
    TAVRIN_TEXT_OPTION(generalRemoveAfterString, setGeneralRemoveAfterString)
    TAVRIN_TEXT_OPTION(generalRemoveFromString, setGeneralRemoveFromString)
    TAVRIN_TEXT_OPTION(generalRemoveAfterStringOccurrence, setGeneralRemoveAfterStringOccurrence)
    TAVRIN_TEXT_OPTION(generalRemoveFromStringOccurrence, setGeneralRemoveFromStringOccurrence)
    TAVRIN_TEXT_OPTION(generalConvertWindowsCompatibleString, setGeneralConvertWindowsCompatibleString)
    TAVRIN_TEXT_OPTION(generalFilenameMask, setGeneralFilenameMask)

    // Photo metadata
    TAVRIN_BOOL_OPTION(isPhotoRenamingSeperator, setIsPhotoRenamingSeperator)
    TAVRIN_BOOL_OPTION(isPhotoRenamingColonReplace, setIsPhotoRenamingColonReplace)
    TAVRIN_TEXT_OPTION(photoRenamingSeperator, setPhotoRenamingSeperator)
    TAVRIN_TEXT_OPTION(photoRenamingColonReplace, setPhotoRenamingColonReplace)
    TAVRIN_TEXT_OPTION(photoRenamingMask, setPhotoRenamingMask)
    TAVRIN_TEXT_OPTION(photoDatePart1, setPhotoDatePart1)
    TAVRIN_TEXT_OPTION(photoDateSeperator1, setPhotoDateSeperator1)
    TAVRIN_TEXT_OPTION(photoDatePart2, setPhotoDatePart2)
    TAVRIN_TEXT_OPTION(photoDateSeperator2, setPhotoDateSeperator2)
    TAVRIN_TEXT_OPTION(photoDatePart3, setPhotoDatePart3)
    TAVRIN_TEXT_OPTION(photoTimePart1, setPhotoTimePart1)
    TAVRIN_TEXT_OPTION(photoTimeSeperator1, setPhotoTimeSeperator1)
    TAVRIN_TEXT_OPTION(photoTimePart2, setPhotoTimePart2)
    TAVRIN_TEXT_OPTION(photoTimeSeperator2, setPhotoTimeSeperator2)
    TAVRIN_TEXT_OPTION(photoTimePart3, setPhotoTimePart3)
    TAVRIN_TEXT_OPTION(photoPaddingMask, setPhotoPaddingMask)
    TAVRIN_LIST_OPTION(photoMetaDataList, setPhotoMetaDataList)
    TAVRIN_LIST_OPTION(photoExtensions, setPhotoExtensions)
    TAVRIN_BOOL_OPTION(isPhotoResetSequenceOnEachFolder, setIsPhotoResetSequenceOnEachFolder)

    // Audio tags
    TAVRIN_BOOL_OPTION(isID3RenamingSeperator, setIsID3RenamingSeperator)
    TAVRIN_BOOL_OPTION(isID3RenamingColonReplace, setIsID3RenamingColonReplace)
    TAVRIN_TEXT_OPTION(id3RenamingSeperator, setId3RenamingSeperator)
    TAVRIN_TEXT_OPTION(id3RenamingColonReplace, setId3RenamingColonReplace)
    TAVRIN_TEXT_OPTION(id3RenamingMask, setId3RenamingMask)
    TAVRIN_LIST_OPTION(id3RenamingTagsList, setId3RenamingTagsList)
    TAVRIN_LIST_OPTION(id3Extensions, setId3Extensions)

    // Path components
    TAVRIN_BOOL_OPTION(isPathComponentsAtBeginning, setIsPathComponentsAtBeginning)
    TAVRIN_BOOL_OPTION(isPathComponentsAtEnd, setIsPathComponentsAtEnd)
    TAVRIN_BOOL_OPTION(isPathComponentsAtPosition, setIsPathComponentsAtPosition)
    TAVRIN_BOOL_OPTION(isPathComponentsAtBeforeText, setIsPathComponentsAtBeforeText)
    TAVRIN_BOOL_OPTION(isPathComponentsAtAfterText, setIsPathComponentsAtAfterText)
    TAVRIN_INT_OPTION(pathComponentsLevelNo, setPathComponentsLevelNo)
    TAVRIN_INT_OPTION(pathComponentsOptionsIndex, setPathComponentsOptionsIndex)
    TAVRIN_TEXT_OPTION(pathComponentsAtPositionNo, setPathComponentsAtPositionNo)
    TAVRIN_INT_OPTION(pathComponentsAtPositionDirection, setPathComponentsAtPositionDirection)
    TAVRIN_TEXT_OPTION(pathComponentsAtBeforeText, setPathComponentsAtBeforeText)
    TAVRIN_TEXT_OPTION(pathComponentsAtBeforeOccurrence, setPathComponentsAtBeforeOccurrence)
    TAVRIN_TEXT_OPTION(pathComponentsAtAfterText, setPathComponentsAtAfterText)
    TAVRIN_TEXT_OPTION(pathComponentsAtAfterOccurrence, setPathComponentsAtAfterOccurrence)
    TAVRIN_TEXT_OPTION(pathComponentsSeparator, setPathComponentsSeparator)
    TAVRIN_TEXT_OPTION(pathComponentsPrefix, setPathComponentsPrefix)
    TAVRIN_TEXT_OPTION(pathComponentsSuffix, setPathComponentsSuffix)

    // Radio-group indexes of the panels, then the rename-from-file input
    TAVRIN_INT_OPTION(fileFolderIndex, setFileFolderIndex)
    TAVRIN_INT_OPTION(alphaNumericIncrementDecrementIndex, setAlphaNumericIncrementDecrementIndex)
    TAVRIN_INT_OPTION(alphaNumericNumericAlphabeticIndex, setAlphaNumericNumericAlphabeticIndex)
    TAVRIN_INT_OPTION(insertDeleteIndex, setInsertDeleteIndex)
    TAVRIN_INT_OPTION(removeReplaceIndex, setRemoveReplaceIndex)
    TAVRIN_INT_OPTION(prefixSuffixIndex, setPrefixSuffixIndex)
    TAVRIN_INT_OPTION(generalOptionsIndex, setGeneralOptionsIndex)
    TAVRIN_TEXT_OPTION(renameFile, setRenameFile)

    // Options this platform adds to the record, after every key the other platform knows
    TAVRIN_BOOL_OPTION(isReplaceRemoveRegularExpression, setIsReplaceRemoveRegularExpression)

public:
    // Holds back settingsChanged() while alive and sends it once at the end when anything
    // changed, so that applying a whole profile re-arms the live preview once, not once per option.
    // The per-option signals are not held back. Batches nest.
    class ChangeBatch {
    public:
        explicit ChangeBatch(Settings& settings);
        ~ChangeBatch();
        ChangeBatch(const ChangeBatch&) = delete;
        ChangeBatch& operator=(const ChangeBatch&) = delete;

    private:
        Settings& m_settings;
    };

    // Holds back settingsChanged() for the changes made while alive, so that they do not
    // re-arm the live preview: a few choices of the window leave the preview as it is until
    // another option changes. The per-option signals still go.
    class QuietChange {
    public:
        explicit QuietChange(Settings& settings);
        ~QuietChange();
        QuietChange(const QuietChange&) = delete;
        QuietChange& operator=(const QuietChange&) = delete;

    private:
        Settings& m_settings;
    };

    // Starts with the empty profile's values (resetToDefaults).
    explicit Settings(QObject* parent = nullptr);

    // The empty profile: what "New profile" and a start without saved settings give.
    // Sub-folders are included.
    void resetToDefaults();
    // The values the application starts from before any profile or saved settings are
    // applied: the empty profile without sub-folders.
    void resetToStartValues();

    // Every option key, in the order of the settings record.
    static QStringList optionKeys();
    static bool hasOption(const QString& key);

    // Sets an option from the text a profile, a rule step or the command line holds:
    // booleans and indexes as integers ("0", "1", "3"; "true" and "false" are taken too),
    // lists as comma-separated values, the date in ISO 8601, every other option as it is.
    // Refuses an unknown key or a malformed value with a message for the user and
    // leaves the option unchanged.
    bool setOptionFromString(const QString& key, const QString& value, QString* error = nullptr);
    // The reverse: "0"/"1" for booleans, the number for indexes, lists joined with ",",
    // the date in ISO 8601. A null string for an unknown key.
    QString optionToString(const QString& key) const;

    // An option as the actions take it. Text options go through the integer conversion:
    // optional leading blanks and sign, then digits; 0 when there are none ("12ab" is 12,
    // "-1" is -1, "x" is 0). Booleans read as 0 or 1. Unknown keys read as 0.
    int integerValue(const char* key) const;
    bool booleanValue(const char* key) const;
    QString textValue(const char* key) const;

    // The radio groups of the panels. Each sets the group's index and exactly the mirror
    // booleans that go with it, and answers false without changing anything when the
    // index is outside the group.
    bool chooseFilesOrFolders(int index);           // 0 files, 1 folders
    bool chooseIncrementOrDecrement(int index);     // 0 increment, 1 decrement
    bool chooseNumericOrAlphabetic(int index);      // 0 numeric, 1 alphabetic
    bool chooseInsertOrDelete(int index);           // 0 insert, 1 delete
    bool chooseInsertPosition(int index);           // 0 beginning ... 4 after text
    bool chooseReplaceRemoveMode(int index);        // 0 replace, 1 remove, 2 remove characters
    bool choosePrefixSuffixMode(int index);         // 0 string, 1 date
    bool chooseDateTimeSource(int index);           // 0 created, 1 modified, 2 custom date
    bool chooseDateTimePlacement(int index);        // 0 beginning ... 4 after text
    bool chooseGeneralOption(int index);            // 0 ... 11
    bool choosePathComponentsPlacement(int index);  // 0 beginning ... 4 after text

    // Rebuilds id3RenamingMask from id3RenamingTagsList: the tokens in order, with the
    // separator between them when the separator is on. Whoever changes the list, the
    // separator or its switch on a user's behalf calls it; the mask can still be set on its
    // own afterwards.
    void resetID3Mask();
    // The photo mask made of the chosen fields' tokens, joined by the separator when it is on.
    void resetPhotoMask();

    // The index options that drive a radio group (e.g. "generalOptionIndex",
    // "fileFolderIndex"); setting one by key through chooseRadioOption also sets its mirrors.
    static bool isRadioIndexKey(const QString& key);
    bool chooseRadioOption(const QString& key, int index);

signals:
    // Any option changed (after its own change signal).
    void settingsChanged();

private:
    void applyValues(const QVariantHash& values);
    void noteChange();
    bool setMirrors(int index, std::initializer_list<void (Settings::*)(bool)> mirrors);

    int m_batchDepth = 0;
    bool m_changedInBatch = false;
    int m_quietDepth = 0;
};

}  // namespace tavrin

#undef TAVRIN_OPTION
#undef TAVRIN_BOOL_OPTION
#undef TAVRIN_INT_OPTION
#undef TAVRIN_TEXT_OPTION
#undef TAVRIN_LIST_OPTION
#undef TAVRIN_DATE_OPTION
