#pragma once

#include "gui/app/TavrinAppController.h"
#include "gui/ui/Prompter.h"

#include <QApplication>
#include <QByteArray>
#include <QSignalSpy>
#include <QStringList>
#include <QThread>
#include <unistd.h>

namespace tavrin::test {

// Starts an add and waits for its worker to finish; false when it did not start or did
// not finish in time.
inline bool addAndWait(TavrinAppController& controller, const QStringList& paths)
{
    QSignalSpy finished(&controller, &TavrinAppController::addFinished);
    if (!controller.addFiles(paths))
        return false;
    return finished.wait(20000);
}

// Removes a file made with TempTree::rawFile: QTemporaryDir cannot remove a name that is
// not valid UTF-8 and would leave its folder behind.
struct RawFileRemover {
    QByteArray path;
    ~RawFileRemover() { ::unlink(path.constData()); }
};

// The names of the listed items, in table order.
inline QStringList listedNames(const TavrinAppController& controller)
{
    QStringList names;
    for (const FileSystemItem& item : controller.shownItems())
        names.append(item.filenameWithExtension());
    return names;
}

// Answers the window's questions as a test scripts them, and remembers what was asked and
// on which thread.
class ScriptedPrompter final : public Prompter {
public:
    bool confirmAnswer = true;
    bool continueAnswer = false;
    bool yesNoAnswer = true;

    int confirmations = 0;
    int logQuestions = 0;
    bool logQuestionOnGuiThread = false;
    QStringList warnings;  // "title|message"
    QStringList notices;   // "title|message"
    QStringList questions; // "title|message"

    bool confirmRename(QWidget*) override
    {
        ++confirmations;
        return confirmAnswer;
    }

    bool continueWithoutLog(QWidget*) override
    {
        ++logQuestions;
        logQuestionOnGuiThread = QThread::currentThread() == QApplication::instance()->thread();
        return continueAnswer;
    }

    void warn(QWidget*, const QString& title, const QString& message) override
    {
        warnings.append(title + QLatin1Char('|') + message);
    }

    void inform(QWidget*, const QString& title, const QString& message) override
    {
        notices.append(title + QLatin1Char('|') + message);
    }

    bool askYesNo(QWidget*, const QString& title, const QString& message) override
    {
        questions.append(title + QLatin1Char('|') + message);
        return yesNoAnswer;
    }
};

}  // namespace tavrin::test
