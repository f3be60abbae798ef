#include "gui/log/DesktopUndoSheetPrompter.h"

#include "core/text/LocalizedStrings.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

namespace tavrin {

namespace {

QMessageBox::Icon iconOf(UndoSheetPrompter::Severity severity)
{
    switch (severity) {
    case UndoSheetPrompter::Severity::Information:
        return QMessageBox::Information;
    case UndoSheetPrompter::Severity::Warning:
        return QMessageBox::Warning;
    case UndoSheetPrompter::Severity::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

} // namespace

QString DesktopUndoSheetPrompter::chooseLogFile(QWidget* parent, const QString& folder)
{
    QFileDialog dialog(parent, localized("SELECTLOGFILETITLE").arg(localized("APPTITLE")), folder,
        localized("LOGFILEFILTER"));
    dialog.setObjectName(QStringLiteral("logFileChooser"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setOptions(QFileDialog::ReadOnly);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().constFirst();
}

bool DesktopUndoSheetPrompter::confirmDelete(QWidget* parent)
{
    QMessageBox box(QMessageBox::Question, localized("UNDOFILESFOLDERSTITLE"),
        localized("UNDOFILESFOLDERSDELETECONFIRM"), QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("UNDOFILESFOLDERSDELETECONFIRM"));
    QPushButton* yes = box.addButton(localized("YES"), QMessageBox::AcceptRole);
    QPushButton* no = box.addButton(localized("NO"), QMessageBox::RejectRole);
    box.setDefaultButton(yes);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

void DesktopUndoSheetPrompter::alert(
    QWidget* parent, Severity severity, const QString& title, const QString& message)
{
    QMessageBox box(iconOf(severity), title, message, QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("undoSheetAlert"));
    box.setDefaultButton(box.addButton(localized("OK"), QMessageBox::AcceptRole));
    box.exec();
}

bool DesktopUndoSheetPrompter::openWithDesktop(const QString& path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace tavrin
