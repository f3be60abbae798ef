#include "gui/log/HelpPage.h"

#include "GuiFixture.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

using namespace tavrin;
using namespace tavrin::test;

namespace {

const QStringList kPages
    = { "export.html", "livepreview.html", "main.html", "pasteditems.html", "preferences.html", "profiles.html",
          "rules.html", "undo.html" };

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
    void TearDown() override { LocalizedStrings::setLanguage(u"en"_s); }
};

// A page missing from one language would silently show the English one: every language
// must hold the same pages, each declaring its language, with every link landing on a page
// and an id of the same language.
TEST_F(HelpPageTest, EveryLanguageHasEveryPageWithWorkingLinks)
{
    const QRegularExpression href(u"href=\"([^\"]*)\""_s);
    const QRegularExpression id(u"id=\"([^\"]+)\""_s);
    for (const QString& language : LocalizedStrings::languages()) {
        const QString folder = u":/help/"_s + language + u'/';
        EXPECT_EQ(QDir(folder).entryList(QDir::Files), kPages) << language.toStdString();
        for (const QString& page : kPages) {
            SCOPED_TRACE((folder + page).toStdString());
            const QString html = readAll(folder + page);
            EXPECT_TRUE(html.contains(u"<html lang=\"%1\">"_s.arg(language)));
            for (const QString& link : captures(html, href)) {
                const QString target = link.section(u'#', 0, 0);
                const QString anchor = link.section(u'#', 1);
                const QString targetHtml = target.isEmpty() ? html : readAll(folder + target);
                EXPECT_FALSE(targetHtml.isEmpty()) << "broken link " << link.toStdString();
                EXPECT_TRUE(anchor.isEmpty() || captures(targetHtml, id).contains(anchor))
                    << "no anchor " << link.toStdString();
            }
        }
    }
}

// The browser follows the page's links to files next to the copy.
TEST_F(HelpPageTest, CopiesThePagesOfTheCurrentLanguageSideBySide)
{
    LocalizedStrings::setLanguage(u"de"_s);
    const QString copy = helpPageFile(u"main.html"_s);
    ASSERT_FALSE(copy.isEmpty());
    EXPECT_EQ(QFileInfo(copy).dir().dirName(), u"de"_s);
    for (const QString& page : kPages)
        EXPECT_EQ(readAll(QFileInfo(copy).dir().filePath(page)), readAll(":/help/de/" + page));

    LocalizedStrings::setLanguage(u"en"_s);
    EXPECT_EQ(readAll(helpPageFile(u"main.html"_s)), readAll(u":/help/en/main.html"_s));
    EXPECT_EQ(readAll(copy), readAll(u":/help/de/main.html"_s));
    EXPECT_EQ(helpPageFile(u"nosuchpage.html"_s), QString());
}

} // namespace
