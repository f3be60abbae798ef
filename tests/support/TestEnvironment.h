#pragma once

#include <QString>

namespace tavrin::test {

// Points HOME, XDG_DATA_HOME, XDG_CONFIG_HOME and XDG_CACHE_HOME at a fresh temporary
// folder for the whole test run, so no test reads or writes the real home folder.
// Called by the test mains before Qt starts.
void isolateHome();

// The temporary home made by isolateHome().
QString temporaryHome();

}  // namespace tavrin::test
