#include "cli/ManPage.h"

#include "core/text/LocalizedStrings.h"

#include <QStringList>

namespace tavrin::cli {

namespace {

// Text that roff shows as it is: backslashes escaped, no line read as a request, dashes kept.
QString roffText(const QString& text)
{
    QStringList lines;
    for (QString line : text.split(QLatin1Char('\n'))) {
        line.replace(QLatin1Char('\\'), QLatin1String("\\e"));
        line.replace(QLatin1Char('-'), QLatin1String("\\-"));
        if (line.startsWith(QLatin1Char('.')) || line.startsWith(QLatin1Char('\'')))
            line.prepend(QLatin1String("\\&"));
        lines.append(line);
    }
    return lines.join(QLatin1Char('\n'));
}

// A help text as it prints: a block of lines that keeps its layout.
QString preformatted(const QString& text)
{
    return QStringLiteral(".nf\n%1\n.fi\n").arg(roffText(text.trimmed()));
}

QString header(const QString& program, const char* summaryKey)
{
    return QStringLiteral(".TH %1 1 \"\" \"Tavrin %2\" \"User Commands\"\n.SH NAME\n%3 \\- %4\n")
        .arg(program.toUpper(), QStringLiteral(TAVRIN_VERSION), roffText(program), roffText(localized(summaryKey)));
}

QString cliPage()
{
    QString page = header(QStringLiteral("tavrin-cli"), "CLIMANSUMMARY");
    page += QStringLiteral(".SH SYNOPSIS\n") + preformatted(localized("CLIMANSYNOPSIS"));
    page += QStringLiteral(".SH DESCRIPTION\n") + roffText(localized("CLIMANDESCRIPTION")) + QLatin1Char('\n');
    const char* commandUsages[] = {"CLILISTUSAGE", "CLIPREVIEWUSAGE", "CLIAPPLYUSAGE", "CLILOGSUSAGE",
                                   "CLIUNDOUSAGE", "CLIOPTIONSUSAGE", "CLIEXPORTUSAGE", "CLIIMPORTUSAGE",
                                   "CLIRULEUSAGE", "CLIPROFILEUSAGE"};
    page += QStringLiteral(".SH COMMANDS\n");
    for (const char* usage : commandUsages)
        page += preformatted(localized(usage)) + QStringLiteral(".PP\n");
    page += QStringLiteral(".SH EXAMPLES\n") + preformatted(localized("CLIMANEXAMPLES"));
    page += QStringLiteral(".SH SEE ALSO\n\\fBtavrin\\fR(1)\n");
    return page;
}

QString windowPage()
{
    QString page = header(QStringLiteral("tavrin"), "CLIMANTAVRINSUMMARY");
    page += QStringLiteral(".SH SYNOPSIS\n.B tavrin\n[\\fIPATH\\fR]...\n");
    page += QStringLiteral(".SH DESCRIPTION\n") + preformatted(localized("CLIMANTAVRINDESCRIPTION"));
    page += QStringLiteral(".SH SEE ALSO\n\\fBtavrin\\-cli\\fR(1)\n");
    return page;
}

}  // namespace

QString manPage(const QString& program)
{
    if (program == QLatin1String("tavrin-cli"))
        return cliPage();
    if (program == QLatin1String("tavrin"))
        return windowPage();
    return QString();
}

}  // namespace tavrin::cli
