#pragma once

#include <optional>

/// The failure of type `Error` that `action` ends in, or nothing when it ends well.
template <typename Error, typename Action>
std::optional<Error> failureOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error;
    }
    return std::nullopt;
}
