#include "conversation/AddressBindings.h"

#include "doubles/ScriptedAuthorizationService.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

class AuthorizedBindingsTest : public testing::Test {
protected:
    using Texts = std::vector<std::string>;

    static constexpr auto hardware = "02:4B:58:00:00:01";

    AddressBindings::Done noted(const std::string& name) {
        return [this, name](const ARPEntry& entry) {
            ended.push_back(name + (entry.state == ARPEntryState::started ? " done" : " refused"));
        };
    }

    // While a person is asked about the first entry, two more are wanted.
    void wantMoreMeanwhile() {
        service.setMeanwhile([this] {
            service.setMeanwhile({});
            bindings->bind("192.0.2.42", hardware, noted("second"));
            bindings->release("192.0.2.43", hardware, noted("third"));
        });
    }

    Texts toolArguments() const {
        Texts texts;
        for (const auto& run : service.runs()) {
            texts.push_back(run.arguments[0] + ' ' + run.arguments[1]);
        }
        return texts;
    }

    ScriptedAuthorizationService service;
    std::unique_ptr<AuthorizedAddressBindings> bindings =
        std::make_unique<AuthorizedAddressBindings>(service, [] {});
    Texts ended;
};

} // namespace

TEST_F(AuthorizedBindingsTest, AChangeThatIsWantedDuringAQuestionWaitsForItsTurn) {
    wantMoreMeanwhile();
    bindings->bind("192.0.2.41", hardware, noted("first"));
    EXPECT_EQ(service.dialogs(), 1);
    EXPECT_EQ(toolArguments(), (Texts{"-s 192.0.2.41", "-s 192.0.2.42", "-d 192.0.2.43"}));
    service.endTools(0);
    EXPECT_EQ(ended, (Texts{"first done", "second done", "third done"}));
}

TEST_F(AuthorizedBindingsTest, WhoWaitsWhileAPersonSaysNoIsToldSoWithoutAQuestion) {
    wantMoreMeanwhile();
    service.answerDialogsWith(errAuthorizationCanceled);
    bindings->bind("192.0.2.41", hardware, noted("first"));
    EXPECT_EQ(service.dialogs(), 1);
    EXPECT_TRUE(service.runs().empty());
    EXPECT_EQ(ended, (Texts{"first refused", "second refused", "third refused"}));
    bindings->bind("192.0.2.44", hardware, noted("later"));
    EXPECT_EQ(service.dialogs(), 2);
}

TEST_F(AuthorizedBindingsTest, TheEndOfTheObjectDuringAQuestionLetsNobodyElseBegin) {
    service.setMeanwhile([this] {
        bindings->bind("192.0.2.42", hardware, noted("second"));
        bindings.reset();
    });
    bindings->bind("192.0.2.41", hardware, noted("first"));
    EXPECT_EQ(toolArguments(), Texts{"-s 192.0.2.41"});
    EXPECT_TRUE(ended.empty());
}

TEST_F(AuthorizedBindingsTest, AChangeThatIsWantedWhenAnotherHasEndedIsMade) {
    bindings->bind("192.0.2.41", hardware, [this](const ARPEntry&) {
        bindings->release("192.0.2.41", hardware, noted("second"));
    });
    service.endTools(0);
    EXPECT_EQ(toolArguments(), (Texts{"-s 192.0.2.41", "-d 192.0.2.41"}));
}

} // namespace kx
