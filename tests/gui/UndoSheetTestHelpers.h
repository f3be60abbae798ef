#pragma once

#include "core/log/RenameLogEntry.h"
#include "core/log/RenameLogFormat.h"
#include "gui/app/MainWindow.h"
#include "gui/log/UndoSheetController.h"
#include "gui/log/UndoSheetPrompter.h"

#include <QAction>
#include <QDir>
#include <QList>
#include <QSaveFile>
#include <QTest>
#include <functional>

namespace tavrin::test {

// Answers the undo sheet as a test scripts it, and remembers what the sheet asked and
// showed. `onAlert` runs inside an alert, while the sheet waits for it to be dismissed.
class ScriptedUndoPrompter final : public UndoSheetPrompter {
public:
    struct Alert {
        Severity severity;
        QString title;
        QString message;
    };

    QString chosenFile;
    bool deleteAnswer = true;
    bool openAnswer = true;
    std::function<void()> onAlert;

    QStringList chooserFolders;
    int deleteQuestions = 0;
    QList<Alert> alerts;
    QStringList opened;

    QString chooseLogFile(QWidget*, const QString& folder) override
    {
        chooserFolders.append(folder);
        return chosenFile;
    }

    bool confirmDelete(QWidget*) override
    {
        ++deleteQuestions;
        return deleteAnswer;
    }

    void alert(QWidget*, Severity severity, const QString& title, const QString& message) override
    {
        alerts.append({ severity, title, message });
        if (onAlert)
            onAlert();
    }

    bool openWithDesktop(const QString& path) override
    {
        opened.append(path);
        return openAnswer;
    }
};

// A finished log as apply writes it; answers its path.
inline QString writeLog(const QString& folder, const QString& fileName, const QList<RenameLogEntry>& entries,
    const QString& version = QStringLiteral(TAVRIN_VERSION))
{
    QDir().mkpath(folder);
    QSaveFile file(folder + QLatin1Char('/') + fileName);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(logxml::document(QStringLiteral("FILES"), entries, version));
    return file.commit() ? file.fileName() : QString();
}

// Opens the undo sheet the way a user does, with Ctrl+Z, and puts the scripted prompter in.
inline UndoSheetController* openUndoSheet(MainWindow& window, std::unique_ptr<ScriptedUndoPrompter> prompter)
{
    QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier);
    auto* sheet = window.findChild<UndoSheetController*>();
    if (sheet)
        sheet->setPrompter(std::move(prompter));
    return sheet;
}

} // namespace tavrin::test
