#include "platform/qt/ApplicationIcon.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

namespace kx {

TEST(ApplicationIconTest, IsEmbeddedInEverySizeThatAWindowManagerAsksFor) {
    const QIcon icon = applicationIcon();
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        EXPECT_EQ(icon.actualSize(QSize(size, size)), QSize(size, size));
    }
}

TEST(ApplicationIconTest, ShowsSomethingOnATransparentGround) {
    const QImage picture = applicationIcon().pixmap(16).toImage();
    EXPECT_LT(qAlpha(picture.pixel(0, 0)), 64); // a rounded corner
    EXPECT_EQ(qAlpha(picture.pixel(8, 8)), 255);
}

} // namespace kx
