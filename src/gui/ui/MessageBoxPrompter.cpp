#include "gui/ui/MessageBoxPrompter.h"

#include "core/text/LocalizedStrings.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

namespace tavrin {

namespace {

// The labels of a two-button question.
struct Answers {
    QString accept;
    QString reject;
};

// A two-button question; true when the first (default) button was chosen. Esc and the
// window's close button choose the second.
bool ask(QWidget* parent, const PromptText& text, QMessageBox::Icon icon, Answers answers)
{
    QMessageBox box(icon, text.title, text.message, QMessageBox::NoButton, parent);
    QPushButton* accept = box.addButton(answers.accept, QMessageBox::AcceptRole);
    QPushButton* reject = box.addButton(answers.reject, QMessageBox::RejectRole);
    box.setDefaultButton(accept);
    box.setEscapeButton(reject);
    box.exec();
    return box.clickedButton() == accept;
}

constexpr char kProfileExtension[] = ".tnprofile";

QString profileFilter()
{
    return localized("PROFILEFILEFILTER") + QStringLiteral(" (*.tnprofile)");
}

QString chooseLogFile(QWidget* parent, const ChooserQuestion& question)
{
    QFileDialog dialog(parent, question.title, question.folder, localized("LOGFILEFILTER"));
    dialog.setObjectName(QStringLiteral("logFileChooser"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setOptions(QFileDialog::ReadOnly);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

constexpr char kRuleExtension[] = ".tnrule";

QString ruleFilter()
{
    return localized("RULEFILEFILTER") + QStringLiteral(" (*.tnrule)");
}

// The dialog asks before replacing a file of the chosen name.
QString chooseFileToSave(QWidget* parent, const ChooserQuestion& question, const QString& filter, const char* extension)
{
    QString path = QFileDialog::getSaveFileName(parent, question.title, question.folder, filter);
    if (!path.isEmpty() && !path.endsWith(QLatin1String(extension), Qt::CaseInsensitive))
        path += QLatin1String(extension);
    return path;
}

QMessageBox::Icon iconOf(Prompter::Severity severity)
{
    switch (severity) {
    case Prompter::Severity::Information:
        return QMessageBox::Information;
    case Prompter::Severity::Warning:
        return QMessageBox::Warning;
    case Prompter::Severity::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

} // namespace

bool MessageBoxPrompter::confirmRename(QWidget* parent, const RenameQuestion& question)
{
    const QLocale locale;
    QString message = localized("ITEMRENAMINGMESSAGE");
    if (question.conflicts > 0)
        message += QStringLiteral("\n\n") + localized("CONFLICTSWARNING").arg(locale.toString(question.conflicts));
    // The button says what it does, as desktop guidelines ask: "Rename 1,005 items".
    const Answers answers { localized("RENAMEITEMSBUTTON").arg(locale.toString(question.items)),
        localized("CANCEL") };
    return ask(parent, { localized("ITEMRENAMINGTITLE"), message },
        question.conflicts > 0 ? QMessageBox::Warning : QMessageBox::Question, answers);
}

bool MessageBoxPrompter::continueWithoutLog(QWidget* parent)
{
    return ask(parent, { localized("ITEMRENAMINGTITLE"), localized("LOGCREATEFAILED") }, QMessageBox::Warning,
        { localized("CONTINUE"), localized("ABORT") });
}

void MessageBoxPrompter::alert(QWidget* parent, Severity severity, const PromptText& text)
{
    QMessageBox box(iconOf(severity), text.title, text.message, QMessageBox::NoButton, parent);
    box.setDefaultButton(box.addButton(localized("OK"), QMessageBox::AcceptRole));
    box.exec();
}

bool MessageBoxPrompter::askYesNo(QWidget* parent, const PromptText& text)
{
    return ask(parent, text, QMessageBox::Question, { localized("YES"), localized("NO") });
}

QString MessageBoxPrompter::choose(QWidget* parent, Choice choice, const ChooserQuestion& question)
{
    switch (choice) {
    case Choice::LogFile:
        return chooseLogFile(parent, question);
    case Choice::OpenProfile:
        return QFileDialog::getOpenFileName(parent, question.title, question.folder, profileFilter());
    case Choice::SaveProfile:
        return chooseFileToSave(parent, question, profileFilter(), kProfileExtension);
    case Choice::OpenRule:
        return QFileDialog::getOpenFileName(parent, question.title, question.folder, ruleFilter());
    case Choice::SaveRule:
        return chooseFileToSave(parent, question, ruleFilter(), kRuleExtension);
    case Choice::Folder:
        return QFileDialog::getExistingDirectory(parent, question.title, question.folder);
    case Choice::RenameFile:
        return QFileDialog::getOpenFileName(parent, question.title, question.folder, localized("TEXTFILEFILTER"));
    case Choice::ExportList:
        return QFileDialog::getSaveFileName(parent, question.title,
            QDir(question.folder).filePath(QStringLiteral("export.txt")), localized("TEXTFILEFILTER"));
    }
    return {};
}

bool MessageBoxPrompter::openWithDesktop(const QString& path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace tavrin
