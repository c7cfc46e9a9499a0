#include "words/DropNote.h"

#include "doubles/MarkedLocalizedText.h"

#include <gtest/gtest.h>

namespace kx {

TEST(DropNote, IsEmptyForNone) {
    EXPECT_EQ(noteOfDrops(0), "");
}

TEST(DropNote, SaysHowManyThereWereAndWhatHelps) {
    EXPECT_EQ(noteOfDrops(1), "The system dropped 1 datagram before it was read, so a unit may be "
                              "missing. Help says how to allow a larger buffer.");
    EXPECT_EQ(noteOfDrops(2), "The system dropped 2 datagrams before they were read, so units may "
                              "be missing. Help says how to allow a larger buffer.");
    EXPECT_TRUE(noteOfDrops(4'294'967'295U).starts_with("The system dropped 4294967295 datagrams"));
}

TEST(DropNote, IsLookedUpAsAWhole) {
    const MarkedLocalizedText marked;
    EXPECT_TRUE(noteOfDrops(1).starts_with("<The system dropped 1 datagram "));
    EXPECT_TRUE(noteOfDrops(5).starts_with("<The system dropped 5 datagrams "));
    EXPECT_TRUE(noteOfDrops(5).ends_with("buffer.>"));
}

} // namespace kx
