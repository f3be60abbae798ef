#pragma once

#include <QString>

namespace tavrin::cli {

// The manual page, in roff, of "tavrin-cli" or of the window program "tavrin", made from the
// same texts the --help output shows, so the two never disagree. Empty for another name.
QString manPage(const QString& program);

}  // namespace tavrin::cli
