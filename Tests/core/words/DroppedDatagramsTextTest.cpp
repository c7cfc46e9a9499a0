#include "words/DroppedDatagramsText.h"

#include "doubles/MarkedLocalizedText.h"

#include <gtest/gtest.h>

namespace kx {

TEST(DroppedDatagramsText, IsEmptyForNone) {
    EXPECT_EQ(textOfDroppedDatagrams(0), "");
}

TEST(DroppedDatagramsText, SaysHowManyThereWereAndWhatHelps) {
    EXPECT_EQ(textOfDroppedDatagrams(1),
              "The system dropped 1 datagram before it was read, so a unit may be "
              "missing. Help says how to allow a larger buffer.");
    EXPECT_EQ(textOfDroppedDatagrams(2),
              "The system dropped 2 datagrams before they were read, so units may "
              "be missing. Help says how to allow a larger buffer.");
    EXPECT_TRUE(textOfDroppedDatagrams(4'294'967'295U)
                    .starts_with("The system dropped 4294967295 datagrams"));
}

TEST(DroppedDatagramsText, IsLookedUpAsAWhole) {
    const MarkedLocalizedText marked;
    EXPECT_TRUE(textOfDroppedDatagrams(1).starts_with("<The system dropped 1 datagram "));
    EXPECT_TRUE(textOfDroppedDatagrams(5).starts_with("<The system dropped 5 datagrams "));
    EXPECT_TRUE(textOfDroppedDatagrams(5).ends_with("buffer.>"));
}

} // namespace kx
