// Ten thousand units in the window. The times are far beyond what it takes, so that a busy machine
// passes and a cost that grows with the square of the units does not.

#include "FromFileFixture.h"

#include <iostream>

namespace kx {

namespace {

class FromFileMany : public FromFileWindowTest {
protected:
    template<class Act>
    static std::chrono::milliseconds timeOf(const Act& act) {
        const auto begin = std::chrono::steady_clock::now();
        act();
        return std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now() - begin);
    }
};

} // namespace

TEST_F(FromFileMany, AChangeIsShownWithoutDelayWhileUnitsAreConfigured) {
    constexpr std::uint32_t many = 10'000;
    addUnits(1, many);
    show();
    openAndAsk(table(1, many));
    ASSERT_EQ(model().rowCount(), 2 * static_cast<int>(many));
    button("fromFileApplyButton").click();
    passUntil([this] { return tableRun.progress().ended > 100; });
    const auto time = timeOf([this] {
        for (int change = 0; change < 10; ++change) {
            tableRun.setKeepsGoing(change % 2 == 0); // everything is shown anew
            window.grab();
        }
    });
    std::cout << "one change is shown within " << time.count() / 10 << " ms\n";
    EXPECT_LT(time, 5s) << "ten changes";
}

} // namespace kx
