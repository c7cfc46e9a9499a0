#include "units/ParameterList.h"

#include "core/UnitReplies.h"

#include <gtest/gtest.h>

#include <string>

namespace kx {

namespace {

std::string value(const UnitRecord& record, UnitParameter parameter) {
    return std::string(record.value(parameter).value_or("(absent)"));
}

// The items in their order, each as "\nNAME: TEXT".
std::string told(const DecodedUnitParameters& decoded) {
    std::string text;
    for (const ToldParameter& item : decoded.items) {
        text += '\n';
        text += item.parameter.has_value() ? nameOfUnitParameter(*item.parameter) : "(none)";
        text += ": ";
        text += item.text.view().value_or("(absent)");
    }
    return text;
}

} // namespace

TEST(UnitParameterList, WithEveryItemGivesEveryValue) {
    const auto decoded = decodeUnitParameters(SampleUnit().parameterList());
    EXPECT_EQ(value(decoded.record, UnitParameter::internalMACAddress), "00:1A:2B:3C:4D:5E");
    EXPECT_EQ(value(decoded.record, UnitParameter::internalIPAddress), "192.168.1.10");
    EXPECT_EQ(value(decoded.record, UnitParameter::destinationIPAddress), "192.168.1.1");
    EXPECT_EQ(value(decoded.record, UnitParameter::destinationPortNumber), "3520");
    EXPECT_EQ(value(decoded.record, UnitParameter::devicePortNumber), "10000");
    EXPECT_EQ(value(decoded.record, UnitParameter::unitID), "42");
    EXPECT_EQ(value(decoded.record, UnitParameter::destinationMACAddress), "00:0A:0B:0C:0D:0E");
    EXPECT_EQ(value(decoded.record, UnitParameter::serialNumber), "01 02 03 04 05 06");
    EXPECT_EQ(told(decoded), "\ninternal MAC address: 00:1A:2B:3C:4D:5E"
                             "\ninternal IP address: 192.168.1.10"
                             "\ndestination IP address: 192.168.1.1"
                             "\ndestination Port number: 3520"
                             "\ndevice Port number: 10000"
                             "\nunit ID: 42"
                             "\ndestination MAC address: 00:0A:0B:0C:0D:0E"
                             "\nserial number: 01 02 03 04 05 06");
}

TEST(UnitParameterList, OfASampleReplyIsSixtyBytesBehindTheHeader) {
    EXPECT_EQ(SampleUnit().reply().size(), 81U);
    EXPECT_EQ(SampleUnit().header().size(), 21U);
}

TEST(UnitParameterList, MayBeEmpty) {
    const auto decoded = decodeUnitParameters({});
    EXPECT_EQ(decoded.record, UnitRecord());
    EXPECT_EQ(told(decoded), "");
}

TEST(UnitParameterList, ShowsPortsUnsigned) {
    const auto decoded =
        decodeUnitParameters(joined({item("<T>", {0xFF, 0xFF}), item("<P>", {0x00, 0x00})}));
    EXPECT_EQ(value(decoded.record, UnitParameter::destinationPortNumber), "65535");
    EXPECT_EQ(value(decoded.record, UnitParameter::devicePortNumber), "0");
}

TEST(UnitParameterList, TakesEveryAddressAsItIs) {
    const auto decoded = decodeUnitParameters(
        joined({item("<I>", {255, 255, 255, 255}), item("<D>", {0, 0, 0, 0})}));
    EXPECT_EQ(value(decoded.record, UnitParameter::internalIPAddress), "255.255.255.255");
    EXPECT_EQ(value(decoded.record, UnitParameter::destinationIPAddress), "0.0.0.0");
}

TEST(UnitParameterList, TakesItemsInAnyOrder) {
    const auto decoded = decodeUnitParameters(
        joined({item("<S>", {1, 2, 3, 4, 5, 6}), item("<M>", {1, 2, 3, 4, 5, 6})}));
    EXPECT_EQ(told(decoded), "\nserial number: 01 02 03 04 05 06"
                             "\ninternal MAC address: 01:02:03:04:05:06");
}

TEST(UnitParameterList, EndsQuietlyAtAnUnknownTag) {
    UnitRecord portAlone;
    portAlone.setValue(UnitParameter::destinationPortNumber, "3520");
    for (const char* tag : {"<X>", "<m>", "<M]", "[M>", " <M"}) {
        const auto decoded = decodeUnitParameters(joined(
            {item("<T>", {0x0D, 0xC0}), item(tag, {1, 2, 3, 4, 5, 6}), item("<P>", {0, 80})}));
        EXPECT_EQ(told(decoded), "\ndestination Port number: 3520") << tag;
        EXPECT_EQ(decoded.record, portAlone) << tag;
    }
}

TEST(UnitParameterList, EndsQuietlyAtOneOrTwoBytesMore) {
    for (const char* rest : {"\r", "\r\n", "<M"}) {
        const auto decoded =
            decodeUnitParameters(joined({SampleUnit().parameterList(), textBytes(rest)}));
        EXPECT_EQ(decoded.record, decodeUnitParameters(SampleUnit().parameterList()).record);
    }
}

TEST(UnitParameterList, TellsTheUninterpretedItemAndDoesNotKeepIt) {
    const auto decoded = decodeUnitParameters(item("<O>", {1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(told(decoded), "\n(none): 01:02:03:04:05:06");
    EXPECT_EQ(decoded.record, UnitRecord());
}

TEST(UnitParameterList, KeepsTheLaterOfTwoItemsAndTellsBoth) {
    const auto decoded =
        decodeUnitParameters(joined({item("<I>", {10, 0, 0, 1}), item("<I>", {10, 0, 0, 2})}));
    EXPECT_EQ(value(decoded.record, UnitParameter::internalIPAddress), "10.0.0.2");
    EXPECT_EQ(told(decoded), "\ninternal IP address: 10.0.0.1"
                             "\ninternal IP address: 10.0.0.2");
}

TEST(UnitParameterList, LeavesOutAUnitIDThatIsNotUTF8) {
    const Bytes notText{0xFF, 1, 2, 3, 4, 5};
    const auto decoded = decodeUnitParameters(item("<U>", notText));
    EXPECT_EQ(told(decoded), "\nunit ID: (absent)");
    EXPECT_EQ(decoded.record, UnitRecord());

    const auto replaced =
        decodeUnitParameters(joined({item("<U>", {0, 0, 0, 0, 0, 42}), item("<U>", notText)}));
    EXPECT_EQ(told(replaced), "\nunit ID: 42\nunit ID: (absent)");
    EXPECT_EQ(replaced.record, UnitRecord());
}

TEST(UnitParameterList, ItemCutShortIsARangeFailure) {
    for (const auto& [tag, length] : std::vector<std::pair<const char*, std::size_t>>{{"<M>", 6},
                                                                                      {"<I>", 4},
                                                                                      {"<D>", 4},
                                                                                      {"<T>", 2},
                                                                                      {"<P>", 2},
                                                                                      {"<U>", 6},
                                                                                      {"<C>", 6},
                                                                                      {"<O>", 6},
                                                                                      {"<S>", 6}}) {
        for (std::size_t present = 0; present < length; ++present) {
            const Bytes list = joined({item("<P>", {0, 80}), item(tag, Bytes(present, 1))});
            EXPECT_THROW(decodeUnitParameters(list), RangeFailure) << tag << present;
        }
        const Bytes whole = item(tag, Bytes(length, 1));
        EXPECT_EQ(decodeUnitParameters(whole).items.size(), 1U) << tag;
    }
}

TEST(UnitParameterList, MayHoldFarMoreItemsThanThereAreParameters) {
    Bytes list;
    for (int repeat = 0; repeat < 400; ++repeat) {
        const Bytes one = item("<T>", {0x0D, static_cast<std::uint8_t>(repeat)});
        list.insert(list.end(), one.begin(), one.end());
    }
    const auto decoded = decodeUnitParameters(list);
    EXPECT_EQ(decoded.items.size(), 400U);
    EXPECT_EQ(value(decoded.record, UnitParameter::destinationPortNumber),
              std::to_string(0x0D00 + 399 % 256));
}

} // namespace kx
