#pragma once

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

}  // namespace tavrin::test
