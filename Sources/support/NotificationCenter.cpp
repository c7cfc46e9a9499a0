#include "support/NotificationCenter.h"

#include <utility>

namespace kx {

NotificationCenter& NotificationCenter::defaultCenter() {
    static auto& shared = *new NotificationCenter;
    return shared;
}

NotificationCenter::Registration
NotificationCenter::addObserver(Selector selector, std::string_view name, const void* object) {
    std::erase_if(_observers, [](const auto& observer) { return observer.expired(); });
    auto observer =
        std::make_shared<const Observer>(Observer{std::move(selector), std::string(name), object});
    _observers.emplace_back(observer);
    return Registration(std::move(observer));
}

void NotificationCenter::postNotification(const Notification& notification) {
    // A copy, because a selector may register others. Each observer is checked only when its turn
    // comes, because a selector may end the registration of another.
    const auto observers = _observers;
    for (const auto& candidate : observers) {
        const auto observer = candidate.lock();
        if (observer != nullptr && observer->name == notification.name &&
            observer->object == notification.object) {
            observer->selector(notification);
        }
    }
}

} // namespace kx
