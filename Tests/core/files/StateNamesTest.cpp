#include "files/StateNames.h"

#include <gtest/gtest.h>

namespace kx {

TEST(StateNames, EveryStateOfARowHasItsName) {
    EXPECT_EQ(nameOfState(RowState::planned), "planned");
    EXPECT_EQ(nameOfState(RowState::unchanged), "unchanged");
    EXPECT_EQ(nameOfState(RowState::refused), "refused");
    EXPECT_EQ(nameOfState(RowState::silent), "silent");
    EXPECT_EQ(nameOfState(RowState::done), "done");
    EXPECT_EQ(nameOfState(RowState::untouched), "untouched");
    EXPECT_EQ(nameOfState(RowState::half), "half");
}

TEST(StateNames, EveryStateOfAChangeIsFoundByItsName) {
    using enum ChangeState;
    for (const ChangeState state : {planned, done, unchanged, refused, different, silent}) {
        EXPECT_EQ(changeStateNamed(nameOfState(state)), state);
    }
    EXPECT_EQ(nameOfState(different), "different");
    EXPECT_EQ(nameOfState(unchanged), "unchanged");
    EXPECT_EQ(changeStateNamed("Done"), std::nullopt);
    EXPECT_EQ(changeStateNamed(""), std::nullopt);
}

} // namespace kx
