#include "gui/ui/MessageBoxPrompter.h"

#include "core/text/LocalizedStrings.h"

#include <QMessageBox>
#include <QPushButton>

namespace tavrin {

namespace {

// A two-button question; true when the first (default) button was chosen. Esc and the
// window's close button choose the second.
bool ask(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& message,
    const char* acceptKey, const char* rejectKey)
{
    QMessageBox box(icon, title, message, QMessageBox::NoButton, parent);
    QPushButton* accept = box.addButton(localized(acceptKey), QMessageBox::AcceptRole);
    QPushButton* reject = box.addButton(localized(rejectKey), QMessageBox::RejectRole);
    box.setDefaultButton(accept);
    box.setEscapeButton(reject);
    box.exec();
    return box.clickedButton() == accept;
}

void alert(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& message)
{
    QMessageBox box(icon, title, message, QMessageBox::NoButton, parent);
    box.setDefaultButton(box.addButton(localized("OK"), QMessageBox::AcceptRole));
    box.exec();
}

} // namespace

bool MessageBoxPrompter::confirmRename(QWidget* parent)
{
    return ask(parent, QMessageBox::Question, localized("ITEMRENAMINGTITLE"), localized("ITEMRENAMINGMESSAGE"),
        "YES", "NO");
}

bool MessageBoxPrompter::continueWithoutLog(QWidget* parent)
{
    return ask(parent, QMessageBox::Warning, localized("ITEMRENAMINGTITLE"), localized("LOGCREATEFAILED"),
        "CONTINUE", "ABORT");
}

void MessageBoxPrompter::warn(QWidget* parent, const QString& title, const QString& message)
{
    alert(parent, QMessageBox::Warning, title, message);
}

void MessageBoxPrompter::inform(QWidget* parent, const QString& title, const QString& message)
{
    alert(parent, QMessageBox::Information, title, message);
}

bool MessageBoxPrompter::askYesNo(QWidget* parent, const QString& title, const QString& message)
{
    return ask(parent, QMessageBox::Question, title, message, "YES", "NO");
}

} // namespace tavrin
