#include "gui/log/HelpPage.h"

#include "core/text/LocalizedStrings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

using namespace tavrin;

namespace {

const QStringList kPages
    = { "livepreview.html", "main.html", "pasteditems.html", "preferences.html", "undo.html" };

QString readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QSet<QString> captures(const QString& text, const QRegularExpression& pattern)
{
    QSet<QString> found;
    for (const QRegularExpressionMatch& match : pattern.globalMatch(text))
        found.insert(match.captured(1));
    return found;
}

class HelpPageTest : public ::testing::Test {
protected:
    void TearDown() override { LocalizedStrings::setLanguage(QStringLiteral("en")); }
};

} // namespace

// A page missing from one language would silently show the English one: every language
// must hold the same pages, each declaring its language, with every link landing on a page
// and an id of the same language.
TEST_F(HelpPageTest, EveryLanguageHasEveryPageWithWorkingLinks)
{
    const QRegularExpression href(QStringLiteral("href=\"([^\"]*)\""));
    const QRegularExpression id(QStringLiteral("id=\"([^\"]+)\""));
    for (const QString& language : LocalizedStrings::languages()) {
        SCOPED_TRACE(language.toStdString());
        const QString folder = QStringLiteral(":/help/") + language + QLatin1Char('/');
        EXPECT_EQ(
            QDir(folder).entryList(QDir::Files).join(u' ').toStdString(), kPages.join(u' ').toStdString());
        for (const QString& page : kPages) {
            SCOPED_TRACE(page.toStdString());
            const QString html = readAll(folder + page);
            EXPECT_TRUE(html.contains(QStringLiteral("<html lang=\"%1\">").arg(language)));
            for (const QString& link : captures(html, href)) {
                const QString target = link.section(QLatin1Char('#'), 0, 0);
                const QString anchor = link.section(QLatin1Char('#'), 1);
                const QString targetHtml = target.isEmpty() ? html : readAll(folder + target);
                EXPECT_FALSE(targetHtml.isEmpty()) << "broken link " << link.toStdString();
                if (!anchor.isEmpty()) {
                    EXPECT_TRUE(captures(targetHtml, id).contains(anchor))
                        << "no anchor " << link.toStdString();
                }
            }
        }
    }
}

TEST_F(HelpPageTest, CopiesThePagesOfTheCurrentLanguageSideBySide)
{
    LocalizedStrings::setLanguage(QStringLiteral("de"));
    const QString copy = helpPageFile(QStringLiteral("main.html"));
    ASSERT_FALSE(copy.isEmpty());
    EXPECT_EQ(QFileInfo(copy).dir().dirName(), QStringLiteral("de"));
    EXPECT_EQ(readAll(copy), readAll(QStringLiteral(":/help/de/main.html")));
    // The browser follows the page's links to files next to the copy.
    for (const QString& page : kPages)
        EXPECT_EQ(readAll(QFileInfo(copy).dir().filePath(page)), readAll(":/help/de/" + page));

    LocalizedStrings::setLanguage(QStringLiteral("en"));
    EXPECT_EQ(
        readAll(helpPageFile(QStringLiteral("main.html"))), readAll(QStringLiteral(":/help/en/main.html")));
    EXPECT_EQ(readAll(copy), readAll(QStringLiteral(":/help/de/main.html")));

    EXPECT_EQ(helpPageFile(QStringLiteral("nosuchpage.html")), QString());
}
