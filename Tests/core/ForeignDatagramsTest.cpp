// Datagrams that no well-behaved unit sends leave the log and the registry exactly as the rules
// say, and the program running.

#include "ControllerFixture.h"
#include "RegistryRecords.h"
#include "units/ReferenceDecoder.h"

#include <random>

namespace kx {

namespace {

class ForeignDatagrams : public ControllerTest {
protected:
    // The open drawer shows the log, so that no copy of all of it is made for each datagram.
    ForeignDatagrams() {
        launch();
        window.eventLogDrawer.setState(DrawerState::open);
    }

    // Delivers a datagram and compares all its effects with the rules. No unit is ever selected
    // here, because no discovery completes.
    void expectOutcome(const Bytes& datagram) {
        const ReferenceOutcome expected = ReferenceDecoder::outcomeOf(datagram);
        const std::string& log = window.logTextView.text();
        const auto logLength = log.size();
        const auto systemLogCount = systemLog.lines().size();

        controller.echoDidReceiveDataFromAddress(listener(), datagram, {});

        ASSERT_EQ(log.substr(logLength),
                  "\nUDP listener did receive data. Length: " + std::to_string(datagram.size()) +
                      logAtOnce(expected.log));
        ASSERT_EQ(systemLog.lines().size(), systemLogCount + (expected.isAbandoned ? 1 : 0));
        if (expected.isAbandoned) {
            ASSERT_TRUE(systemLog.lines().back().starts_with(
                "Exception during echo:didReceiveData:fromAddress: range {"));
        }
        if (expected.record.has_value()) {
            const std::string& serial = expected.record->at("serial number");
            registry[serial] = *expected.record;
            const UnitRecord* const stored = controller.devices().find(serial);
            ASSERT_NE(stored, nullptr);
            ASSERT_EQ(plain(*stored), *expected.record);
        }
        ASSERT_EQ(controller.devices().records().size(), registry.size());
    }

    // No time passes here, so only the first acknowledgements are followed by a request at once.
    std::string logAtOnce(const std::string& log) {
        const bool isAcknowledgement = log.starts_with(request);
        acknowledgements += isAcknowledgement ? 1 : 0;
        return isAcknowledgement && acknowledgements > RequestPace::mostAtOnce
                   ? log.substr(request.size())
                   : log;
    }

    void expectWholeRegistry() {
        for (const auto& [serial, record] : recordsBySerialNumber(controller.devices())) {
            ASSERT_EQ(plain(record), registry.at(serial));
        }
    }

    static ReferenceRecord plain(const UnitRecord& record) {
        ReferenceRecord result;
        for (const UnitParameter parameter : allUnitParameters) {
            if (const auto text = record.value(parameter)) {
                result[std::string(nameOfUnitParameter(parameter))] = *text;
            }
        }
        return result;
    }

    const std::string request = "\nRequest unit parameters with address: 255.255.255.255"
                                "\nUDP server did send data.";
    int acknowledgements = 0;
    std::map<std::string, ReferenceRecord> registry;
};

// `length` bytes: a beginning, and then a pattern that repeats.
Bytes filled(const Bytes& beginning, const Bytes& pattern, std::size_t length) {
    Bytes result = beginning;
    while (result.size() < length) {
        result.insert(result.end(), pattern.begin(), pattern.end());
    }
    result.resize(length);
    return result;
}

Bytes cut(Bytes bytes, std::size_t length) {
    bytes.resize(length);
    return bytes;
}

Bytes withByte(Bytes bytes, std::size_t offset, unsigned value) {
    bytes[offset] = static_cast<std::uint8_t>(value);
    return bytes;
}

} // namespace

TEST_F(ForeignDatagrams, OfEveryLengthAndSeveralFillings) {
    const SampleUnit unit;
    const std::vector<std::pair<Bytes, Bytes>> fillings{
        {{}, {0x00}},
        {{}, {0xFF}},
        {{}, textBytes("^^<U>")},
        {unit.header(), textBytes("text ")},
        {unit.header(), {0xC3, 0xA4}}, // at every other length this is valid UTF-8
        {unit.header(), item("<M>", unit.internalMAC)},
        {unit.header(), unit.parameterList()},
        {unit.reply(), item("<O>", unit.serial)},
        {unit.acknowledgement(), {0x00}},
    };
    for (const auto& [beginning, pattern] : fillings) {
        for (std::size_t length = 0; length <= 2000; ++length) {
            expectOutcome(filled(beginning, pattern, length));
            ASSERT_FALSE(HasFatalFailure()) << "length " << length;
        }
        expectWholeRegistry();
        controller.discoverButton();
    }
    receive(unit.reply());
    EXPECT_EQ(value("01 02 03 04 05 06", UnitParameter::unitID), "42");
}

TEST_F(ForeignDatagrams, RepliesCutAtEveryLength) {
    const SampleUnit unit;
    const std::vector<Bytes> replies{
        unit.reply(), unit.acknowledgement(), joined({unit.header(), textBytes("hello")}),
        joined({textBytes("^^"), item("<X>", unit.unitID), item("<S>", unit.serial), textBytes("$"),
                unit.parameterList()})};
    for (const Bytes& reply : replies) {
        for (std::size_t length = 0; length <= reply.size(); ++length) {
            expectOutcome(cut(reply, length));
            ASSERT_FALSE(HasFatalFailure()) << "length " << length;
        }
    }
}

TEST_F(ForeignDatagrams, ReplyIsStoredAtItsFullLengthAlone) {
    const Bytes reply = SampleUnit().reply();
    for (std::size_t length = 1; length < reply.size(); ++length) {
        receive(cut(reply, length));
        ASSERT_TRUE(controller.devices().records().empty()) << length;
    }
    receive(reply);
    EXPECT_EQ(controller.devices().records().size(), 1U);
}

TEST_F(ForeignDatagrams, RepliesWithAnySingleByteChanged) {
    const Bytes reply = SampleUnit().reply();
    for (std::size_t offset = 0; offset < reply.size(); ++offset) {
        for (unsigned byte = 0; byte < 256; ++byte) {
            expectOutcome(withByte(reply, offset, byte));
            ASSERT_FALSE(HasFatalFailure()) << "offset " << offset << " value " << byte;
        }
        controller.discoverButton();
    }
    expectWholeRegistry();
}

TEST_F(ForeignDatagrams, RandomItemsBehindAHeader) {
    // Tags with the lengths of their values; one of them is unknown.
    const std::vector<std::pair<const char*, unsigned>> tags{
        {"<M>", 6}, {"<I>", 4}, {"<D>", 4}, {"<T>", 2}, {"<P>", 2},
        {"<U>", 6}, {"<C>", 6}, {"<O>", 6}, {"<S>", 6}, {"<X>", 6}};
    std::mt19937 random(20231115); // the same bytes in every run
    for (int repeat = 0; repeat < 3000; ++repeat) {
        Bytes datagram = joined({SampleUnit().header(), item("<M>", SampleUnit().internalMAC)});
        for (auto count = random() % 12; count > 0; --count) {
            const auto& [tag, length] = tags[random() % tags.size()];
            const bool isCutShort = random() % 16 == 0;
            Bytes value(isCutShort ? random() % length : length);
            for (auto& byte : value) {
                byte = static_cast<std::uint8_t>(random());
            }
            datagram = joined({datagram, item(tag, value)});
        }
        expectOutcome(datagram);
        ASSERT_FALSE(HasFatalFailure()) << "repeat " << repeat;
    }
    EXPECT_GT(registry.size(), 100U);
    expectWholeRegistry();
}

} // namespace kx
