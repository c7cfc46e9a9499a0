#include "platform/linux/KeyPattern.h"

#include <gtest/gtest.h>

#include <random>
#include <regex>

namespace kx {

namespace {

bool matches(std::string_view pattern, std::string_view key) {
    const auto parsed = KeyPattern::parse(pattern);
    EXPECT_TRUE(parsed.has_value()) << pattern;
    return parsed.has_value() && parsed->matches(key);
}

std::string pieces(std::mt19937& random, const std::vector<std::string>& choice) {
    std::string result;
    for (auto count = random() % 7; count > 0; --count) {
        result += choice[random() % choice.size()];
    }
    return result;
}

} // namespace

TEST(KeyPattern, AConstructStandsForOneComponent) {
    const std::string pattern = "State:/Network/Service/[^/]+/IPv4";
    EXPECT_TRUE(matches(pattern, "State:/Network/Service/1234/IPv4"));
    EXPECT_TRUE(matches(pattern, "State:/Network/Service/ä b/IPv4"));
    for (const auto* key : {"", "State:/Network/Service//IPv4", "State:/Network/Service/1/2/IPv4",
                            "State:/Network/Service/1234/IPv4/", "State:/Network/Service/1234/IPv6",
                            " State:/Network/Service/1234/IPv4", "State:/Network/Service/IPv4"}) {
        EXPECT_FALSE(matches(pattern, key)) << key;
    }
}

TEST(KeyPattern, TextWithoutAConstructDescribesItselfAlone) {
    EXPECT_TRUE(matches("Setup:/", "Setup:/"));
    EXPECT_FALSE(matches("Setup:/", "Setup:/x"));
    EXPECT_TRUE(matches("", ""));
    EXPECT_FALSE(matches("", "x"));
}

TEST(KeyPattern, AnyOtherConstructIsRefused) {
    for (const auto* pattern : {"[^/+", "[^/]*", "[^/]+?", "a.b", "a|b", "(a)", "a{2}", "^a", "a$",
                                "a+", "\\d", "[a]", "]", "[[^/]+]"}) {
        EXPECT_FALSE(KeyPattern::parse(pattern).has_value()) << pattern;
    }
}

TEST(KeyPattern, ItAgreesWithRegularExpressions) {
    std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same patterns each time
    for (int i = 0; i < 20'000; ++i) {
        const auto pattern = pieces(random, {"[^/]+", "[^/]+", "/", "a", "b"});
        const auto key = pieces(random, {"/", "a", "a", "b"});
        EXPECT_EQ(matches(pattern, key), std::regex_match(key, std::regex(pattern)))
            << pattern << " and " << key;
    }
}

TEST(KeyPattern, AVeryLongKeyIsNoDanger) {
    const std::string component(1'000'000, 'a');
    EXPECT_TRUE(matches("[^/]+/[^/]+", component + "/" + component));
    EXPECT_FALSE(matches("[^/]+aa[^/]+b", component));
}

} // namespace kx
