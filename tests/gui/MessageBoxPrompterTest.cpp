#include "gui/ui/MessageBoxPrompter.h"

#include "GuiFixture.h"

#include <QMessageBox>

using namespace tavrin;
using namespace tavrin::test;

namespace {

// What a message box showed before the test answered it.
struct Shown {
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QStringList buttons;
    QString defaultButton;
};

// Waits (in the running dialog's own event loop) for the next message box, notes what it
// shows and answers it by clicking the button with the given text, or with Esc when the
// text is empty.
void answerNextBox(const QString& buttonText, Shown& shown)
{
    QTimer::singleShot(0, [buttonText, &shown] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) {
            answerNextBox(buttonText, shown);
            return;
        }
        shown = { box->windowTitle(), box->text(), box->icon(), {},
            box->defaultButton() ? box->defaultButton()->text() : QString() };
        QAbstractButton* answer = nullptr;
        for (QAbstractButton* button : box->buttons()) {
            shown.buttons.append(button->text());
            answer = button->text() == buttonText ? button : answer;
        }
        if (answer)
            answer->click();
        else
            QTest::keyClick(box, Qt::Key_Escape);
    });
}

struct QuestionRow {
    const char* name;
    std::function<bool(MessageBoxPrompter&)> ask;
    QString message;
    QString accept;
    QString reject;
};

// Each question is answered yes, no, and with Escape, which never goes on.
TEST(MessageBoxPrompter, QuestionsUseTheTextsOfTheTablesAndDefaultToGoingOn)
{
    const PromptText yesNo { localized("ITEMRENAMINGTITLE"), localized("UNDOFILESFOLDERSDELETECONFIRM") };
    const QuestionRow rows[] = {
        // The rename button names the action and the count, in the locale's number format.
        { "rename",
            [](MessageBoxPrompter& p) {
                return p.confirmRename(nullptr, { 1005, 0 });
            },
            localized("ITEMRENAMINGMESSAGE"), localized("RENAMEITEMSBUTTON").arg(QLocale().toString(1005)),
            localized("CANCEL") },
        { "rename with conflicts",
            [](MessageBoxPrompter& p) {
                return p.confirmRename(nullptr, { 3, 2 });
            },
            localized("ITEMRENAMINGMESSAGE") + u"\n\n"_s + localized("CONFLICTSWARNING").arg(2),
            localized("RENAMEITEMSBUTTON").arg(3), localized("CANCEL") },
        { "log", [](MessageBoxPrompter& p) { return p.continueWithoutLog(nullptr); },
            localized("LOGCREATEFAILED"), localized("CONTINUE"), localized("ABORT") },
        { "yes/no", [&](MessageBoxPrompter& p) { return p.askYesNo(nullptr, yesNo); }, yesNo.message,
            localized("YES"), localized("NO") },
    };
    for (const QuestionRow& row : rows) {
        for (const QString& answer : { row.accept, row.reject, QString() }) {
            MessageBoxPrompter prompter;
            Shown shown;
            answerNextBox(answer, shown);
            EXPECT_EQ(row.ask(prompter), answer == row.accept) << row.name;
            EXPECT_EQ(shown.title, localized("ITEMRENAMINGTITLE")) << row.name;
            EXPECT_EQ(shown.text, row.message) << row.name;
            EXPECT_EQ(shown.buttons.size(), 2) << row.name;
            EXPECT_TRUE(shown.buttons.contains(row.accept) && shown.buttons.contains(row.reject)) << row.name;
            EXPECT_EQ(shown.defaultButton, row.accept) << row.name;
        }
    }
}

TEST(MessageBoxPrompter, AnAlertHasOneOkButtonAndTheIconOfItsSeverity)
{
    const std::pair<Prompter::Severity, QMessageBox::Icon> rows[] = {
        { Prompter::Severity::Information, QMessageBox::Information },
        { Prompter::Severity::Warning, QMessageBox::Warning },
        { Prompter::Severity::Critical, QMessageBox::Critical },
    };
    for (const auto& [severity, icon] : rows) {
        MessageBoxPrompter prompter;
        Shown shown;
        answerNextBox(localized("OK"), shown);
        prompter.alert(nullptr, severity, { u"Missing Input"_s, u"Please enter a valid value."_s });
        EXPECT_EQ(shown.title, u"Missing Input"_s);
        EXPECT_EQ(shown.text, u"Please enter a valid value."_s);
        EXPECT_EQ(shown.icon, icon);
        EXPECT_EQ(shown.buttons, QStringList({ localized("OK") }));
    }
}

} // namespace
