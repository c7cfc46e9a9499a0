#include "support/Error.h"

#include "support/LocalizedText.h"
#include "support/TextFormat.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>

namespace kx {
namespace {

Error networkError(int code) {
    return Error{std::string(kCFErrorDomainCFNetwork), code, std::nullopt};
}

TEST(Error, OfTheSystemIsDescribedByTheSystemsText) {
    for (const int code : {EPIPE, EADDRINUSE, ENETUNREACH, EACCES}) {
        EXPECT_EQ(posixError(code).localizedDescription(), std::strerror(code));
        EXPECT_EQ(posixErrorText(code), std::strerror(code));
    }
}

TEST(Error, OfTheSystemHasItsDomainAndNoUserInfo) {
    EXPECT_EQ(posixError(EPIPE), (Error{"NSPOSIXErrorDomain", EPIPE, std::nullopt}));
}

TEST(Error, OfAResolutionIsDescribedByASentence) {
    EXPECT_EQ(networkError(kCFHostErrorHostNotFound).localizedDescription(),
              "The host has no IPv4 address that can be reached.");
    EXPECT_EQ(networkError(kCFHostErrorUnknown).localizedDescription(),
              "The host name could not be resolved.");
}

TEST(Error, OfAnyOtherKindIsDescribedByDomainAndCode) {
    EXPECT_EQ(networkError(99).localizedDescription(),
              "The operation could not be completed (kCFErrorDomainCFNetwork error 99).");
    EXPECT_EQ((Error{"other", kCFHostErrorUnknown, std::nullopt}).localizedDescription(),
              "The operation could not be completed (other error 2).");
}

TEST(Error, DescriptionIsInTheUsersLanguage) {
    class Brackets final : public LocalizedText {
    public:
        std::string textForKey(std::string_view key) const override {
            return filledText("[%@]", {key});
        }
    };
    const Brackets brackets;
    const LocalizedText* previous = installLocalizedText(&brackets);
    EXPECT_EQ(networkError(kCFHostErrorUnknown).localizedDescription(),
              "[The host name could not be resolved.]");
    EXPECT_EQ(networkError(3).localizedDescription(),
              "[The operation could not be completed (kCFErrorDomainCFNetwork error 3).]");
    installLocalizedText(previous);
}

TEST(Error, IsEqualInDomainCodeAndUserInfo) {
    Error error = networkError(2);
    EXPECT_EQ(error, networkError(2));
    EXPECT_NE(error, networkError(1));
    error.userInfo = PropertyDictionary{{std::string(kCFGetAddrInfoFailureKey), -2}};
    EXPECT_NE(error, networkError(2));
}

} // namespace
} // namespace kx
