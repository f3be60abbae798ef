#pragma once

#include "support/TempTree.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>
#include <gtest/gtest.h>

namespace tavrin::test {

struct CliRun {
    int exitCode = -1;
    QString out;
    QString err;
};

// Runs the real tavrin-cli, as a script would (standard input is not a terminal).
inline CliRun runCli(const QStringList& arguments, const QString& workingFolder = QString(),
                     const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    if (!workingFolder.isEmpty())
        process.setWorkingDirectory(workingFolder);
    process.start(QString::fromUtf8(TAVRIN_CLI_PATH), arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

inline QJsonObject parseJson(const CliRun& run)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(run.out.toUtf8(), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << run.out.toStdString() << run.err.toStdString();
    return document.object();
}

// A command line written as one text, split at its spaces: args("apply --yes --json").
inline QStringList args(const char* line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// Each test has a support folder of its own, so the logs it finds are its own, and reads the
// program's messages in English.
class CliTest : public ::testing::Test {
protected:
    CliTest()
    {
        environment.insert(QStringLiteral("XDG_DATA_HOME"), tree.path(QStringLiteral("data")));
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
    }

    CliRun run(const QStringList& arguments) const { return runCli(arguments, QString(), environment); }
    QString logFolder() const { return tree.path(QStringLiteral("data/Palisade Soft/Tavrin3/Logs")); }
    QStringList logs() const { return QDir(logFolder()).entryList(QDir::Files); }

    TempTree tree;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};

}  // namespace tavrin::test
