#include "platform/qt/Contrast.h"

#include "Looks.h"

#include <gtest/gtest.h>

namespace kx {

TEST(Contrast, IsMeasuredFromOneToTwentyOne) {
    EXPECT_NEAR(contrastBetween(Qt::black, Qt::white), 21.0, 0.01);
    EXPECT_NEAR(contrastBetween(Qt::red, Qt::red), 1.0, 0.01);
    EXPECT_NEAR(contrastBetween(Qt::blue, Qt::white), contrastOf(Qt::blue, Qt::white), 0.01);
}

TEST(Contrast, AColourThatIsReadableStaysAndAnotherComesAsNearAsItCan) {
    EXPECT_EQ(readableOn(Qt::white, Qt::blue), QColor(Qt::blue));
    const QColor onDark = readableOn(QColor(45, 45, 45), Qt::blue);
    EXPECT_GE(contrastOf(onDark, QColor(45, 45, 45)), readableContrast);
    EXPECT_EQ(onDark.blue(), 255); // still a blue
    EXPECT_LT(onDark.red(), 200);
    EXPECT_GE(contrastOf(readableOn(Qt::white, Qt::yellow), Qt::white), readableContrast);
}

} // namespace kx
