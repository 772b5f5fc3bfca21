#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

namespace sargan {

/// Named broadcasts within the process, delivered at once and in the order of registration.
class NotificationCenter {
public:
    using Receptor = std::function<void(const void* sender)>;

    /// An observation; it ends when this object goes.
    class Observation {
    public:
        Observation() = default;

    private:
        friend class NotificationCenter;
        std::shared_ptr<const void> _alive;
    };

    [[nodiscard]] Observation observe(const QString& name, Receptor receptor);
    void post(const QString& name, const void* sender);

    /// Called with the name of everything that is posted, before its receptors.
    std::function<void(const QString&)> onPost;

private:
    struct Entry {
        QString name;
        Receptor receptor;
        std::weak_ptr<const void> alive;
    };
    std::vector<std::shared_ptr<Entry>> _entries;
};

}  // namespace sargan
