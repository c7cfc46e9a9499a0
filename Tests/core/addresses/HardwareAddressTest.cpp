#include "addresses/HardwareAddress.h"

#include "doubles/MarkedLocalizedText.h"
#include "doubles/NoMemory.h"
#include "doubles/RecordedSystemLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace kx {

namespace {

using Lines = std::vector<std::string>;
using Octets = HardwareAddress::Octets;

constexpr Octets sample = {0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E};

class NamedHardwareAddress final : public HardwareAddress {
public:
    std::string name = "uplink";
};

class SomethingElse final : public FormattedObject {};

HardwareAddress addressOf(const Octets& octets) {
    HardwareAddress address;
    address.setHardwareAddress(octets);
    return address;
}

struct Parse {
    explicit Parse(std::string_view text)
        : isParsed(
              HardwareAddressFormatter::sharedInstance().getObjectValueForStringErrorDescription(
                  object, text, &error)) {}

    std::shared_ptr<HardwareAddress> object;
    std::optional<std::string> error = "not cleared";
    bool isParsed;
};

} // namespace

TEST(HardwareAddress, ANewOneIsAllZero) {
    const HardwareAddress address;
    EXPECT_EQ(address.stringValue(), "00:00:00:00:00:00");
    EXPECT_EQ(address.length(), 6U);
}

TEST(HardwareAddress, OctetsAreCopiedInAndOut) {
    HardwareAddress address = addressOf(sample);
    EXPECT_EQ(address.stringValue(), "00:1A:2B:3C:4D:5E");
    EXPECT_EQ(address.description(), "00:1A:2B:3C:4D:5E");
    Octets octets{};
    address.getHardwareAddress(octets);
    EXPECT_EQ(octets, sample);
}

TEST(HardwareAddress, OctetsCanBeWrittenThroughThePointer) {
    HardwareAddress address;
    address.hardwareAddress()[0] = 0xAB;
    address.bytes()[5] = 0xCD;
    EXPECT_EQ(address.stringValue(), "AB:00:00:00:00:CD");
    EXPECT_EQ(address.bytes(), address.hardwareAddress());
    const HardwareAddress& constant = address;
    EXPECT_EQ(constant.bytes(), constant.hardwareAddress());
}

TEST(HardwareAddress, SetStringValueTakesOverAnAddressAndNormalisesIt) {
    const RecordedSystemLog log;
    HardwareAddress address;
    EXPECT_TRUE(address.setStringValue("0:1a:2B:c:d:e"));
    EXPECT_EQ(address.stringValue(), "00:1A:2B:0C:0D:0E");
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(HardwareAddress, SetStringValueLogsAFailureAndLeavesTheOctets) {
    const RecordedSystemLog log;
    HardwareAddress address = addressOf(sample);
    EXPECT_FALSE(address.setStringValue("00:11:22:33:44"));
    EXPECT_EQ(address.stringValue(), "00:1A:2B:3C:4D:5E");
    EXPECT_EQ(log.lines(), (Lines{"Input: 00:11:22:33:44",
                                  "HardwareAddressFormatter: invalid Ethernet address"}));
}

TEST(HardwareAddress, SetStringValueOfAnEmptyTextLogsThatThereIsNone) {
    const RecordedSystemLog log;
    HardwareAddress address = addressOf(sample);
    EXPECT_FALSE(address.setStringValue(""));
    EXPECT_EQ(address.stringValue(), "00:1A:2B:3C:4D:5E");
    EXPECT_EQ(log.lines(), Lines{"HardwareAddressFormatter: inString is nil"});
}

TEST(HardwareAddress, ACopyIsOfItsOwn) {
    HardwareAddress address = addressOf(sample);
    const HardwareAddress copy = address.copy();
    address.bytes()[0] = 0xFF;
    EXPECT_EQ(copy.stringValue(), "00:1A:2B:3C:4D:5E");
}

TEST(HardwareAddress, ACopyOfASubclassIsAPlainAddress) {
    NamedHardwareAddress named;
    named.setHardwareAddress(sample);
    const auto copy = named.copy();
    static_assert(std::is_same_v<decltype(copy), const HardwareAddress>);
    EXPECT_EQ(copy.stringValue(), "00:1A:2B:3C:4D:5E");
}

TEST(HardwareAddressFormatter, IsOneForTheProcess) {
    EXPECT_EQ(&HardwareAddressFormatter::sharedInstance(),
              &HardwareAddressFormatter::sharedInstance());
}

TEST(HardwareAddressFormatter, FormatsHardwareAddressesAndSubclassesOnly) {
    const auto& formatter = HardwareAddressFormatter::sharedInstance();
    const HardwareAddress address = addressOf(sample);
    NamedHardwareAddress named;
    named.setHardwareAddress(sample);
    const SomethingElse other;
    EXPECT_EQ(formatter.stringForObjectValue(&address), "00:1A:2B:3C:4D:5E");
    EXPECT_EQ(formatter.stringForObjectValue(&named), "00:1A:2B:3C:4D:5E");
    EXPECT_EQ(formatter.stringForObjectValue(&other), std::nullopt);
    EXPECT_EQ(formatter.stringForObjectValue(nullptr), std::nullopt);
}

TEST(HardwareAddressFormatter, AnAttributedStringHasTheTextAndTheGivenAttributes) {
    const auto& formatter = HardwareAddressFormatter::sharedInstance();
    const HardwareAddress address = addressOf(sample);
    const PropertyDictionary attributes = {{"Font", "Fixed"}};
    const auto attributed =
        formatter.attributedStringForObjectValueWithDefaultAttributes(&address, attributes);
    ASSERT_TRUE(attributed.has_value());
    EXPECT_EQ(attributed->text, "00:1A:2B:3C:4D:5E");
    EXPECT_EQ(attributed->attributes, attributes);
    EXPECT_FALSE(formatter.attributedStringForObjectValueWithDefaultAttributes(nullptr, attributes)
                     .has_value());
}

TEST(HardwareAddressFormatter, ParsesSixGroupsAndClearsTheError) {
    const RecordedSystemLog log;
    for (const auto* text : {"0:1:2:a:b:c", "00-01-02-0A-0B-0C", "00:01-02:0a-0b:0c",
                             "0:1:2:a:b:c on en0", "500:1:2:a:b:c"}) {
        const Parse parse(text);
        EXPECT_TRUE(parse.isParsed) << text;
        ASSERT_NE(parse.object, nullptr);
        EXPECT_EQ(parse.object->stringValue(), "00:01:02:0A:0B:0C") << text;
        EXPECT_EQ(parse.error, std::nullopt);
    }
    EXPECT_EQ(Parse(":::::").object->stringValue(), "00:00:00:00:00:00");
    EXPECT_TRUE(Parse(":::::").isParsed);
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(HardwareAddressFormatter, OfMoreThanTwoDigitsTheLastTwoCount) {
    EXPECT_EQ(Parse("100:11:22:33:44:55").object->bytes()[0], 0);
}

TEST(HardwareAddressFormatter, AnEmptyTextIsAnErrorWithoutAnObject) {
    const RecordedSystemLog log;
    const Parse parse("");
    EXPECT_FALSE(parse.isParsed);
    EXPECT_EQ(parse.object, nullptr);
    EXPECT_EQ(parse.error, "HardwareAddressFormatter: inString is nil");
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(HardwareAddressFormatter, AMissingGroupIsAnErrorWithThePartlyFilledObject) {
    const RecordedSystemLog log;
    const Parse parse("10:11:22:33:44");
    EXPECT_FALSE(parse.isParsed);
    ASSERT_NE(parse.object, nullptr);
    EXPECT_EQ(parse.object->stringValue(), "10:11:22:33:44:00");
    EXPECT_EQ(parse.error, "HardwareAddressFormatter: invalid Ethernet address");
    EXPECT_EQ(log.lines(), Lines{"Input: 10:11:22:33:44"});
}

TEST(HardwareAddressFormatter, BlanksAndNothingAtAllAreNoSeparators) {
    const RecordedSystemLog log;
    EXPECT_FALSE(Parse("00 11 22 33 44 55").isParsed);
    EXPECT_FALSE(Parse("001122334455").isParsed);
    EXPECT_FALSE(Parse(" 00:11:22:33:44:55").isParsed);
    EXPECT_EQ(Parse("001122334455").object->stringValue(), "55:00:00:00:00:00");
}

TEST(HardwareAddressFormatter, ColonAndHyphenAreTheOnlySeparators) {
    const RecordedSystemLog log;
    for (int byte = 0; byte < 128; ++byte) {
        std::string text = "g1g2g3g4g5g6"; // g stands for the character
        std::ranges::replace(text, 'g', static_cast<char>(byte));
        const bool isSeparator = byte == ':' || byte == '-';
        EXPECT_EQ(Parse("0" + text.substr(0, 10)).isParsed, isSeparator) << byte;
        HardwareAddress address;
        EXPECT_EQ(address.setStringValue("0" + text), isSeparator) << byte;
    }
}

TEST(HardwareAddressFormatter, TheInputIsLoggedAlsoWhenNobodyWantsTheError) {
    const RecordedSystemLog log;
    const auto& formatter = HardwareAddressFormatter::sharedInstance();
    std::shared_ptr<HardwareAddress> object;
    EXPECT_FALSE(formatter.getObjectValueForStringErrorDescription(object, "1:2", nullptr));
    EXPECT_FALSE(formatter.getObjectValueForStringErrorDescription(object, "", nullptr));
    EXPECT_TRUE(formatter.getObjectValueForStringErrorDescription(object, "1:2:3:4:5:6", nullptr));
    EXPECT_EQ(log.lines(), Lines{"Input: 1:2"});
}

TEST(HardwareAddressFormatter, ErrorsAreLocalizedAndTheInputLineIsNot) {
    const MarkedLocalizedText localized;
    const RecordedSystemLog log;
    EXPECT_EQ(Parse("").error, "<HardwareAddressFormatter: inString is nil>");
    EXPECT_EQ(Parse("x").error, "<HardwareAddressFormatter: invalid Ethernet address>");
    EXPECT_EQ(log.lines(), Lines{"Input: x"});
}

TEST(HardwareAddressFormatter, WithoutMemoryTheErrorSaysSo) {
    const RecordedSystemLog log;
    const NoMemory noMemory;
    const Parse parse("0:1:2:3:4:5");
    EXPECT_FALSE(parse.isParsed);
    EXPECT_EQ(parse.object, nullptr);
    EXPECT_EQ(parse.error, "HardwareAddressFormatter: object could not be allocated");
    std::shared_ptr<HardwareAddress> object;
    EXPECT_FALSE(HardwareAddressFormatter::sharedInstance().getObjectValueForStringErrorDescription(
        object, "0:1:2:3:4:5", nullptr));
    EXPECT_EQ(log.lines(), Lines{});
}

TEST(HardwareAddressFormatter, ATextOf256CharactersReadsNoDigitsAtItsBeginning) {
    const RecordedSystemLog log;
    const std::string address = "00:11:22:33:44:55";
    EXPECT_TRUE(Parse(address + std::string(255 - address.size(), ' ')).isParsed);
    EXPECT_FALSE(Parse(address + std::string(256 - address.size(), ' ')).isParsed);
}

TEST(HardwareAddressFormatter, NoTextIsReadBeyondItsEnd) {
    const RecordedSystemLog log;
    const std::string text = "01:02-03:04:05\xC3\xA9";
    for (std::size_t length = 0; length <= text.size(); ++length) {
        // A copy of exactly this size, so that a sanitizer sees every byte too many.
        const std::vector<char> copy(text.begin(), text.begin() + static_cast<long>(length));
        EXPECT_FALSE(Parse(std::string_view(copy.data(), copy.size())).isParsed);
    }
}

} // namespace kx
