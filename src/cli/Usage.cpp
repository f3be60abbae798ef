#include "cli/Usage.h"

#include "core/text/LocalizedStrings.h"

namespace tavrin::cli {

int reportUsageError(const char* command, const QString& message, QTextStream& err)
{
    const QString name = QStringLiteral("tavrin-cli %1").arg(QString::fromLatin1(command));
    err << name << ": " << message << '\n' << localized("CLITRYHELP").arg(name) << '\n';
    return kExitBadUsage;
}

} // namespace tavrin::cli
