// A plain model of the host round the controller (see PlainText.h): the clock, the network, the
// authority over administrator rights, and the interfaces.

#pragma once

#include "PlainText.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace kx::model {

// Delayed calls, in the order in which they are due. Those due at the same time keep the order in
// which they were asked for.
struct PlainClock {
    long now = 0; // in milliseconds
    std::multimap<long, std::function<void()>> due;

    void after(long delay, std::function<void()> call) {
        due.emplace(now + delay, std::move(call));
    }

    void pass(long time) {
        const long end = now + time;
        while (!due.empty() && due.begin()->first <= end) {
            const auto next = due.extract(due.begin());
            now = next.key();
            next.mapped()();
        }
        now = end;
    }
};

// Calls to the system, as lines, and the failures that wait for the next call of a kind.
struct PlainNetwork {
    std::vector<std::string> calls;
    std::map<std::string, std::deque<int>> failures; // values of errno by the first word of a call

    // Returns the value of errno with which the call fails, or 0.
    int call(const std::string& words) {
        if (words != "receive") {
            calls.push_back(words);
        }
        auto& waiting = failures[words.substr(0, words.find(' '))];
        if (waiting.empty()) {
            return 0;
        }
        const int error = waiting.front();
        waiting.pop_front();
        return error;
    }

    static std::string textOf(int error) { return std::generic_category().message(error); }
};

// The authority and the person who is asked by it.
struct PlainAuthority {
    bool isAbsent = false;
    bool personAgrees = true;
    int startStatus = 0;
    bool hasGiven = false; // rights stay until the end
    int questions = 0;
    std::vector<std::string> runs; // the tool and its arguments

    bool gives() {
        if (!isAbsent && !hasGiven) {
            ++questions;
            hasGiven = personAgrees;
        }
        return !isAbsent && hasGiven;
    }
};

// The host's interfaces. The first address and the first mask of a service are all that counts.
struct PlainInterfaces {
    struct Service {
        std::optional<std::string> address;
        std::optional<std::string> mask;
    };

    std::vector<std::string> titles;
    std::map<std::string, Service> services; // by the name of the interface in the system

    // The identifier stands between the last parenthesis and the final character; a number behind
    // its last colon is no part of the name.
    static std::string nameInTitle(const std::string& title) {
        std::string name = title;
        if (const auto at = title.rfind('('); at != std::string::npos) {
            name = title.substr(at + 1, title.size() - at - 2);
        }
        return name.substr(0, name.rfind(':'));
    }

    Service serviceOfTitle(const std::string& title) const {
        const auto found = services.find(nameInTitle(title));
        return found != services.end() ? found->second : Service();
    }
};

} // namespace kx::model
