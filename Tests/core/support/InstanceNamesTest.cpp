#include "support/InstanceNames.h"

#include "contracts/ApplicationWindowsContract.h"
#include "contracts/ViewContract.h"
#include "doubles/ListedApplicationWindows.h"
#include "doubles/RecordedView.h"

#include <limits>

namespace kx {

namespace {

class ListedApplicationWindowsTrait {
public:
    const ApplicationWindows& windows() { return _windows; }
    void addWindow(const WindowDelegate* delegate) { _windows.addWindow(delegate); }

private:
    ListedApplicationWindows _windows;
};

class RecordedViewTrait {
public:
    View& view() { return _view; }

private:
    RecordedView _view;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Listed, ApplicationWindowsContract, ListedApplicationWindowsTrait);
INSTANTIATE_TYPED_TEST_SUITE_P(Recorded, ViewContract, RecordedViewTrait);

TEST(InstanceName, TheFirstIsTheBaseNameAlone) {
    EXPECT_EQ(instanceName("Window", 0), "Window");
    EXPECT_EQ(instanceName("", 0), "");
}

TEST(InstanceName, EveryOtherHasItsNumberBehindAnUnderscore) {
    EXPECT_EQ(instanceName("Window", 3), "Window_3");
    EXPECT_EQ(instanceName("Window", 1), "Window_1");
    EXPECT_EQ(instanceName("Window", -2), "Window_-2");
    EXPECT_EQ(instanceName("", 12), "_12");
    EXPECT_EQ(instanceName("W", std::numeric_limits<int>::max()), "W_2147483647");
}

TEST(InstanceName, ThePlaceholdersOfABaseNameStay) {
    EXPECT_EQ(instanceName("100%@ %d", 3), "100%@ %d_3");
}

} // namespace kx
