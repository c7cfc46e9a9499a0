// Links and connection profiles of the host, as the records of a configuration store. Names come
// from the kernel and from people, and numbers have any value that the bus can carry.

#include "FuzzInput.h"
#include "System Configuration/ConfigurationKeys.h"
#include "platform/linux/ConfigurationRecords.h"
#include "support/TextEncoding.h"
#include "support/TextFormat.h"

#include <algorithm>

using namespace kx;

namespace {

// Takes the input apart from its beginning. Behind its end every number is 0 and every text is
// empty.
class Source {
public:
    explicit Source(ByteView rest)
        : _rest(rest) {}

    bool isAtEnd() const { return _rest.empty(); }
    std::uint8_t byte() { return isAtEnd() ? 0 : take(1).front(); }
    std::uint32_t number() {
        std::uint32_t value = byte();
        for (int i = 0; i < 3; ++i) {
            value = value << 8U | byte();
        }
        return value;
    }
    Bytes bytes(std::size_t length) {
        const ByteView taken = take(length);
        return {taken.begin(), taken.end()};
    }
    // The readers of the kernel and of the bus pass on only UTF-8.
    std::string text(const char* otherwise) {
        return textFromUTF8(take(byte() % 8)).value_or(otherwise);
    }

private:
    ByteView take(std::size_t length) {
        const ByteView taken = _rest.first(std::min(length, _rest.size()));
        _rest = _rest.subspan(taken.size());
        return taken;
    }

    ByteView _rest;
};

// Removes the characters that may not be part of a key: the kernel's names do not have them, and
// the reader of the bus does not pass them on.
std::string component(std::string text) {
    std::erase_if(text, [](char c) { return c == '/' || c == '='; });
    return text;
}

std::vector<IPv4InterfaceAddress> addresses(Source& source) {
    std::vector<IPv4InterfaceAddress> result;
    for (unsigned count = source.byte() % 3U; count != 0; --count) {
        const std::uint32_t address = source.number();
        result.push_back({address, source.byte() % 33U});
    }
    return result;
}

NetworkLink link(Source& source, int index) {
    const std::uint8_t flags = source.byte();
    NetworkLink result;
    result.index = index;
    result.name = component(source.text("eth0"));
    result.kind = static_cast<LinkKind>(flags % 7U);
    result.isUp = result.isRunning = (flags & 0x08U) != 0;
    result.isLoopback = (flags & 0x10U) != 0;
    result.canBroadcast = (flags & 0x20U) != 0;
    result.hardwareAddress = source.bytes(flags >> 6U);
    result.ipv4Addresses = addresses(source);
    if ((flags & 0x40U) != 0) {
        result.defaultRouteMetric = source.number();
    }
    if ((flags & 0x80U) != 0) {
        IPv6InterfaceAddress address{{}, source.byte() % 129U};
        std::ranges::fill(address.address, source.byte());
        result.ipv6Addresses.push_back(address);
    }
    return result;
}

const std::string* textIn(const PropertyDictionary* record, std::string_view key) {
    const auto* const value = record != nullptr ? valueForKey(*record, key) : nullptr;
    return value != nullptr ? value->text() : nullptr;
}

// The host's services in the order of the records; none without one.
PropertyList serviceOrder(const ConfigurationRecords& records) {
    const auto global = records.dynamicStore.find("Setup:/Network/Global/IPv4");
    return global != records.dynamicStore.end()
               ? *valueForKey(global->second, "ServiceOrder")->list()
               : PropertyList();
}

void checkService(const ConfigurationRecords& records, const std::string& identifier) {
    const auto record =
        records.dynamicStore.find(filledText("Setup:/Network/Service/%@/Interface", {identifier}));
    const auto* const live = record != records.dynamicStore.end() ? &record->second : nullptr;
    const auto* const saved = dictionaryAtPath(
        records.preferences, filledText("/NetworkServices/%@/Interface", {identifier}));
    const std::string* const device = textIn(live, kSCPropNetInterfaceDeviceName);
    requireInvariant(device != nullptr && textIn(live, kSCPropUserDefinedName) != nullptr,
                     "every service has a device and a name");
    requireInvariant(saved != nullptr && *saved == *live, "and is saved as it is");
    requireInvariant(
        records.dynamicStore.contains(filledText("State:/Network/Interface/%@/Link", {*device})),
        "a device is a link");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Source source({data, size});
    const unsigned counts = source.byte();
    std::vector<NetworkLink> links;
    for (unsigned i = 0; i < counts % 4U; ++i) {
        NetworkLink next = link(source, static_cast<int>(i) + 1);
        const bool isTaken = std::ranges::find(links, next.name, &NetworkLink::name) != links.end();
        if (!next.name.empty() && !isTaken) {
            links.push_back(std::move(next));
        }
    }
    std::vector<ConnectionProfile> profiles;
    while (!source.isAtEnd()) {
        std::string identifier = "p" + component(source.text(""));
        std::string name = source.text("name");
        std::string interfaceName = source.text("eth0");
        profiles.push_back(
            {std::move(identifier), std::move(name), std::move(interfaceName), addresses(source)});
    }

    const auto records = configurationRecords(links, profiles);
    const auto order = serviceOrder(records);
    for (const auto& identifier : order) {
        checkService(records, *identifier.text());
    }
    requireInvariant(order.size() <= links.size() + profiles.size(),
                     "no service comes from nothing");
    requireInvariant(changedKeys(records, records).empty(), "what is equal has not changed");
    requireInvariant(changedKeys({}, records).size() == records.dynamicStore.size(),
                     "what there was not before has changed");
    return 0;
}
