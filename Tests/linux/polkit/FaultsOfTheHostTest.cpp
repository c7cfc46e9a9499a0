// What becomes of a question when the host fails in the middle of it. Each test has a host of its
// own, and a person who never answers.

#include "AuthorityFixture.h"
#include "platform/linux/PolkitCheck.h"

#include <chrono>
#include <functional>

namespace kx {

namespace {

using namespace std::chrono_literals;

class AThinkingPerson : public AuthorityFixture {
protected:
    static void tellHost(const char* word) {
        std::ofstream(std::getenv("KX_HOST")) << word << std::endl;
    }

    // Asks, and does something once the dialog is open.
    std::int32_t ask(const std::function<void()>& once) {
        RunLoop::Handle next;
        bool isOpen = false;
        const std::function<void()> look = [&] {
            ++turns;
            if (!isOpen && !dialogs().empty()) {
                isOpen = true;
                once();
            }
            next = loopOfWaiting.callOnceAfter(10ms, look);
        };
        look();
        const auto begin = Clock::now();
        const auto status = reference->copyRights(rightToEnter(), asking | keeping);
        lasted = Clock::now() - begin;
        return status;
    }

    static bool isTakenBack() { return !messages().empty() && messages().back() == "taken back"; }

    // Nothing was entered, nothing runs, and nothing is held.
    void expectNothingCameOfIt() {
        EXPECT_EQ(neighbour(), "");
        EXPECT_TRUE(runLoopUntil(loop, [] { return !hasChildren(); }));
        EXPECT_EQ(reference->copyRights(rightToEnter(), keeping),
                  errAuthorizationInteractionNotAllowed);
    }

    using Clock = std::chrono::steady_clock;
    Clock::duration lasted{};
    int turns = 0; // of the event loop, while a question was open
};

TEST_F(AThinkingPerson, IsNotAskedAnyMoreWhenTheApplicationsPersonGivesUp) {
    waiting.giveUpAfter(1s);
    EXPECT_EQ(ask([] {}), errAuthorizationCanceled);
    EXPECT_LT(lasted, 5s);
    EXPECT_GT(turns, 10);
    EXPECT_TRUE(runLoopUntil(loop, isTakenBack));
    expectNothingCameOfIt();
}

TEST_F(AThinkingPerson, IsNotAskedAnyMoreAfterTheDialogWasGivenUp) {
    EXPECT_EQ(ask([this] { waiting.giveUp(); }), errAuthorizationCanceled);
    EXPECT_LT(lasted, 5s);
    EXPECT_TRUE(runLoopUntil(loop, isTakenBack));
    EXPECT_EQ(neighbour(), "");
}

TEST_F(AThinkingPerson, MayHaveTheirAgentEnd) {
    const auto status = ask([] { tellHost("leave"); });
    EXPECT_TRUE(status == errAuthorizationDenied || status == errAuthorizationCanceled ||
                status == errAuthorizationInteractionNotAllowed)
        << status;
    EXPECT_LT(lasted, 5s);
    expectNothingCameOfIt();
}

TEST_F(AThinkingPerson, MayHaveTheBusEnd) {
    EXPECT_EQ(ask([] { tellHost("end"); }), errAuthorizationDenied);
    EXPECT_LT(lasted, 5s);
    expectNothingCameOfIt();
}

TEST_F(AThinkingPerson, MayHavePolkitHang) {
    EXPECT_EQ(ask([] { tellHost("stop"); }), errAuthorizationDenied);
    EXPECT_GE(lasted, patienceWithPolkit);
    EXPECT_LT(lasted, patienceWithPolkit + 5s);
    EXPECT_GT(turns, 100);
    EXPECT_TRUE(runLoopUntil(loop, [] { return !hasChildren(); }));
    tellHost("continue");
    expectNothingCameOfIt();
}

TEST_F(AThinkingPerson, MayGiveUpAPolkitThatHangs) {
    waiting.giveUpAfter(2s);
    EXPECT_EQ(ask([] { tellHost("stop"); }), errAuthorizationCanceled);
    EXPECT_LT(lasted, 5s);
    tellHost("continue");
    EXPECT_TRUE(runLoopUntil(loop, isTakenBack));
    expectNothingCameOfIt();
}

TEST_F(AThinkingPerson, IsNeverAskedByAPolkitThatHangsAlready) {
    tellHost("stop");
    runLoopFor(loop, 300ms);
    EXPECT_EQ(ask([] {}), errAuthorizationDenied);
    EXPECT_LT(lasted, patienceWithPolkit + 5s);
    EXPECT_GT(turns, 100);
    EXPECT_TRUE(dialogs().empty());
    tellHost("continue");
    expectNothingCameOfIt();
}

} // namespace

} // namespace kx
