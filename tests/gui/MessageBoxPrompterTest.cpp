#include "gui/ui/MessageBoxPrompter.h"

#include "core/text/LocalizedStrings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <vector>
#include <gtest/gtest.h>

using namespace tavrin;

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
        shown.title = box->windowTitle();
        shown.text = box->text();
        shown.icon = box->icon();
        for (QAbstractButton* button : box->buttons())
            shown.buttons.append(button->text());
        if (box->defaultButton())
            shown.defaultButton = box->defaultButton()->text();
        if (buttonText.isEmpty()) {
            QTest::keyClick(box, Qt::Key_Escape);
            return;
        }
        for (QAbstractButton* button : box->buttons()) {
            if (button->text() == buttonText) {
                button->click();
                return;
            }
        }
        ADD_FAILURE() << "no button " << buttonText.toStdString();
        box->reject();
    });
}

struct QuestionRow {
    const char* name;
    std::function<bool(MessageBoxPrompter&)> ask;
    QString message;
    QString accept;
    QString reject;
};

std::vector<QuestionRow> questionRows()
{
    return {
        // The rename button names the action and the count, in the locale's number format.
        { "rename", [](MessageBoxPrompter& p) { return p.confirmRename(nullptr, { 1005, 0 }); },
            localized("ITEMRENAMINGMESSAGE"), localized("RENAMEITEMSBUTTON").arg(QLocale().toString(1005)),
            localized("CANCEL") },
        { "rename with conflicts", [](MessageBoxPrompter& p) { return p.confirmRename(nullptr, { 3, 2 }); },
            localized("ITEMRENAMINGMESSAGE") + QStringLiteral("\n\n") + localized("CONFLICTSWARNING").arg(2),
            localized("RENAMEITEMSBUTTON").arg(3), localized("CANCEL") },
        { "log", [](MessageBoxPrompter& p) { return p.continueWithoutLog(nullptr); }, localized("LOGCREATEFAILED"),
            localized("CONTINUE"), localized("ABORT") },
        { "yes/no",
            [](MessageBoxPrompter& p) {
                return p.askYesNo(
                    nullptr, { localized("ITEMRENAMINGTITLE"), localized("UNDOFILESFOLDERSDELETECONFIRM") });
            },
            localized("UNDOFILESFOLDERSDELETECONFIRM"), localized("YES"), localized("NO") },
    };
}

TEST(MessageBoxPrompter, QuestionsUseTheTextsOfTheTablesAndDefaultToGoingOn)
{
    for (const QuestionRow& row : questionRows()) {
        for (const bool accept : { true, false }) {
            MessageBoxPrompter prompter;
            Shown shown;
            answerNextBox(accept ? row.accept : row.reject, shown);
            EXPECT_EQ(row.ask(prompter), accept) << row.name;
            EXPECT_EQ(shown.title, localized("ITEMRENAMINGTITLE")) << row.name;
            EXPECT_EQ(shown.text, row.message) << row.name;
            EXPECT_EQ(shown.buttons.size(), 2) << row.name;
            EXPECT_TRUE(shown.buttons.contains(row.accept)) << row.name;
            EXPECT_TRUE(shown.buttons.contains(row.reject)) << row.name;
            EXPECT_EQ(shown.defaultButton, row.accept) << row.name;
        }
    }
}

TEST(MessageBoxPrompter, EscapeNeverGoesOn)
{
    for (const QuestionRow& row : questionRows()) {
        MessageBoxPrompter prompter;
        Shown shown;
        answerNextBox(QString(), shown);
        EXPECT_FALSE(row.ask(prompter)) << row.name;
        EXPECT_FALSE(shown.buttons.isEmpty()) << row.name;
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
        prompter.alert(nullptr, severity,
            { QStringLiteral("Missing Input"), QStringLiteral("Please enter a valid value.") });
        EXPECT_EQ(shown.title, QStringLiteral("Missing Input"));
        EXPECT_EQ(shown.text, QStringLiteral("Please enter a valid value."));
        EXPECT_EQ(shown.icon, icon);
        EXPECT_EQ(shown.buttons, QStringList({ localized("OK") }));
    }
}

} // namespace
