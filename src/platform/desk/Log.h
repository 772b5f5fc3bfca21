#pragma once

#include <QString>
#include <functional>

namespace sargan {

/// The system log: short fixed lines such as "CARNET".
class Log {
public:
    using Sink = std::function<void(const QString&)>;
    Log() = default;
    explicit Log(Sink sink) : _sink(std::move(sink)) {}

    void line(const QString& text) const {
        if (_sink) _sink(text);
    }

private:
    Sink _sink;
};

}  // namespace sargan
