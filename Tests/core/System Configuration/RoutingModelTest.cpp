// Random lists of the kernel and random services, and plain models of what they tell; every answer
// is compared.

#include "ConfigurationFixture.h"
#include "model/PlainRouting.h"
#include "model/RandomSteps.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kx {

namespace {

class RoutingModel : public ConfigurationFixture {
protected:
    using Buffer = RoutingMessageBuilder::Buffer;

    std::uint8_t octet() { return static_cast<std::uint8_t>(random.below(256)); }

    Buffer noise(std::uint32_t mostOctets) {
        Buffer octets(random.below(mostOctets + 1));
        for (std::uint8_t& each : octets) {
            each = octet();
        }
        return octets;
    }

    std::string interfaceName() {
        return random.oneOf<std::string>(
            {"en0", "en0", "en1", "lo0", "tun0", "tunnel", "ppp0", "en0:1", "e\xFF", "\xC3\xA9"});
    }

    std::uint32_t address() {
        return random.oneOf<std::uint32_t>({0x0A000005U, 0xC0A80114U, 0, 0xFFFFFF00U, 0xFF000000U,
                                            0x80000000U, 1, 0xFFFFFFFFU, 0xFF00FF00U});
    }

    // Of any length and family, with a length byte that may be wrong.
    Buffer socketAddress() {
        auto octets = RoutingMessageBuilder::socketAddress(
            random.oneOf<std::uint8_t>({2, 2, 2, 18, 30, 0}), address());
        if (random.oneIn(3)) {
            octets.resize(1 + random.below(24));
            octets[0] = random.oneOf<std::uint8_t>(
                {static_cast<std::uint8_t>(octets.size()), 0, 1, 7, 8, 9, 255});
        }
        return octets;
    }

    void addLink(RoutingMessageBuilder& builder) {
        const Buffer hardware = random.oneOf<Buffer>({{0, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E},
                                                      {0, 0x1A, 0x2B, 0x3C, 0x4D, 0x5F},
                                                      {},
                                                      {1, 2, 3, 4, 5},
                                                      {1, 2, 3, 4, 5, 6, 7}});
        builder.interface(interfaceName(), !random.oneIn(3), hardware);
    }

    // Lengths of the name and of the address that fit and others.
    void addStrangeLink(RoutingMessageBuilder& builder) {
        Buffer link = {0,
                       random.oneOf<std::uint8_t>({18, 18, 2}),
                       7,
                       0,
                       6,
                       random.oneOf<std::uint8_t>({3, 0, 2, 200}),
                       random.oneOf<std::uint8_t>({6, 0, 5, 200}),
                       0,
                       'e',
                       'n',
                       '0'};
        const Buffer rest = noise(12);
        link.insert(link.end(), rest.begin(), rest.end());
        link.resize(random.below(static_cast<std::uint32_t>(link.size() + 1)));
        builder.interfaceWith(random.below(2), link);
    }

    RoutingMessageBuilder randomList() {
        RoutingMessageBuilder builder;
        for (auto left = random.below(9); left > 0; --left) {
            switch (random.below(10)) {
            case 0:
            case 1:
            case 2:
                addLink(builder);
                break;
            case 3:
                addStrangeLink(builder);
                break;
            case 4:
            case 5: {
                const std::uint32_t own = address();
                builder.address(own, address());
                break;
            }
            case 6:
            case 7: {
                std::map<unsigned, Buffer> slots;
                for (auto more = random.below(5); more > 0; --more) {
                    slots[random.oneOf<unsigned>({0, 1, 2, 2, 5, 5, 7})] = socketAddress();
                }
                builder.addressWith(slots);
                break;
            }
            default:
                builder.message(random.oneOf<std::uint8_t>({12, 14, 13, 99}), noise(150));
            }
        }
        return builder;
    }

    void setRandomList() {
        Bytes list = randomList().bytes();
        if (random.oneIn(4) && !list.empty()) {
            list[random.below(static_cast<std::uint32_t>(list.size()))] = octet();
        }
        if (random.oneIn(6)) {
            list.resize(random.below(static_cast<std::uint32_t>(list.size() + 1)));
        }
        random.tell("the kernel's list is " + model::hexPairs(list, ""));
        kernelQuery.setInterfaceList(list);
        plain.kernelList = list;
    }

    // Services of a few names and identifiers; one may be listed twice, and one may have no record.
    void setRandomServices() {
        Texts order;
        plain.services.clear();
        for (const std::string& identifier : identifiers) {
            store.removeValue("Setup:/Network/Service/" + identifier + "/Interface");
        }
        std::map<std::string, model::PlainService> records;
        for (auto left = random.below(5); left > 0; --left) {
            const std::string identifier = random.oneOf(identifiers);
            order.push_back(identifier);
            if (!records.contains(identifier) && !random.oneIn(6)) {
                records[identifier] = randomService(identifier);
            }
        }
        for (const std::string& identifier : order) {
            if (records.contains(identifier)) {
                plain.services.push_back(records[identifier]);
            }
        }
        setServiceOrder(store, order);
        random.tell(std::to_string(order.size()) + " services");
    }

    model::PlainService randomService(const std::string& identifier) {
        model::PlainService service{.identifier = identifier, .isPPP = random.oneIn(4)};
        PropertyDictionary record{{"Type", service.isPPP ? "PPP" : "Ethernet"}};
        if (!random.oneIn(5)) {
            service.device = interfaceNamesOfServices[random.below(4)];
            record.emplace("DeviceName", *service.device);
        }
        if (!random.oneIn(5)) {
            service.userName = random.oneOf<std::string>({"Office", "Office (en0)", "Wi-Fi"});
            record.emplace("UserDefinedName", *service.userName);
        }
        setServiceInterface(store, identifier, record);
        return service;
    }

    void expectSameAnswers() {
        for (const char* const key : {"grantAddress", "subnetMask", "netNumber", "linkStatus",
                                      "hardwareAddress", "grantAddress6", "unknown"}) {
            const std::string name = interfaceName();
            ASSERT_EQ(configuration.bsdNameInterfaceDataForKey(name, key),
                      model::plainInterfaceText(plain.kernelList, name, key))
                << name << ' ' << key;
            answered += configuration.bsdNameInterfaceDataForKey(name, key) != "not available";
        }
    }

    void expectSameTitles() {
        Texts services;
        auto found = configuration.bsdTitlesAndServiceIDs(&services);
        expectTitles(found, services, plain.popUpTitles());
        if (random.oneIn(10)) {
            configuration.purgeInterfaceIDs();
            plain.forgetsIdentifiers = true;
        }
        if (random.oneIn(2)) {
            services.clear();
            found = configuration.interfaceTitlesAndServiceIDs(&services);
            expectTitles(found, services, plain.titles());
        }
    }

    void expectTitles(const std::optional<Texts>& titles, const Texts& services,
                      const model::PlainInterfaceList::Titles& expected) {
        Texts expectedTitles;
        Texts expectedServices;
        for (const auto& [title, service] : expected) {
            expectedTitles.push_back(title);
            expectedServices.push_back(service);
        }
        ASSERT_EQ(titles.has_value(), !expected.empty());
        ASSERT_EQ(titles.value_or(Texts()), expectedTitles);
        ASSERT_EQ(services, expectedServices);
    }

    model::RandomSteps random{10'000};
    model::PlainInterfaceList plain;
    const Texts identifiers{"service 1", "service 2", "service 3", "service 4"};
    const Texts interfaceNamesOfServices{"en0", "en0", "en1", "tun0"};
    int answered = 0;
};

} // namespace

TEST_F(RoutingModel, TellsTheSameAsThePlainModelOfEveryRandomList) {
    while (!HasFailure() && random.next()) {
        if (random.oneIn(3)) {
            setRandomServices();
        } else {
            setRandomList();
        }
        expectSameAnswers();
        expectSameTitles();
    }
    ASSERT_FALSE(HasFailure());
    EXPECT_GT(answered, static_cast<int>(random.steps() / 10));
}

} // namespace kx
