#pragma once

// The shared fixtures of the GUI tests: a prompter the test answers, the ways a user reaches
// a widget, the controllers over a temporary folder, and the whole window.

#include "core/log/RenameLogEntry.h"
#include "core/log/RenameLogFormat.h"
#include "core/profiles/Tabs.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/MainWindow.h"
#include "gui/app/TavrinAppController.h"
#include "gui/list/FileTableModel.h"
#include "gui/ui/Prompter.h"
#include "support/TempTree.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSaveFile>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <unistd.h>

namespace tavrin::test {

using namespace Qt::StringLiterals;

inline constexpr int kWaitMilliseconds = 60000;

// Answers every question as the test scripts it, and remembers what was asked and shown.
// `onAlert` runs inside an alert, while its asker waits for it to be dismissed.
class ScriptedPrompter final : public Prompter {
public:
    struct Alert {
        Severity severity;
        QString title;
        QString message;
        QString text() const { return title + u'|' + message; }
    };

    bool confirmAnswer = true;
    bool continueAnswer = false;
    bool yesNoAnswer = true;
    bool openAnswer = true;
    QString chosenFile;
    std::function<void()> onAlert;

    int confirmations = 0;
    int logQuestions = 0;
    int lastConflicts = 0;
    bool logQuestionOnGuiThread = false;
    QList<Alert> alerts;
    QStringList questions; // "title|message"
    QList<Choice> choices;
    QStringList chooserQuestions; // "title|folder"
    QStringList opened;

    bool confirmRename(QWidget*, const RenameQuestion& question) override
    {
        ++confirmations;
        lastConflicts = question.conflicts;
        return confirmAnswer;
    }

    bool continueWithoutLog(QWidget*) override
    {
        ++logQuestions;
        logQuestionOnGuiThread = QThread::currentThread() == QApplication::instance()->thread();
        return continueAnswer;
    }

    void alert(QWidget*, Severity severity, const PromptText& text) override
    {
        alerts.append({ severity, text.title, text.message });
        if (onAlert)
            onAlert();
    }

    bool askYesNo(QWidget*, const PromptText& text) override
    {
        questions.append(text.title + u'|' + text.message);
        return yesNoAnswer;
    }

    QString choose(QWidget*, Choice choice, const ChooserQuestion& question) override
    {
        choices.append(choice);
        chooserQuestions.append(question.title + u'|' + question.folder);
        return chosenFile;
    }

    bool openWithDesktop(const QString& path) override
    {
        opened.append(path);
        return openAnswer;
    }

    QStringList alertTexts() const
    {
        QStringList texts;
        for (const Alert& alert : alerts)
            texts.append(alert.text());
        return texts;
    }
};

// The descendant of `parent` of that object name; the test fails when there is none.
template <typename T> T* part(const QObject* parent, QAnyStringView name)
{
    T* found = parent->findChild<T*>(name.toString());
    EXPECT_NE(found, nullptr) << name.toString().toStdString();
    return found;
}

// A wide button only answers a mouse click on its indicator and text; the space bar presses
// it wherever it is.
inline void press(QAbstractButton* button)
{
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
}

// Replaces a field's text by typing, as a user who selected it all would.
inline void typeInto(QWidget* field, const QString& text)
{
    auto* line = qobject_cast<QLineEdit*>(field);
    ASSERT_NE(line, nullptr);
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, text);
}

// Removes a file made with TempTree::rawFile: QTemporaryDir cannot remove a name that is
// not valid UTF-8 and would leave its folder behind.
struct RawFileRemover {
    QByteArray path;
    ~RawFileRemover() { ::unlink(path.constData()); }
};

// Waits for `signal` of `sender` after `trigger`; false when `trigger` answers false or the
// signal does not come in time.
template <typename Sender, typename Signal>
bool runAndWait(Sender* sender, Signal signal, const std::function<bool()>& trigger)
{
    QSignalSpy spy(sender, signal);
    return trigger() && spy.wait(kWaitMilliseconds);
}

// A finished log as apply writes it; answers its path.
inline QString writeLog(const QString& folder, const QString& fileName, const QList<RenameLogEntry>& entries,
    const QString& version = QStringLiteral(TAVRIN_VERSION))
{
    QDir().mkpath(folder);
    QSaveFile file(folder + u'/' + fileName);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(logxml::document(u"FILES"_s, entries, version));
    return file.commit() ? file.fileName() : QString();
}

// The controllers over a temporary folder, with logs written to its "logs" folder.
class ControllerFixture : public ::testing::Test {
protected:
    // Items stay in the order a test lists them; sorting on arrival is tested on its own.
    ControllerFixture()
    {
        controller.session().setLogFolderPath(tree.folder(u"logs"_s));
        controller.list().setSortOnArrival(false);
    }

    ListController& list() { return controller.list(); }
    RenameController& rename() { return controller.rename(); }
    Settings& settings() { return controller.settings(); }

    bool addAndWait(const QStringList& paths)
    {
        return runAndWait(&list(), &ListController::addFinished, [&] { return list().addFiles(paths); });
    }

    // Makes files of the given names in "files" and lists them, in that order.
    void listFiles(const QStringList& names)
    {
        QStringList paths;
        for (const QString& name : names)
            paths.append(tree.file(u"files/"_s + name, name.toUtf8()));
        ASSERT_TRUE(addAndWait(paths));
    }

    // Upper case for every name, through the settings the General tab edits.
    void chooseUpperCase()
    {
        settings().setSelectedTab(tabs::General);
        settings().chooseGeneralOption(0);
        settings().setGeneralFileNameCase(1);
    }

    bool previewAndWait()
    {
        return runAndWait(&rename(), &RenameController::previewFinished,
            [&] { return !rename().preview().has_value() && list().isExecuting(); });
    }

    bool applyAndWait(const RenameController::ContinueWithoutLogQuestion& question = nullptr)
    {
        return runAndWait(
            &rename(), &RenameController::applyFinished, [&] { return rename().apply(question); });
    }

    QStringList listedNames() const
    {
        QStringList names;
        for (const FileSystemItem& item : controller.list().shownItems())
            names.append(item.filenameWithExtension());
        return names;
    }

    QStringList newNames() const
    {
        QStringList names;
        for (const FileSystemItem& item : controller.list().shownItems())
            names.append(item.newFilename());
        return names;
    }

    TempTree tree;
    TavrinAppController controller;
};

// The window over the controllers, shown and active, its questions answered by the test.
class WindowFixture : public ControllerFixture {
protected:
    void SetUp() override
    {
        auto scripted = std::make_unique<ScriptedPrompter>();
        prompter = scripted.get();
        window.setPrompter(std::move(scripted));
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    template <typename T> T* child(const QString& name) const { return part<T>(&window, name); }

    QString newName(int row) const
    {
        return window.tableModel()->index(row, FileTableModel::NewNameColumn).data().toString();
    }

    QStringList shownNewNames() const
    {
        QStringList names;
        for (int row = 0; row < window.tableModel()->rowCount(); ++row)
            names.append(newName(row));
        return names;
    }

    // Preview and Rename as a user clicks them; waits for the end of the run they start.
    bool clickAndWait(const QString& button, void (RenameController::*finished)())
    {
        return runAndWait(&rename(), finished, [&] {
            QTest::mouseClick(child<QPushButton>(button), Qt::LeftButton);
            return true;
        });
    }
    bool clickPreviewAndWait()
    {
        return clickAndWait(u"previewActionButton"_s, &RenameController::previewFinished);
    }
    bool clickRenameAndWait()
    {
        return clickAndWait(u"applyActionButton"_s, &RenameController::applyFinished);
    }

    MainWindow window { &controller };
    ScriptedPrompter* prompter = nullptr;
};

} // namespace tavrin::test
