#pragma once

#include "core/list/FileList.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace tavrin::cli {

// The options every command that works on a list shares: what to scan and how, the order
// of the list, and the form of the output.
struct CommonOptions {
    ScanOptions scan;
    QList<SortKey> sortKeys; // the first is the primary key
    bool json = false;
    bool help = false;
    QStringList paths;
};

// The value of the option being read: the text after "=" ("--sort=filename"), or else the
// next argument; none when there is neither. An option with two values ("--replace A B")
// asks twice: the second value is always the next argument.
using TakeValue = std::function<std::optional<QString>()>;

// The options a command adds to the shared ones (preview and apply: --tab, --set, --yes).
class ExtraOptions {
public:
    enum class Outcome { Taken, NotMine, Bad };

    virtual ~ExtraOptions() = default;
    // Takes `name` ("--tab") when it is one of the command's options, reading its value
    // through `takeValue` when it has one; a bad value answers Bad with `error` set.
    virtual Outcome takeOption(const QString& name, const TakeValue& takeValue, QString& error) = 0;
    // The options it takes, for the suggestion after a mistyped one.
    virtual QStringList optionNames() const { return {}; }
};

// Reads the arguments that follow the command name. Options and PATHs may be mixed; "--"
// ends the options. On bad usage answers false with a message in `error`. With --help
// it stops there and answers true, `help` set.
bool parseCommonOptions(
    const QStringList& arguments, CommonOptions& options, QString& error, ExtraOptions* extra = nullptr);

// The derived keys a list can be sorted by, in the order the usage names them.
QStringList sortKeyNames();

} // namespace tavrin::cli
