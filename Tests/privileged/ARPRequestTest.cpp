#include "PrivilegedTool/ARPRequest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace kxarp {

namespace {

using Words = std::vector<std::string_view>;

constexpr std::string_view address = "192.0.2.7";
constexpr std::string_view hardwareAddress = "02:4B:58:00:00:01";

std::optional<Failure> failureOf(const Words& words) {
    const auto result = requestOf(words);
    const auto* const failure = std::get_if<Failure>(&result);
    return failure != nullptr ? std::optional(*failure) : std::nullopt;
}

std::optional<Failure> failureOfAddress(std::string_view text) {
    return failureOf({"-s", text, hardwareAddress});
}

std::optional<Failure> failureOfHardwareAddress(std::string_view text) {
    return failureOf({"-s", address, text});
}

} // namespace

TEST(ARPRequest, IsOneOfTwoVerbsWithBothAddressesAsTheyWereGiven) {
    for (const auto& [word, verb] :
         {std::pair("-s", Verb::enter), std::pair("-d", Verb::takeOut)}) {
        const Words words{word, address, "02:4b:58:00:00:0F"};
        const auto result = requestOf(words);
        ASSERT_TRUE(std::holds_alternative<Request>(result)) << word;
        EXPECT_EQ(std::get<Request>(result).verb, verb);
        EXPECT_EQ(std::get<Request>(result).address, address);
        EXPECT_EQ(std::get<Request>(result).hardwareAddress, "02:4b:58:00:00:0F");
    }
}

TEST(ARPRequest, IsNoOtherListOfWords) {
    const std::vector<Words> lists{
        {},
        {"-s"},
        {"-s", address},
        {"-s", address, hardwareAddress, "pub"},
        {"-s", address, hardwareAddress, ""},
        {"-s", address, hardwareAddress, "-f", "/etc/shadow"},
        {"-s", address, hardwareAddress, "netmask", "255.255.255.0"},
        {"-v", "-f", "/etc/shadow"},
        {"-f", "/etc/shadow"},
        {"-f", address, hardwareAddress},
        {"-s", "-v", "-f", "/etc/shadow"},
        {"-vf", address, hardwareAddress},
        {"-sf", address, hardwareAddress},
        {"-s ", address, hardwareAddress},
        {" -s", address, hardwareAddress},
        {"-S", address, hardwareAddress},
        {"-D", address, hardwareAddress},
        {"--set", address, hardwareAddress},
        {"--", address, hardwareAddress},
        {"-", address, hardwareAddress},
        {"", address, hardwareAddress},
        {"s", address, hardwareAddress},
        {"-a", address, hardwareAddress},
        {"-i", address, hardwareAddress},
        {std::string_view("-s\0", 3), address, hardwareAddress},
        {address, "-s", hardwareAddress},
        {address, hardwareAddress, "-s"},
    };
    for (const Words& words : lists) {
        EXPECT_EQ(failureOf(words), Failure::badWords) << testing::PrintToString(words);
    }
}

TEST(ARPRequest, TakesOptionsInThePlaceOfAddressesForNoAddresses) {
    for (const std::string_view option : {"-f", "-v", "-i", "-d", "-s", "-a", "-n", "-D", "-H",
                                          "--file", "--", "-", "-f/etc/shadow"}) {
        EXPECT_EQ(failureOfAddress(option), Failure::badAddress) << option;
        EXPECT_EQ(failureOfHardwareAddress(option), Failure::badHardwareAddress) << option;
    }
}

TEST(ARPRequest, AnAddressIsFourNumbersThatEverybodyReadsAlike) {
    for (const std::string_view text : {"0.0.0.0", "1.2.3.4", "10.0.0.7", "192.0.2.255",
                                        "255.255.255.255", "100.200.30.0", "127.0.0.1"}) {
        EXPECT_EQ(failureOfAddress(text), std::nullopt) << text;
    }
}

TEST(ARPRequest, EveryNumberOfAnAddressIsReadInEachPlace) {
    for (int place = 0; place < 4; ++place) {
        for (int number = 0; number <= 1000; ++number) {
            std::ostringstream text;
            for (int i = 0; i < 4; ++i) {
                text << (i == 0 ? "" : ".") << (i == place ? number : 7);
            }
            EXPECT_EQ(failureOfAddress(text.str()).has_value(), number > 255) << text.str();
        }
    }
}

TEST(ARPRequest, AnAddressHasNoOtherForm) {
    const std::vector<std::string_view> texts{"",
                                              ".",
                                              "...",
                                              "1",
                                              "1.2",
                                              "1.2.3",
                                              "1.2.3.",
                                              ".1.2.3",
                                              "1..2.3",
                                              "1.2.3.4.",
                                              "1.2.3.4.5",
                                              "01.2.3.4",
                                              "1.02.3.4",
                                              "1.2.003.4",
                                              "1.2.3.04",
                                              "1.2.3.00",
                                              "192.0.2.010",
                                              "00.0.0.0",
                                              "0x1.2.3.4",
                                              "1.2.3.0x4",
                                              "0xC0000207",
                                              "3221225991",
                                              "1.2.3.4/24",
                                              "1.2.3.4:80",
                                              "1.2.3.4 ",
                                              " 1.2.3.4",
                                              "1. 2.3.4",
                                              "1.2.3.4\n",
                                              "1.2.3.4\t",
                                              "+1.2.3.4",
                                              "-1.2.3.4",
                                              "1.2.3.-4",
                                              "1.2.3.+4",
                                              "1.2.3.256",
                                              "256.2.3.4",
                                              "1.2.3.4294967296",
                                              "1.2.3.18446744073709551620",
                                              "1.2.3.a",
                                              "1,2,3,4",
                                              "localhost",
                                              "unit.example",
                                              "a.b.c.d",
                                              "1.2.3.4 netmask",
                                              "1.2.3.4;reboot",
                                              "1.2.3.4%eth0",
                                              "::1",
                                              "::ffff:1.2.3.4",
                                              "1.2.3.\xD9\xA4",
                                              "\xEF\xBC\x91.2.3.4",
                                              "1.2.3.1e1",
                                              std::string_view("1.2.3.4\0", 8),
                                              std::string_view("1.2\0.3.4", 8)};
    for (const std::string_view text : texts) {
        EXPECT_EQ(failureOfAddress(text), Failure::badAddress) << text;
    }
    EXPECT_EQ(failureOfAddress(std::string(100'000, '1')), Failure::badAddress);
    EXPECT_EQ(failureOfAddress(std::string(100'000, '.')), Failure::badAddress);
}

TEST(ARPRequest, AHardwareAddressNamesOneHost) {
    for (const std::string_view text :
         {"02:4B:58:00:00:01", "00:00:00:00:00:01", "fe:ff:ff:ff:ff:ff", "aA:bB:cC:dD:eE:fF",
          "00:1A:2B:3C:4D:5E"}) {
        EXPECT_EQ(failureOfHardwareAddress(text), std::nullopt) << text;
    }
}

TEST(ARPRequest, EveryFirstOctetIsAGroupsOrOneHosts) {
    for (unsigned octet = 0; octet < 256; ++octet) {
        std::ostringstream text;
        text << std::hex << octet / 16 << octet % 16 << ":00:00:00:00:01";
        EXPECT_EQ(failureOfHardwareAddress(text.str()).has_value(), octet % 2 == 1) << text.str();
    }
}

TEST(ARPRequest, EveryCharacterInEachPlaceOfAHardwareAddressIsLookedAt) {
    const std::string good = "02:4B:58:00:00:01";
    for (std::size_t place = 0; place < good.size(); ++place) {
        for (int character = 0; character < 256; ++character) {
            std::string text = good;
            text[place] = static_cast<char>(character);
            const bool isDigit = std::string_view("0123456789abcdefABCDEF").find(text[place]) !=
                                 std::string_view::npos;
            const bool isGroup =
                place == 1 && isDigit && (std::stoi(text.substr(1, 1), nullptr, 16) & 1) != 0;
            const bool isGood = place % 3 == 2 ? character == ':' : isDigit && !isGroup;
            EXPECT_EQ(failureOfHardwareAddress(text).has_value(), !isGood)
                << place << ' ' << character;
        }
    }
}

TEST(ARPRequest, AHardwareAddressHasNoOtherForm) {
    const std::vector<std::string_view> texts{"",
                                              ":",
                                              "02",
                                              "024B58000001",
                                              "02-4B-58-00-00-01",
                                              "2:4b:58:0:0:1",
                                              "02:4B:58:00:00",
                                              "02:4B:58:00:00:01:02",
                                              "02:4B:58:00:00:01 ",
                                              " 02:4B:58:00:00:01",
                                              "02:4B:58:00:00:01\n",
                                              "02:4B:58:00:00:0g",
                                              "0x:4B:58:00:00:01",
                                              "+2:4B:58:00:00:01",
                                              "-2:4B:58:00:00:01",
                                              "02:4B:58:00:00:",
                                              "00:00:00:00:00:00",
                                              "FF:FF:FF:FF:FF:FF",
                                              "01:00:5E:00:00:01",
                                              "33:33:00:00:00:01",
                                              "temp",
                                              "pub",
                                              "eth0",
                                              "netmask",
                                              "priv",
                                              "unit.example",
                                              std::string_view("02:4B:58:00:00:01\0", 18)};
    for (const std::string_view text : texts) {
        EXPECT_EQ(failureOfHardwareAddress(text), Failure::badHardwareAddress) << text;
    }
}

TEST(ARPRequest, EachFailureHasOneSentenceAndAStatusOfItsOwn) {
    std::vector<std::string> sentences;
    for (const Failure failure :
         {Failure::badWords, Failure::badAddress, Failure::badHardwareAddress, Failure::noSuchEntry,
          Failure::noTable, Failure::noTool}) {
        const std::string sentence = sentenceOf(failure);
        EXPECT_TRUE(sentence.ends_with('.')) << sentence;
        EXPECT_EQ(sentence.find('\n'), std::string::npos);
        EXPECT_EQ(std::ranges::count(sentences, sentence), 0) << sentence;
        sentences.push_back(sentence);
        EXPECT_GE(static_cast<int>(failure), 64);
        EXPECT_LE(static_cast<int>(failure), 78); // below what shells and launchers use
    }
}

TEST(ARPRequest, ALineOfTheTableIsUnderstoodWhenItIsAFixedEntryOfBothAddresses) {
    const Request request{Verb::takeOut, address, hardwareAddress};
    const auto interface = [&](std::string_view line) {
        return interfaceOfEntry(line, request).value_or("(none)");
    };
    EXPECT_EQ(
        interface("192.0.2.7        0x1         0x6         02:4b:58:00:00:01     *        kx0"),
        "kx0");
    EXPECT_EQ(interface("192.0.2.7 0x1 0x4 02:4B:58:00:00:01 * -x"), "-x");
    EXPECT_EQ(interface("192.0.2.7 0x1 0x6 02:4b:58:00:00:01 * kx0 "), "kx0");
    for (const std::string_view line :
         {"", " ", "192.0.2.7", "192.0.2.7 0x1 0x2 02:4b:58:00:00:01 * kx0",
          "192.0.2.7 0x1 0x0 02:4b:58:00:00:01 * kx0", "192.0.2.7 0x1 6 02:4b:58:00:00:01 * kx0",
          "192.0.2.7 0x1 0x 02:4b:58:00:00:01 * kx0", "192.0.2.7 0x1 0x6 02:4b:58:00:00:02 * kx0",
          "192.0.2.77 0x1 0x6 02:4b:58:00:00:01 * kx0", "192.0.2.7 0x1 0x6 02:4b:58:00:00:01 *",
          "192.0.2.7 0x1 0x6 02:4b:58:00:00:01 * kx0 more",
          "IP address       HW type     Flags       HW address            Mask     Device"}) {
        EXPECT_EQ(interface(line), "(none)") << line;
    }
}

// The window says what it would do only because it hears the same words.
TEST(ARPRequest, TheHostsPolicyNamesTheToolAndItsVerbs) {
    std::ifstream file(KX_SOURCE_DIR "/Resources/org.kxconfig.KXConfig.policy");
    std::stringstream text;
    text << file.rdbuf();
    const std::string policy = text.str();
    const auto count = [&](std::string_view part) {
        std::size_t found = 0;
        for (auto at = policy.find(part); at != std::string::npos; at = policy.find(part, at + 1)) {
            ++found;
        }
        return found;
    };
    EXPECT_EQ(count("exec.path\">/usr/libexec/kxconfig/kxarp</annotate>"), 2U);
    EXPECT_EQ(count("exec.path"), 2U);
    EXPECT_EQ(count("exec.argv1\">-s</annotate>"), 1U);
    EXPECT_EQ(count("exec.argv1\">-d</annotate>"), 1U);
    EXPECT_EQ(count("/usr/sbin/arp"), 0U);
    // There is no other action, and every language of the dialogs of these two shows the addresses.
    EXPECT_EQ(count("<action id="), 2U);
    EXPECT_EQ(count("</message>"), 10U);
    EXPECT_EQ(count("$(command_line)</message>"), 10U);
}

} // namespace kxarp
