// The host's network interfaces, written by the test.

#pragma once

#include "System Configuration/NetworkInterfaces.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace kx {

class ScriptedNetworkInterfaces final : public NetworkInterfaces {
public:
    // Appends an interface to the list. `serviceID` is the identifier that belongs to the title.
    void addTitle(std::string title, std::string serviceID) {
        _titles.push_back(std::move(title));
        _serviceIDs.push_back(std::move(serviceID));
    }

    // Sets the configured service of an interface.
    void setService(std::string bsdName, std::string serviceID) {
        _services[std::move(bsdName)] = std::move(serviceID);
    }

    void setData(std::string serviceID, std::string dictionaryName, std::string key,
                 PropertyListValue value) {
        _data.insert_or_assign({std::move(serviceID), std::move(dictionaryName), std::move(key)},
                               std::move(value));
    }

    // Sets the state of an interface, absent for a kernel that does not tell. Without this call an
    // interface is running and can broadcast.
    void setState(const std::string& bsdName, std::optional<InterfaceState> state) {
        _states[bsdName] = state;
    }

    // Takes all addresses from the kernel's interface; its service still tells those that are saved
    // for it. Without this call the interface has what its service tells.
    void loseAddresses(const std::string& bsdName) { _withoutAddresses.insert(bsdName); }

    // Removes all interfaces.
    void clear() { *this = ScriptedNetworkInterfaces(); }

    // Adds a configured service with one IPv4 address, the usual case, in one call.
    void addService(const std::string& name, const std::string& bsdName, const std::string& address,
                    const std::string& mask) {
        const std::string serviceID = "service-" + bsdName;
        addTitle(name + " (" + bsdName + ")", serviceID);
        setService(bsdName, serviceID);
        setData(serviceID, "IPv4", "Addresses", PropertyList{address});
        setData(serviceID, "IPv4", "SubnetMasks", PropertyList{mask});
    }

    std::optional<std::vector<std::string>>
    bsdTitlesAndServiceIDs(std::vector<std::string>* serviceIDs) override {
        if (_titles.empty()) {
            return std::nullopt;
        }
        if (serviceIDs != nullptr) {
            *serviceIDs = _serviceIDs;
        }
        return _titles;
    }

    std::optional<std::string> serviceIDForInterface(std::string_view bsdName) override {
        const auto found = _services.find(bsdName);
        return found != _services.end() ? std::optional(found->second) : std::nullopt;
    }

    std::optional<PropertyListValue>
    serviceDataForDictionaryNameKey(std::string_view serviceID, std::string_view dictionaryName,
                                    std::string_view key) override {
        const auto found =
            _data.find({std::string(serviceID), std::string(dictionaryName), std::string(key)});
        return found != _data.end() ? std::optional(found->second) : std::nullopt;
    }

    std::optional<PropertyListValue>
    interfaceDataForDictionaryNameKey(std::string_view bsdName, std::string_view dictionaryName,
                                      std::string_view key) override {
        const auto service = serviceIDForInterface(bsdName);
        return service.has_value() && !_withoutAddresses.contains(bsdName)
                   ? serviceDataForDictionaryNameKey(*service, dictionaryName, key)
                   : std::nullopt;
    }

    std::optional<InterfaceState> interfaceState(std::string_view bsdName) override {
        const auto found = _states.find(bsdName);
        return found != _states.end() ? found->second
                                      : InterfaceState{.isRunning = true, .canBroadcast = true};
    }

private:
    using DataKey = std::tuple<std::string, std::string, std::string>;

    std::vector<std::string> _titles;
    std::vector<std::string> _serviceIDs;
    std::map<std::string, std::string, std::less<>> _services;
    std::map<std::string, std::optional<InterfaceState>, std::less<>> _states;
    std::map<DataKey, PropertyListValue> _data;
    std::set<std::string, std::less<>> _withoutAddresses;
};

} // namespace kx
