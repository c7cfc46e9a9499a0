// Plain models of the host's interfaces (see PlainText.h): the walk through the kernel's list of
// routing messages, and the lists of titles that are made of it and of the configured services.
//
// Nothing is read beyond a message; a part that is cut short counts as missing.

#pragma once

#include "PlainText.h"

#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kx::model {

// A number of one of the headers, in the byte order of the host. The bytes must be there.
template<class Number>
Number numberAt(const Octets& octets, std::size_t at) {
    Number number{};
    std::memcpy(&number, &octets.at(at), sizeof number);
    return number;
}

inline std::vector<Octets> plainMessages(Octets list) {
    std::vector<Octets> messages;
    while (list.size() >= 4) {
        const auto message = part(list, 0, numberAt<std::uint16_t>(list, 0));
        if (!message.has_value() || message->size() < 4) {
            break;
        }
        messages.push_back(*message);
        list = *part(list, message->size(), list.size() - message->size());
    }
    return messages;
}

// The contents of a message about an interface.
struct PlainLink {
    std::optional<std::string> name; // absent when it is no text
    bool isUp = false;
    std::optional<Octets> hardware; // absent unless there are six octets
};

// Absent for another message, and for one without a name.
inline std::optional<PlainLink> plainLink(const Octets& message) {
    constexpr std::size_t header = 112;
    if (message[3] != 14 || message.size() < header + 8 || message[header + 1] != 18) {
        return std::nullopt;
    }
    const std::size_t nameLength = message[header + 5];
    const auto name = part(message, header + 8, nameLength);
    if (nameLength == 0 || !name.has_value()) {
        return std::nullopt;
    }
    const bool hasSix = message[header + 6] == 6;
    return PlainLink{textOf(*name), numberAt<std::uint32_t>(message, 8) % 2 == 1,
                     hasSix ? part(message, header + 8 + nameLength, 6) : std::nullopt};
}

// The socket addresses of a message of type 12 by their slots, each with everything behind it.
inline std::map<int, Octets> plainSlots(const Octets& message) {
    std::map<int, Octets> slots;
    Octets rest = *part(message, 20, message.size() - 20);
    for (int slot = 0; slot < 8; ++slot) {
        if ((numberAt<std::uint32_t>(message, 4) >> slot) % 2 == 1) {
            slots[slot] = rest;
            const std::size_t length = rest.empty() ? 0 : rest[0];
            std::size_t taken = sizeof(long);
            while (taken < length) {
                taken += sizeof(long);
            }
            rest = part(rest, taken, rest.size() - std::min(taken, rest.size())).value_or(Octets());
        }
    }
    return slots;
}

// The IPv4 address in a slot: 0 without the slot, absent when it is cut short.
inline std::optional<std::uint32_t> addressInSlot(const std::map<int, Octets>& slots, int slot) {
    if (!slots.contains(slot)) {
        return 0;
    }
    const auto octets = part(slots.at(slot), 4, 4);
    return octets.has_value()
               ? std::optional(static_cast<std::uint32_t>((*octets)[0]) << 24U |
                               static_cast<std::uint32_t>((*octets)[1]) << 16U |
                               static_cast<std::uint32_t>((*octets)[2]) << 8U | (*octets)[3])
               : std::nullopt;
}

inline std::string plainNetNumber(std::uint32_t address, std::uint32_t mask) {
    for (int bit = 0; bit < 32; ++bit) {
        if ((mask >> bit) % 2 == 1) {
            return dotted(address) + '/' + std::to_string(32 - bit);
        }
    }
    return dotted(address);
}

// The answer of an address message; absent when there is none.
inline std::optional<std::string> answerOfAddress(const Octets& message, const std::string& key) {
    if (message[3] != 12 || message.size() < 20) {
        return std::nullopt;
    }
    const auto slots = plainSlots(message);
    const auto address = addressInSlot(slots, 5);
    const auto mask = addressInSlot(slots, 2);
    const bool isOther = slots.contains(5) && slots.at(5).size() > 1 && slots.at(5)[1] != 2;
    if (!address.has_value() || !mask.has_value() || isOther) {
        return std::nullopt;
    }
    return key == "grantAddress" ? std::optional(dotted(*address))
           : key == "subnetMask" ? std::optional(dotted(*mask))
           : key == "netNumber"  ? std::optional(plainNetNumber(*address, *mask))
                                 : std::nullopt;
}

// The messages about an interface: from one with its name to the next one with another name.
inline std::vector<Octets> messagesAbout(const Octets& list, const std::string& name) {
    std::vector<Octets> messages;
    bool isInside = false;
    for (const Octets& message : plainMessages(list)) {
        const auto link = plainLink(message);
        isInside = link.has_value() ? link->name == name : isInside;
        if (isInside) {
            messages.push_back(message);
        }
    }
    return messages;
}

// The answer of one of these messages; absent when it has none.
inline std::optional<std::string> answerOf(const Octets& message, const std::string& key) {
    const auto link = plainLink(message);
    if (!link.has_value()) {
        return answerOfAddress(message, key);
    }
    if (key == "hardwareAddress" && link->hardware.has_value()) {
        return hexPairs(*link->hardware, ":");
    }
    return key == "linkStatus" ? std::optional<std::string>(link->isUp ? "Active" : "Inactive")
                               : std::nullopt;
}

// What the kernel's list tells of an interface.
inline std::string plainInterfaceText(const Octets& list, const std::string& name,
                                      const std::string& key) {
    for (const Octets& message : messagesAbout(list, name)) {
        if (const auto answer = answerOf(message, key)) {
            return *answer;
        }
    }
    return "not available";
}

// A configured service, as the store tells it.
struct PlainService {
    std::string identifier;
    bool isPPP = false;
    std::optional<std::string> device = {};
    std::optional<std::string> userName = {};
};

class PlainInterfaceList {
public:
    using Titles = std::vector<std::pair<std::string, std::string>>; // with identifiers of services

    std::vector<PlainService> services; // in their order; one may be there twice
    Octets kernelList;
    bool forgetsIdentifiers = true;

    Titles popUpTitles() const {
        Titles titles;
        for (const Listed& each : listed(true)) {
            titles.emplace_back(titled(each.userName, each.name), each.service);
        }
        return titles;
    }

    Titles titles() {
        if (forgetsIdentifiers) {
            _identifiers.clear();
        }
        forgetsIdentifiers = false;
        Titles titles;
        for (const Listed& each : listed(false)) {
            titles.emplace_back(titled(each.userName, identifierOf(each)), each.service);
        }
        return titles;
    }

private:
    struct Listed {
        std::string service;
        std::string name;
        std::string userName;
    };

    static std::string titled(const std::string& userName, const std::string& name) {
        const std::string suffix = " (" + name + ")";
        const bool isThere = userName.size() >= suffix.size() &&
                             userName.substr(userName.size() - suffix.size()) == suffix;
        return isThere ? userName : userName + suffix;
    }

    static std::string userNameOf(const std::string& name) {
        return name == "lo0"                ? "Loopback"
               : name.substr(0, 3) == "tun" ? "VPN Tunnel"
                                            : "BSD Interface";
    }

    std::vector<Listed> listed(bool onlyUp) const {
        std::vector<Listed> all;
        int dialUps = 0;
        for (const PlainService& each : services) {
            const std::string device = each.device.value_or("not available");
            if (each.isPPP) {
                all.push_back({each.identifier, "ppp" + std::to_string(dialUps++), device});
            } else {
                all.push_back({each.identifier, device, each.userName.value_or("not available")});
            }
        }
        for (const Octets& message : plainMessages(kernelList)) {
            const auto link = plainLink(message);
            if (!link.has_value() || !link->name.has_value() || (onlyUp && !link->isUp)) {
                continue;
            }
            const bool isListed = std::any_of(all.begin(), all.end(), [&](const Listed& each) {
                return each.name == *link->name;
            });
            if (!isListed) {
                all.push_back({"=" + *link->name, *link->name, userNameOf(*link->name)});
            }
        }
        return all;
    }

    std::string identifierOf(const Listed& interface) {
        if (!_identifiers.contains(interface.service)) {
            std::string candidate = interface.name;
            for (int number = 1; isTaken(candidate); ++number) {
                candidate = interface.name + ':' + std::to_string(number);
            }
            _identifiers[interface.service] = candidate;
        }
        return _identifiers[interface.service];
    }

    bool isTaken(const std::string& candidate) const {
        return std::any_of(_identifiers.begin(), _identifiers.end(),
                           [&](const auto& each) { return each.second == candidate; });
    }

    std::map<std::string, std::string> _identifiers; // of interfaces, by service
};

} // namespace kx::model
