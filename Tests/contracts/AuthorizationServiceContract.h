// The contract of support/AuthorizationService.h: tests that every authority over administrator
// rights must pass.
//
// A test program runs them against its authority by
//
//     INSTANTIATE_TYPED_TEST_SUITE_P(Root, AuthorizationServiceContract, RootTrait);
//
// with a trait that is made anew for each test and has
//
//     // An authority that grants every request.
//     AuthorizationService& service();
//     // A tool, arguments with which it ends by itself, and its exit status then.
//     std::string tool();
//     std::vector<std::string> arguments();
//     int status();
//     // A path at which there is no tool.
//     std::string absentTool();
//     // Runs the loop until the condition holds; false when it does not within a generous time.
//     bool runUntil(const std::function<bool()>& condition);
//     // Runs the loop long enough for everything that is due.
//     void runAWhile();

#pragma once

#include "support/AuthorizationService.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kx {

template<typename Trait>
class AuthorizationServiceContract : public testing::Test {
protected:
    static constexpr std::uint32_t asking = kAuthorizationFlagInteractionAllowed;
    static constexpr std::uint32_t keeping = kAuthorizationFlagExtendRights;

    AuthorizationItem right() { return rightOf(trait.tool()); }
    static AuthorizationItem rightOf(const std::string& tool) {
        return {.name = std::string(kAuthorizationRightExecute), .value = tool, .flags = 0};
    }

    // Starts the tool and records its end.
    std::int32_t run() {
        return reference->executeWithPrivileges(trait.tool(), trait.arguments(),
                                                [this](const ToolEnd& end) { ends.push_back(end.status); });
    }
    bool runUntilEnds(std::size_t count) {
        return trait.runUntil([this, count] { return ends.size() >= count; });
    }

    Trait trait;
    std::unique_ptr<AuthorizationReference> reference = trait.service().create();
    std::vector<int> ends;
};

TYPED_TEST_SUITE_P(AuthorizationServiceContract);

// --- Rights ---

TYPED_TEST_P(AuthorizationServiceContract, NothingIsHeldUnderANewReference) {
    EXPECT_EQ(this->reference->copyRights(this->right(), this->keeping),
              errAuthorizationInteractionNotAllowed);
}

TYPED_TEST_P(AuthorizationServiceContract, WhatWasObtainedToBeKeptIsHeld) {
    EXPECT_EQ(this->reference->copyRights(this->right(), this->asking | this->keeping),
              errAuthorizationSuccess);
    EXPECT_EQ(this->reference->copyRights(this->right(), this->keeping), errAuthorizationSuccess);
    EXPECT_EQ(this->reference->copyRights(this->right(), this->asking | this->keeping),
              errAuthorizationSuccess);
}

TYPED_TEST_P(AuthorizationServiceContract, WhatWasNotToBeKeptIsNotHeld) {
    EXPECT_EQ(this->reference->copyRights(this->right(), this->asking), errAuthorizationSuccess);
    EXPECT_EQ(this->reference->copyRights(this->right(), this->keeping),
              errAuthorizationInteractionNotAllowed);
}

TYPED_TEST_P(AuthorizationServiceContract, TheRightToRunOneToolIsNoneToRunAnother) {
    EXPECT_EQ(this->reference->copyRights(this->right(), this->asking | this->keeping),
              errAuthorizationSuccess);
    EXPECT_EQ(this->reference->copyRights(this->rightOf("/bin/false"), this->keeping),
              errAuthorizationInteractionNotAllowed);
}

TYPED_TEST_P(AuthorizationServiceContract, WhatIsHeldUnderOneReferenceIsNotHeldUnderAnother) {
    EXPECT_EQ(this->reference->copyRights(this->right(), this->asking | this->keeping),
              errAuthorizationSuccess);
    const auto other = this->trait.service().create();
    EXPECT_EQ(other->copyRights(this->right(), this->keeping),
              errAuthorizationInteractionNotAllowed);
    this->reference.reset();
    this->reference = this->trait.service().create();
    EXPECT_EQ(this->reference->copyRights(this->right(), this->keeping),
              errAuthorizationInteractionNotAllowed);
}

// --- Tools ---

TYPED_TEST_P(AuthorizationServiceContract, TheEndOfAToolIsToldOnceAndNotFromInsideItsStart) {
    ASSERT_EQ(this->reference->copyRights(this->right(), this->asking | this->keeping),
              errAuthorizationSuccess);
    EXPECT_EQ(this->run(), errAuthorizationSuccess);
    EXPECT_TRUE(this->ends.empty());
    ASSERT_TRUE(this->runUntilEnds(1));
    this->trait.runAWhile();
    EXPECT_EQ(this->ends, std::vector<int>{this->trait.status()});
}

TYPED_TEST_P(AuthorizationServiceContract, EachOfSeveralToolsHasItsOwnEnd) {
    ASSERT_EQ(this->reference->copyRights(this->right(), this->asking | this->keeping),
              errAuthorizationSuccess);
    EXPECT_EQ(this->run(), errAuthorizationSuccess);
    EXPECT_EQ(this->run(), errAuthorizationSuccess);
    ASSERT_TRUE(this->runUntilEnds(2));
    this->trait.runAWhile();
    EXPECT_EQ(this->ends.size(), 2U);
}

TYPED_TEST_P(AuthorizationServiceContract, NobodyNeedsToHearOfAnEnd) {
    ASSERT_EQ(this->reference->copyRights(this->right(), this->asking | this->keeping),
              errAuthorizationSuccess);
    EXPECT_EQ(
        this->reference->executeWithPrivileges(this->trait.tool(), this->trait.arguments(), {}),
        errAuthorizationSuccess);
    EXPECT_EQ(this->run(), errAuthorizationSuccess);
    EXPECT_TRUE(this->runUntilEnds(1));
}

TYPED_TEST_P(AuthorizationServiceContract, AToolThatIsNotThereDoesNotStartAndNeverEnds) {
    const auto right = this->rightOf(this->trait.absentTool());
    ASSERT_EQ(this->reference->copyRights(right, this->asking | this->keeping),
              errAuthorizationSuccess);
    EXPECT_EQ(this->reference->executeWithPrivileges(
                  right.value, {}, [this](const ToolEnd& end) { this->ends.push_back(end.status); }),
              errAuthorizationToolExecuteFailure);
    this->trait.runAWhile();
    EXPECT_TRUE(this->ends.empty());
}

TYPED_TEST_P(AuthorizationServiceContract, NoEndIsToldAfterTheReferenceIsGone) {
    ASSERT_EQ(this->reference->copyRights(this->right(), this->asking | this->keeping),
              errAuthorizationSuccess);
    EXPECT_EQ(this->run(), errAuthorizationSuccess);
    this->reference.reset();
    this->trait.runAWhile();
    EXPECT_TRUE(this->ends.empty());
}

TYPED_TEST_P(AuthorizationServiceContract, TheWordOfAnEndMayDestroyTheReference) {
    ASSERT_EQ(this->reference->copyRights(this->right(), this->asking | this->keeping),
              errAuthorizationSuccess);
    const auto endAll = [this](const ToolEnd& end) {
        this->ends.push_back(end.status);
        this->reference.reset();
    };
    for (int tool = 0; tool < 2; ++tool) {
        EXPECT_EQ(this->reference->executeWithPrivileges(this->trait.tool(),
                                                         this->trait.arguments(), endAll),
                  errAuthorizationSuccess);
    }
    ASSERT_TRUE(this->runUntilEnds(1));
    this->trait.runAWhile();
    EXPECT_EQ(this->ends.size(), 1U);
}

REGISTER_TYPED_TEST_SUITE_P(AuthorizationServiceContract, NothingIsHeldUnderANewReference,
                            WhatWasObtainedToBeKeptIsHeld, WhatWasNotToBeKeptIsNotHeld,
                            TheRightToRunOneToolIsNoneToRunAnother,
                            WhatIsHeldUnderOneReferenceIsNotHeldUnderAnother,
                            TheEndOfAToolIsToldOnceAndNotFromInsideItsStart,
                            EachOfSeveralToolsHasItsOwnEnd, NobodyNeedsToHearOfAnEnd,
                            AToolThatIsNotThereDoesNotStartAndNeverEnds,
                            NoEndIsToldAfterTheReferenceIsGone,
                            TheWordOfAnEndMayDestroyTheReference);

} // namespace kx
