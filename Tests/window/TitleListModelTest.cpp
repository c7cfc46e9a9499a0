#include "platform/qt/TitleListModel.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

constexpr auto whatIsTyped = Qt::MatchStartsWith | Qt::MatchWrap;

class TitleListModelTest : public ::testing::Test {
protected:
    TitleListModelTest() {
        model.setTitles({"apple", "Banana", "büro", "bus", "\u212Aelvin", "pear"});
    }

    // The row of the first title from `start` on, -1 when there is none.
    int found(int start, const QString& typed) {
        const auto matches =
            model.match(model.index(start), Qt::DisplayRole, typed, 1, whatIsTyped);
        EXPECT_LE(matches.size(), 1);
        return matches.isEmpty() ? -1 : matches.first().row();
    }

    TitleListModel model;
};

} // namespace

TEST_F(TitleListModelTest, FindsTheFirstTitleThatBeginsWithWhatIsTyped) {
    EXPECT_EQ(found(0, "p"), 5);
    EXPECT_EQ(found(0, "b"), 1);
    EXPECT_EQ(found(0, "bu"), 3);
    EXPECT_EQ(found(0, "apple"), 0);
}

TEST_F(TitleListModelTest, TheSearchBeginsWhereItIsToldAndGoesOnAtTheBeginning) {
    EXPECT_EQ(found(1, "b"), 1);
    EXPECT_EQ(found(2, "b"), 2);
    EXPECT_EQ(found(4, "b"), 1);
    EXPECT_EQ(found(5, "apple"), 0);
}

TEST_F(TitleListModelTest, WhatNoTitleBeginsWithIsNotFound) {
    EXPECT_EQ(found(3, "x"), -1);
    EXPECT_EQ(found(3, "apples"), -1);
    EXPECT_EQ(found(3, "ear"), -1);
    model.setTitles({});
    EXPECT_TRUE(model.match({}, Qt::DisplayRole, "a", 1, whatIsTyped).isEmpty());
}

TEST_F(TitleListModelTest, CapitalsAndSmallLettersAreOneAlsoBeyondASCII) {
    EXPECT_EQ(found(0, "BAN"), 1);
    EXPECT_EQ(found(0, QString::fromUtf8("BÜR")), 2);
    EXPECT_EQ(found(0, "k"), 4); // the Kelvin sign is a capital K
}

TEST_F(TitleListModelTest, EverySearchFindsWhatTheBaseClassFinds) {
    for (const QString& typed : {QString(), QString("b"), QString::fromUtf8("bÜ"), QString("P"),
                                 QString("pear tree"), QString("kel")}) {
        for (int start = 0; start < model.rowCount(); ++start) {
            for (const Qt::MatchFlags flags :
                 {Qt::MatchFlags(whatIsTyped), Qt::MatchFlags(Qt::MatchStartsWith),
                  Qt::MatchFlags(Qt::MatchContains), Qt::MatchFlags(Qt::MatchExactly)}) {
                for (const int hits : {1, 2, -1}) {
                    EXPECT_EQ(model.match(model.index(start), Qt::DisplayRole, typed, hits, flags),
                              model.QAbstractListModel::match(model.index(start), Qt::DisplayRole,
                                                              typed, hits, flags))
                        << typed.toStdString() << " from " << start;
                }
            }
        }
    }
}

} // namespace kx
