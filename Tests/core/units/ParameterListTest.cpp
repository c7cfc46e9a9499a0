#include "units/ParameterList.h"

#include "core/UnitReplies.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace kx {

namespace {

std::string value(const UnitRecord& record, UnitParameter parameter) {
    return std::string(record.value(parameter).value_or("(absent)"));
}

std::ptrdiff_t linesIn(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
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
    EXPECT_EQ(decoded.displayText, "\n\tinternal MAC address: 00:1A:2B:3C:4D:5E"
                                   "\n\tinternal IP address: 192.168.1.10"
                                   "\n\tdestination IP address: 192.168.1.1"
                                   "\n\tdestination Port number: 3520"
                                   "\n\tdevice Port number: 10000"
                                   "\n\tunit ID: 42"
                                   "\n\tdestination MAC address: 00:0A:0B:0C:0D:0E"
                                   "\n\tserial number: 01 02 03 04 05 06");
}

TEST(UnitParameterList, IsShownWithTheNamesThatItIsGiven) {
    ShownParameterNames names;
    for (const UnitParameter parameter : allUnitParameters) {
        names[static_cast<std::size_t>(parameter)] =
            "<" + std::string(nameOfUnitParameter(parameter)) + ">";
    }
    const Bytes list = joined(
        {item("<T>", {0x0D, 0xC0}), item("<O>", {1, 2, 3, 4, 5, 6}), item("<I>", {10, 0, 0, 1})});
    const auto decoded = decodeUnitParameters(list, &names);
    EXPECT_EQ(decoded.displayText, "\n\t<destination Port number>: 3520"
                                   "\n\t<O>: 01:02:03:04:05:06"
                                   "\n\t<internal IP address>: 10.0.0.1");
    EXPECT_EQ(decoded.record, decodeUnitParameters(list).record);
}

TEST(UnitParameterList, OfASampleReplyIsSixtyBytesBehindTheHeader) {
    EXPECT_EQ(SampleUnit().reply().size(), 81U);
    EXPECT_EQ(SampleUnit().header().size(), 21U);
}

TEST(UnitParameterList, MayBeEmpty) {
    const auto decoded = decodeUnitParameters({});
    EXPECT_EQ(decoded.record, UnitRecord());
    EXPECT_EQ(decoded.displayText, "");
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
    EXPECT_EQ(decoded.displayText, "\n\tserial number: 01 02 03 04 05 06"
                                   "\n\tinternal MAC address: 01:02:03:04:05:06");
}

TEST(UnitParameterList, EndsQuietlyAtAnUnknownTag) {
    UnitRecord portAlone;
    portAlone.setValue(UnitParameter::destinationPortNumber, "3520");
    for (const char* tag : {"<X>", "<m>", "<M]", "[M>", " <M"}) {
        const auto decoded = decodeUnitParameters(joined(
            {item("<T>", {0x0D, 0xC0}), item(tag, {1, 2, 3, 4, 5, 6}), item("<P>", {0, 80})}));
        EXPECT_EQ(decoded.displayText, "\n\tdestination Port number: 3520") << tag;
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

TEST(UnitParameterList, ShowsTheUninterpretedItemAndDoesNotKeepIt) {
    const auto decoded = decodeUnitParameters(item("<O>", {1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(decoded.displayText, "\n\t<O>: 01:02:03:04:05:06");
    EXPECT_EQ(decoded.record, UnitRecord());
}

TEST(UnitParameterList, KeepsTheLaterOfTwoItemsAndShowsBoth) {
    const auto decoded =
        decodeUnitParameters(joined({item("<I>", {10, 0, 0, 1}), item("<I>", {10, 0, 0, 2})}));
    EXPECT_EQ(value(decoded.record, UnitParameter::internalIPAddress), "10.0.0.2");
    EXPECT_EQ(decoded.displayText, "\n\tinternal IP address: 10.0.0.1"
                                   "\n\tinternal IP address: 10.0.0.2");
}

TEST(UnitParameterList, LeavesOutAUnitIDThatIsNotUTF8) {
    const Bytes notText{0xFF, 1, 2, 3, 4, 5};
    const auto decoded = decodeUnitParameters(item("<U>", notText));
    EXPECT_EQ(decoded.displayText, "\n\tunit ID: (null)");
    EXPECT_EQ(decoded.record, UnitRecord());

    const auto replaced =
        decodeUnitParameters(joined({item("<U>", {0, 0, 0, 0, 0, 42}), item("<U>", notText)}));
    EXPECT_EQ(replaced.displayText, "\n\tunit ID: 42\n\tunit ID: (null)");
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
        EXPECT_EQ(linesIn(decodeUnitParameters(whole).displayText), 1) << tag;
    }
}

TEST(UnitParameterList, MayHoldFarMoreItemsThanThereAreParameters) {
    Bytes list;
    for (int repeat = 0; repeat < 400; ++repeat) {
        const Bytes one = item("<T>", {0x0D, static_cast<std::uint8_t>(repeat)});
        list.insert(list.end(), one.begin(), one.end());
    }
    const auto decoded = decodeUnitParameters(list);
    EXPECT_EQ(linesIn(decoded.displayText), 400);
    EXPECT_EQ(value(decoded.record, UnitParameter::destinationPortNumber),
              std::to_string(0x0D00 + 399 % 256));
}

} // namespace kx
