#include "core/profiles/Settings.h"
#include "core/text/LocalizedStrings.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace tavrin;

// The shipped tables checked against each other and against the sources: every language
// holds the same keys with the same placeholders, and the keys are exactly those the code asks for.
namespace {

const QString kEnglish = QStringLiteral("en");

// Literals shaped like keys that name something else: the user-defaults keys of the window.
const QSet<QString> kNotKeys = {
    QStringLiteral("LASTPROFILE"),
    QStringLiteral("LASTRULE"),
    QStringLiteral("DEFAULTS"),
    QStringLiteral("LIVEPREVIEW"),
    QStringLiteral("LIVEPREVIEWALLFILES"),
    QStringLiteral("LIVEPREVIEWFILESLIMIT"),
    QStringLiteral("HIDDENCOLUMNS"),
    QStringLiteral("SORTONARRIVAL"),
    // The prefix of the option descriptions, whose keys are made from the option keys.
    QStringLiteral("OPTION_"),
    // The audio tag library's property names and the rule name of the audio action.
    QStringLiteral("ARTIST"),
    QStringLiteral("COMPOSER"),
    QStringLiteral("ID3"),
    // Unicode date patterns the date fields offer.
    QStringLiteral("MMM"), QStringLiteral("MMMM"), QStringLiteral("EEE"), QStringLiteral("EEEE"),
    // The groups photo metadata tokens are named after.
    QStringLiteral("EXIF"), QStringLiteral("FILEINFO"), QStringLiteral("IPTC"), QStringLiteral("SEQUENCES"),
};

// Texts that read the same in a language as in English.
const QHash<QString, QSet<QString>> kSameAsEnglish = {
    {QStringLiteral("fr"), {QStringLiteral("Tavrin"), QStringLiteral("OK"), QStringLiteral("N"), QStringLiteral("Type"),
        QStringLiteral("Extension"), QStringLiteral("Album"), QStringLiteral("Genre"), QStringLiteral("Options")}},
    {QStringLiteral("de"), {QStringLiteral("Tavrin"), QStringLiteral("OK"), QStringLiteral("N"), QStringLiteral("Name"),
        QStringLiteral("Text"), QStringLiteral("Text:"), QStringLiteral("%2: %1 s"), QStringLiteral("Album"), QStringLiteral("Genre"),
        QStringLiteral("Tags")}},
    {QStringLiteral("es"), {QStringLiteral("Tavrin"), QStringLiteral("N"), QStringLiteral("No"), QStringLiteral("General"),
        QStringLiteral("%2: %1 s")}},
};

QSet<QString> keySet(const QString& language)
{
    const QStringList keys = LocalizedStrings::keys(language);
    return {keys.cbegin(), keys.cend()};
}

QString textIn(const QString& language, const QString& key)
{
    LocalizedStrings::setLanguage(language);
    return LocalizedStrings::text(key);
}

QSet<QString> placeholders(const QString& text)
{
    static const QRegularExpression placeholder(QStringLiteral("%\\d+"));
    QSet<QString> found;
    for (const QRegularExpressionMatch& match : placeholder.globalMatch(text))
        found.insert(match.captured());
    return found;
}

// The contents of the string literals of a C++ source, comments left out. A character
// literal is skipped whole so that '"' does not open a string.
QStringList stringLiterals(QStringView source)
{
    QStringList literals;
    qsizetype i = 0;
    const auto skipQuoted = [&](QChar quote) {
        const qsizetype start = ++i;
        while (i < source.size() && source[i] != quote)
            i += source[i] == u'\\' ? 2 : 1;
        return source.mid(start, i++ - start).toString();
    };
    while (i < source.size()) {
        if (source.mid(i, 2) == u"//") {
            i = source.indexOf(u'\n', i);
            if (i < 0)
                break;
        } else if (source.mid(i, 2) == u"/*") {
            i = source.indexOf(u"*/", i + 2);
            if (i < 0)
                break;
            i += 2;
        } else if (source[i] == u'"') {
            literals.append(skipQuoted(u'"'));
        } else if (source[i] == u'\'') {
            skipQuoted(u'\'');
        } else {
            ++i;
        }
    }
    return literals;
}

// Every string literal under src/, with the files it appears in.
const QMultiHash<QString, QString>& literalsInSources()
{
    static const QMultiHash<QString, QString> found = [] {
        const QString root = QStringLiteral(TAVRIN_SOURCE_DIR "/src");
        QMultiHash<QString, QString> literals;
        QDirIterator it(root, {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
            QDirIterator::Subdirectories);
        while (it.hasNext()) {
            QFile file(it.next());
            if (!file.open(QIODevice::ReadOnly))
                ADD_FAILURE() << "cannot read " << qPrintable(file.fileName());
            for (const QString& literal : stringLiterals(QString::fromUtf8(file.readAll())))
                literals.insert(literal, file.fileName().mid(root.size() + 1));
        }
        return literals;
    }();
    return found;
}

class StringTablesTest : public ::testing::Test {
protected:
    void TearDown() override { LocalizedStrings::setLanguage(kEnglish); }
};

TEST(StringLiteralsTest, FindsLiteralsOutsideCommentsAndCharacterLiterals)
{
    const QString source = QStringLiteral(
        "f(\"ONE\", '\"', \"TWO \\\"x\\\"\"); // \"NOT\"\n/* \"NOR\" */ g(\"http://x\", \"\");");
    EXPECT_EQ(stringLiterals(source),
        QStringList({QStringLiteral("ONE"), QStringLiteral("TWO \\\"x\\\""), QStringLiteral("http://x"), QString()}));
}

TEST_F(StringTablesTest, EveryLanguageHoldsTheKeysOfEnglish)
{
    const QSet<QString> english = keySet(kEnglish);
    ASSERT_FALSE(english.isEmpty());
    QStringList offenders;
    for (const QString& language : LocalizedStrings::languages()) {
        const QSet<QString> keys = keySet(language);
        for (const QString& key : english - keys)
            offenders.append(language + QStringLiteral(": missing ") + key);
        for (const QString& key : keys - english)
            offenders.append(language + QStringLiteral(": not in English ") + key);
    }
    offenders.sort();
    EXPECT_TRUE(offenders.isEmpty()) << qPrintable(offenders.join(u'\n'));
}

TEST_F(StringTablesTest, EveryKeyTheCodeUsesHasAnEnglishText)
{
    const QSet<QString> english = keySet(kEnglish);
    static const QRegularExpression keyShape(QStringLiteral("^[A-Z][A-Z0-9_]{2,}$"));
    QStringList offenders;
    const QMultiHash<QString, QString>& literals = literalsInSources();
    for (const QString& literal : literals.uniqueKeys()) {
        if (keyShape.match(literal).hasMatch() && !english.contains(literal) && !kNotKeys.contains(literal))
            offenders.append(literal + QStringLiteral(" in ") + QStringList(literals.values(literal)).join(u' '));
    }
    for (const QString& literal : kNotKeys) {
        if (english.contains(literal) || !literals.contains(literal))
            offenders.append(literal + QStringLiteral(" is allowed as a non-key but is a key or unused"));
    }
    offenders.sort();
    EXPECT_TRUE(offenders.isEmpty()) << qPrintable(offenders.join(u'\n'));
}

// Short keys such as "OK" count too, though the scan for unknown keys leaves them out. An
// option's description is used by the option key it is made from, and every option has one.
TEST_F(StringTablesTest, EveryEnglishKeyIsUsedByTheCode)
{
    const QString describes = QStringLiteral("OPTION_");
    const QStringList options = Settings::optionKeys();
    QStringList unused;
    for (const QString& key : keySet(kEnglish)) {
        const bool describesAnOption = key.startsWith(describes) && options.contains(key.mid(describes.size()));
        if (!literalsInSources().contains(key) && !describesAnOption)
            unused.append(key);
    }
    for (const QString& option : options) {
        if (!keySet(kEnglish).contains(describes + option))
            unused.append(QStringLiteral("no description of ") + option);
    }
    unused.sort();
    EXPECT_TRUE(unused.isEmpty()) << qPrintable(unused.join(u'\n'));
}

TEST_F(StringTablesTest, TranslationsKeepThePlaceholdersAndAreTranslated)
{
    QStringList offenders;
    const QSet<QString> english = keySet(kEnglish);
    for (const QString& language : LocalizedStrings::languages()) {
        if (language == kEnglish)
            continue;
        const QSet<QString> sameAsEnglish = kSameAsEnglish.value(language);
        for (const QString& key : keySet(language) & english) {
            const QString original = textIn(kEnglish, key);
            const QString translation = textIn(language, key);
            if (placeholders(translation) != placeholders(original))
                offenders.append(language + QStringLiteral(": placeholders differ in ") + key);
            if (translation == original && !sameAsEnglish.contains(original))
                offenders.append(language + QStringLiteral(": not translated ") + key);
        }
    }
    offenders.sort();
    EXPECT_TRUE(offenders.isEmpty()) << qPrintable(offenders.join(u'\n'));
}

}  // namespace
