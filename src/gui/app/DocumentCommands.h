#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace tavrin {

class Prompter;
class SessionController;
struct ProfileOutcome;

// The commands that open and save profiles, and what happens to rule files and profiles
// opened with the application. They ask their questions through the window's prompter.
class DocumentCommands : public QObject {
    Q_OBJECT

public:
    DocumentCommands(SessionController* session, QWidget* window);

    void setPrompter(Prompter* prompter) { m_prompter = prompter; }

    void openProfile();
    // Saves to the profile in use, or asks for a name when there is none.
    void saveProfile();
    void saveProfileAs();
    void loadDefaultProfile();

    // A profile opened with the application replaces the options only when the user agrees.
    void openProfileDocument(const QString& path);
    // A rule file opened with the application joins the rules library: after a question
    // when the library already holds a rule of that name. Then it is the rule in use.
    void openRuleDocument(const QString& path);

    // Tells why a profile could not be opened; nothing for one that opened.
    void showProfileOutcome(const ProfileOutcome& outcome);

signals:
    // A rule file opened with the application is in the rules library under this name.
    void ruleInLibrary(const QString& fileName);

private:
    void saveProfileTo(const QString& path);

    SessionController* m_session;
    QWidget* m_window;
    Prompter* m_prompter = nullptr;
};

} // namespace tavrin
