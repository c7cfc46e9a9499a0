// The frames of tables and log are visible on all sides, wherever they lie on the pixels of a
// screen. The tests matter at 150 %, where edges lie within pixels.

#include "MainWindowFixture.h"

#include <algorithm>

namespace kx {

namespace {

// The least contrast between a line and the pixels beside it, of 255.
constexpr int leastContrast = 20;

// Whether a line crosses these pixels. They lead from outside a frame into it.
bool showsLine(const QImage& picture, QPoint from, QPoint step) {
    const int outside = qGray(picture.pixel(from));
    const int inside = qGray(picture.pixel(from + 5 * step));
    for (int count = 1; count < 5; ++count) {
        const int seen = qGray(picture.pixel(from + count * step));
        if (seen < std::min(outside, inside) - leastContrast) {
            return true;
        }
    }
    return false;
}

} // namespace

class PixelAlignedFrameTest : public MainWindowTest {
protected:
    void expectWholeFrame(const char* name) {
        const QImage picture = window.grab().toImage();
        const auto& widget = control<QWidget>(name);
        const double ratio = picture.devicePixelRatio();
        const QRect place(widget.mapTo(&window, QPoint(0, 0)) * ratio, widget.size() * ratio);
        // A place beside the texts, where the background is plain.
        const int x = place.right() - 40;
        const int y = place.bottom() - 8;
        EXPECT_TRUE(showsLine(picture, {x, place.top() - 2}, {0, 1})) << name << ", top";
        EXPECT_TRUE(showsLine(picture, {x, place.bottom() + 2}, {0, -1})) << name << ", bottom";
        EXPECT_TRUE(showsLine(picture, {place.left() - 2, y}, {1, 0})) << name << ", left";
        EXPECT_TRUE(showsLine(picture, {place.right() + 2, y}, {-1, 0})) << name << ", right";
    }
};

TEST_F(PixelAlignedFrameTest, AllFourLinesAreSeenAtEveryHeightAndWidth) {
    launchWithTwoUnits();
    const QSize size = window.size();
    for (int more = 0; more < 4; ++more) {
        window.resize(size + QSize(more, more));
        QTest::qWait(10);
        expectWholeFrame("unitParameterTableView");
        expectWholeFrame("editParameterTableView");
    }
}

TEST_F(PixelAlignedFrameTest, TheLogHasItsFrameToo) {
    launch();
    click("logDrawerButton");
    ASSERT_TRUE(drawerComesToRest());
    for (int more = 0; more < 4; ++more) {
        window.resize(window.size() + QSize(1, 1));
        QTest::qWait(10);
        expectWholeFrame("logTextView");
    }
}

} // namespace kx
