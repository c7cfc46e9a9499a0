// The contract of support/View.h: tests that every view must pass.
//
// A test program runs them against its view with a trait that is made anew for each test and has
//
//     View& view();

#pragma once

#include "support/View.h"

#include <gtest/gtest.h>

namespace kx {

template<typename Trait>
class ViewContract : public testing::Test {
protected:
    Trait trait;
};

TYPED_TEST_SUITE_P(ViewContract);

TYPED_TEST_P(ViewContract, HidesAndComesBack) {
    View& view = this->trait.view();
    hideView(view);
    EXPECT_TRUE(view.isHidden());
    unhideView(view);
    EXPECT_FALSE(view.isHidden());
}

TYPED_TEST_P(ViewContract, HidingTwiceIsHidingOnce) {
    View& view = this->trait.view();
    hideView(view);
    hideView(view);
    EXPECT_TRUE(view.isHidden());
    unhideView(view);
    unhideView(view);
    EXPECT_FALSE(view.isHidden());
}

REGISTER_TYPED_TEST_SUITE_P(ViewContract, HidesAndComesBack, HidingTwiceIsHidingOnce);

} // namespace kx
