#include "core/log/LogRecovery.h"
#include "core/profiles/Preferences.h"
#include "core/text/LocalizedStrings.h"
#include "gui/app/DocumentCommands.h"
#include "gui/app/DocumentOpener.h"
#include "gui/app/MainWindow.h"
#include "gui/app/SingleInstance.h"
#include "gui/app/TavrinAppController.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QTranslator>
#include <cstdlib>

namespace {

// Paths typed in a terminal are relative to the folder the command ran in.
QStringList absolutePaths(const QStringList& arguments)
{
    const QDir current = QDir::current();
    QStringList paths;
    for (const QString& argument : arguments)
        paths.append(QDir::cleanPath(current.absoluteFilePath(argument)));
    return paths;
}

QStringList parsePaths(const QApplication& app)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tavrin::localized("APPTITLE"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        QStringLiteral("paths"), tavrin::localized("COMMANDLINEPATHS"), QStringLiteral("[PATH...]"));
    parser.process(app);
    return absolutePaths(parser.positionalArguments());
}

// Qt's own dialogs, buttons and shortcut names in the user's language, where the system has
// Qt's translations (Debian's qt6-translations-l10n); English otherwise.
void installQtTranslations(QApplication& app)
{
    auto* translator = new QTranslator(&app);
    if (translator->load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
            QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    installQtTranslations(app);
    QApplication::setOrganizationName(QStringLiteral("Palisade Soft"));
    QApplication::setApplicationName(QStringLiteral("Tavrin3"));
    QApplication::setApplicationDisplayName(tavrin::localized("APPTITLE"));
    QApplication::setApplicationVersion(QStringLiteral(TAVRIN_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/tavrin.svg")));
    // Lets the desktop match the window with its launcher and icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("com.palisadesoft.Tavrin"));
    // Outside a desktop session Qt knows no icon theme; borrow a common one when present.
    QIcon::setFallbackThemeName(QStringLiteral("Adwaita"));

    const QStringList paths = parsePaths(app);

    // A second launch hands its paths to the window already open.
    tavrin::SingleInstance instance(tavrin::SingleInstance::defaultServerName());
    if (instance.forwardToRunningInstance(paths))
        return EXIT_SUCCESS;

    // Without its folders the application could not keep a log of what it renames.
    const tavrin::ApplicationSupport support = tavrin::prepareApplicationSupport();
    if (!support.isReady()) {
        QMessageBox::critical(nullptr, support.errorTitle, support.errorMessage);
        return EXIT_FAILURE;
    }
    tavrin::recoverInterruptedLogs(support.preferences.defaultLogFolderPath);

    tavrin::TavrinAppController controller;
    controller.session().setPreferences(support.preferences);
    const std::optional<tavrin::ProfileOutcome> lastProfileFailure
        = controller.applicationDidFinishLaunching();
    tavrin::MainWindow window(&controller);
    window.show();
    if (lastProfileFailure)
        window.documentCommands()->showProfileOutcome(*lastProfileFailure);

    instance.listen();
    QObject::connect(
        &instance, &tavrin::SingleInstance::pathsReceived, &window, [&window](const QStringList& received) {
            window.documentOpener()->openFiles(received);
            window.raise();
            window.activateWindow();
        });
    window.documentOpener()->openFiles(paths);
    return app.exec();
}
