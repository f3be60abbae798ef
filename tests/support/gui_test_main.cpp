#include "support/TestEnvironment.h"

#include "core/text/LocalizedStrings.h"

#include <QApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    // A discovered test runs without its ENVIRONMENT property, so the platform is chosen here.
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    tavrin::test::isolateHome();
    QApplication app(argc, argv);
    tavrin::LocalizedStrings::setLanguage(QStringLiteral("en"));
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
