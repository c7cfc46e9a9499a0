// Announcements inside the process. An observer registers for a name and a sender. It is told
// synchronously, in the order of registration.
//
// Threading: the main thread only.
//
// Ownership: a registration is a handle; destroying it ends the registration at once and for good.
// It may be destroyed from inside any selector, including its own. A selector lives until its
// running call has returned. An observer that registers while a notification is being posted is
// told from the next notification on.

#pragma once

#include "support/PropertyListValue.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

struct Notification {
    std::string name;
    const void* object = nullptr; // the sender
    PropertyDictionary userInfo;
};

class NotificationCenter {
public:
    // The function that is called for a notification.
    using Selector = std::function<void(const Notification&)>;

private:
    struct Observer {
        Selector selector;
        std::string name;
        const void* object;
    };

public:
    class Registration {
    public:
        Registration(Registration&&) noexcept = default;
        Registration& operator=(Registration&&) noexcept = default;

    private:
        friend class NotificationCenter;
        explicit Registration(std::shared_ptr<const Observer> observer)
            : _observer(std::move(observer)) {}

        std::shared_ptr<const Observer> _observer;
    };

    // The center that the process shares, created on first use and never released.
    static NotificationCenter& defaultCenter();

    // Registers for notifications of a name from a sender.
    [[nodiscard]] Registration addObserver(Selector selector, std::string_view name,
                                           const void* object);

    // Calls every selector that is registered for the notification's name and object, before it
    // returns.
    void postNotification(const Notification& notification);

private:
    std::vector<std::weak_ptr<const Observer>> _observers;
};

} // namespace kx
