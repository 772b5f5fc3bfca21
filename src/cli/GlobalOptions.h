#pragma once

#include <QDateTime>
#include <QStringList>
#include <optional>
#include <span>

#include "cli/Arguments.h"
#include "platform/text/Strings.h"

namespace sargan::cli {

/// The options that stand before or after any command, and that the desktop takes too.
struct GlobalOptions {
    std::optional<Strings::Language> language;
    QString settings;  ///< folder of the settings
    bool agree = false;
    QDateTime now;  ///< invalid: the clock
    bool help = false;
    bool version = false;
    QStringList rest;  ///< everything else, in order

    /// Throws UsageError.
    static GlobalOptions take(const QStringList& arguments);
};

std::span<const OptionSpec> globalOptionSpecs();

/// The user's own settings folder.
QString standardSettingsFolder();

}  // namespace sargan::cli
