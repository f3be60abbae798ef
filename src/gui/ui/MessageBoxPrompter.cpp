#include "gui/ui/MessageBoxPrompter.h"

#include "core/text/LocalizedStrings.h"

#include <QMessageBox>
#include <QPushButton>

namespace tavrin {

namespace {

// A two-button question; true when the first (default) button was chosen. Esc and the
// window's close button choose the second.
bool ask(QWidget* parent, QMessageBox::Icon icon, const char* titleKey, const char* messageKey,
    const char* acceptKey, const char* rejectKey)
{
    QMessageBox box(icon, localized(titleKey), localized(messageKey), QMessageBox::NoButton, parent);
    box.setObjectName(QString::fromLatin1(messageKey));
    QPushButton* accept = box.addButton(localized(acceptKey), QMessageBox::AcceptRole);
    QPushButton* reject = box.addButton(localized(rejectKey), QMessageBox::RejectRole);
    box.setDefaultButton(accept);
    box.setEscapeButton(reject);
    box.exec();
    return box.clickedButton() == accept;
}

} // namespace

bool MessageBoxPrompter::confirmRename(QWidget* parent)
{
    return ask(parent, QMessageBox::Question, "ITEMRENAMINGTITLE", "ITEMRENAMINGMESSAGE", "YES", "NO");
}

bool MessageBoxPrompter::continueWithoutLog(QWidget* parent)
{
    return ask(parent, QMessageBox::Warning, "ITEMRENAMINGTITLE", "LOGCREATEFAILED", "CONTINUE", "ABORT");
}

void MessageBoxPrompter::warn(QWidget* parent, const QString& title, const QString& message)
{
    QMessageBox box(QMessageBox::Warning, title, message, QMessageBox::NoButton, parent);
    box.setObjectName(QStringLiteral("warning"));
    box.setDefaultButton(box.addButton(localized("OK"), QMessageBox::AcceptRole));
    box.exec();
}

} // namespace tavrin
