#include "platform/qt/TitleListModel.h"

#include <gtest/gtest.h>

namespace kx {

namespace {

constexpr auto whatIsTyped = Qt::MatchStartsWith | Qt::MatchWrap;

class TitleListModelTest : public ::testing::Test {
protected:
    TitleListModelTest() {
        model.setTitles({"apple", "Banana", "büro", "bus", "\u212Aelvin", "kelvin", "pear", ""});
    }

    // The row of the first matching title from `start` on; -1 when there is none.
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
    EXPECT_EQ(found(0, "p"), 6);
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
    EXPECT_EQ(found(5, "\u212AEL"), 5);
}

TEST_F(TitleListModelTest, EverySearchFindsWhatTheBaseClassFinds) {
    const auto expectSame = [&](int start, int role, const QString& text, int hits,
                                Qt::MatchFlags flags) {
        const QModelIndex from = model.index(start);
        EXPECT_EQ(model.match(from, role, text, hits, flags),
                  model.QAbstractListModel::match(from, role, text, hits, flags))
            << text.toStdString() << " from " << start << ", role " << role << ", hits " << hits
            << ", flags " << static_cast<int>(flags);
    };
    for (const char* const text : {"", "b", "bÜ", "P", "pear tree", "kel", "\u212Ael", "\u017F"}) {
        for (int start = -1; start < model.rowCount(); ++start) {
            for (const Qt::MatchFlags flags :
                 {Qt::MatchFlags(whatIsTyped), whatIsTyped | Qt::MatchCaseSensitive,
                  Qt::MatchFlags(Qt::MatchStartsWith), Qt::MatchFlags(Qt::MatchContains),
                  Qt::MatchFlags(Qt::MatchExactly)}) {
                for (const int hits : {1, 2, -1}) {
                    expectSame(start, Qt::DisplayRole, QString::fromUtf8(text), hits, flags);
                    expectSame(start, Qt::EditRole, QString::fromUtf8(text), hits, flags);
                    expectSame(start, Qt::ToolTipRole, QString::fromUtf8(text), hits, flags);
                }
            }
        }
    }
}

TEST(TitlesWithDetails, TypingFindsTheTitleFirstAndItsDetailsNext) {
    TitleListModel model;
    model.setTitles({"01 02 03", "0A 02 04", "19 02 05"});
    model.setDetails([](std::string_view title) {
        return title.starts_with('0') ? std::vector<std::string>{"Rack", "192.168.1.10"}
                                      : std::vector<std::string>{"Étage", "192.168.1.12"};
    });
    const auto found = [&model](int start, const char* typed) {
        const auto matches =
            model.match(model.index(start), Qt::DisplayRole, QString(typed), 1, whatIsTyped);
        return matches.isEmpty() ? -1 : matches.first().row();
    };
    EXPECT_EQ(found(0, "0a"), 1);
    EXPECT_EQ(found(0, "0a02"), 1);
    EXPECT_EQ(found(0, "0A0204"), 1);
    EXPECT_EQ(found(0, "190205"), 2);
    EXPECT_EQ(found(0, "19"), 2); // the title comes before the addresses
    EXPECT_EQ(found(0, "192.168.1.12"), 2);
    EXPECT_EQ(found(0, "192.168.1.1"), 0);
    EXPECT_EQ(found(1, "rack"), 1);
    EXPECT_EQ(found(0, "étage"), 2);
    EXPECT_EQ(found(0, "0b"), -1);
    EXPECT_EQ(model.index(0).data(TitleListModel::detailRole).toString(), "Rack  192.168.1.10");
    EXPECT_EQ(model.index(0).data(Qt::AccessibleDescriptionRole).toString(), "Rack  192.168.1.10");
    EXPECT_EQ(model.index(0).data().toString(), "01 02 03");
}

} // namespace kx
