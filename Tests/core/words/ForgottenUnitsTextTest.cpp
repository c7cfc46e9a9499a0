#include "words/ForgottenUnitsText.h"

#include "doubles/MarkedLocalizedText.h"

#include <gtest/gtest.h>

namespace kx {

TEST(ForgottenUnitsText, SaysHowManyThereAreAndWhichAreMissingAndNothingOtherwise) {
    EXPECT_EQ(textOfForgottenUnits(false), "");
    EXPECT_EQ(textOfForgottenUnits(true),
              "More than 1,048,576 units have answered, so the list leaves out those that were not "
              "heard for longest.");
    const MarkedLocalizedText marked;
    EXPECT_TRUE(textOfForgottenUnits(true).starts_with("<More than "));
}

} // namespace kx
