// Names and numbers for windows of one kind, as a program with several documents shows them.
//
// Main thread only.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

// The object that decides for a window. Windows know their delegates by this base alone.
class WindowDelegate {
public:
    virtual ~WindowDelegate() = default;
};

// The windows of the application.
class ApplicationWindows {
public:
    virtual ~ApplicationWindows() = default;

    // The delegate of each window, shown or hidden, in the order of the windows; null for a window
    // without a delegate. The delegates belong to others and may be gone after the next event.
    virtual std::vector<const WindowDelegate*> delegates() const = 0;
};

// "Window_3" for the base name "Window" and 3; the base name alone for 0.
std::string instanceName(std::string_view baseName, int number);

// The number of windows whose delegate is a `Class` or derived from it.
template<class Class>
std::size_t instanceCount(const ApplicationWindows& windows) {
    std::size_t count = 0;
    for (const WindowDelegate* delegate : windows.delegates()) {
        count += dynamic_cast<const Class*>(delegate) != nullptr ? 1 : 0;
    }
    return count;
}

} // namespace kx
