// The contract of support/InstanceNames.h: tests that every list of the application's windows must
// pass, and tests of how windows are counted.
//
// A test program runs them against its list with a trait. The trait is made anew for each test, has
// no windows then, and has
//
//     const ApplicationWindows& windows();
//     void addWindow(const WindowDelegate* delegate);

#pragma once

#include "support/InstanceNames.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kx {

class DocumentDelegate : public WindowDelegate {};
class DrawingDelegate final : public DocumentDelegate {};
class InspectorDelegate final : public WindowDelegate {};

template<typename Trait>
class ApplicationWindowsContract : public testing::Test {
protected:
    Trait trait;
};

TYPED_TEST_SUITE_P(ApplicationWindowsContract);

TYPED_TEST_P(ApplicationWindowsContract, ThereAreNoneAtFirst) {
    EXPECT_EQ(instanceCount<WindowDelegate>(this->trait.windows()), 0U);
}

TYPED_TEST_P(ApplicationWindowsContract, WindowsAreCountedByTheClassOfTheirDelegate) {
    const DocumentDelegate document;
    const InspectorDelegate inspector;
    this->trait.addWindow(&document);
    this->trait.addWindow(&inspector);
    EXPECT_EQ(instanceCount<DocumentDelegate>(this->trait.windows()), 1U);
    EXPECT_EQ(instanceCount<InspectorDelegate>(this->trait.windows()), 1U);
    EXPECT_EQ(instanceCount<DrawingDelegate>(this->trait.windows()), 0U);
}

TYPED_TEST_P(ApplicationWindowsContract, ADerivedDelegateCountsForItsBaseToo) {
    const DocumentDelegate document;
    const DrawingDelegate drawing;
    this->trait.addWindow(&document);
    this->trait.addWindow(&drawing);
    EXPECT_EQ(instanceCount<DocumentDelegate>(this->trait.windows()), 2U);
    EXPECT_EQ(instanceCount<DrawingDelegate>(this->trait.windows()), 1U);
    EXPECT_EQ(instanceCount<WindowDelegate>(this->trait.windows()), 2U);
}

TYPED_TEST_P(ApplicationWindowsContract, EachWindowOfOneDelegateCounts) {
    const DocumentDelegate document;
    this->trait.addWindow(&document);
    this->trait.addWindow(&document);
    EXPECT_EQ(instanceCount<DocumentDelegate>(this->trait.windows()), 2U);
}

TYPED_TEST_P(ApplicationWindowsContract, AWindowWithoutADelegateIsListedAndNeverCounted) {
    this->trait.addWindow(nullptr);
    EXPECT_EQ(this->trait.windows().delegates(), std::vector<const WindowDelegate*>{nullptr});
    EXPECT_EQ(instanceCount<WindowDelegate>(this->trait.windows()), 0U);
}

REGISTER_TYPED_TEST_SUITE_P(ApplicationWindowsContract, ThereAreNoneAtFirst,
                            WindowsAreCountedByTheClassOfTheirDelegate,
                            ADerivedDelegateCountsForItsBaseToo, EachWindowOfOneDelegateCounts,
                            AWindowWithoutADelegateIsListedAndNeverCounted);

} // namespace kx
