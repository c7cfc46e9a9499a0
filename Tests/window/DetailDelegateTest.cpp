#include "platform/qt/DetailDelegate.h"

#include "Looks.h"
#include "platform/qt/TitleListModel.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <algorithm>
#include <string>
#include <vector>

namespace kx {

namespace {

// The least luminance of an entry without a title, black on white, with or without details.
double darkestOf(const TitleListModel& model) {
    QImage picture(600, 30, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    QStyleOptionViewItem option;
    option.rect = picture.rect();
    option.palette =
        QPalette(Qt::black, Qt::white, Qt::white, Qt::white, Qt::white, Qt::black, Qt::white);
    DetailDelegate().paint(&painter, option, model.index(0));
    painter.end();
    double darkest = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            darkest = std::min(darkest, luminance(picture.pixelColor(x, y)));
        }
    }
    return darkest;
}

} // namespace

TEST(DetailDelegate, DetailsAreGreyAndNotAsDarkAsATitle) {
    TitleListModel model;
    model.setTitles({""});
    EXPECT_GT(darkestOf(model), 0.9) << "there is nothing to see";
    model.setDetails([](std::string_view) { return std::vector<std::string>{"RACK"}; });
    EXPECT_LT(darkestOf(model), 0.5);
    EXPECT_GT(darkestOf(model), 0.05);
    model.setDetails({});
    model.setTitles({"RACK"});
    EXPECT_LT(darkestOf(model), 0.05) << "the title";
}

} // namespace kx
