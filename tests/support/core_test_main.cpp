#include "support/TestEnvironment.h"

#include "core/text/LocalizedStrings.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    tavrin::test::isolateHome();
    QCoreApplication app(argc, argv);
    tavrin::LocalizedStrings::setLanguage(QStringLiteral("en"));
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
