#include "words/DocumentFaultText.h"

#include <gtest/gtest.h>

namespace kx {

TEST(DocumentFaultText, NamesTheFileAndTellsDamageVersionAndKindApart) {
    EXPECT_EQ(textOfDocumentFault(DocumentFault::damaged, "a.json"), "“a.json” is damaged.");
    EXPECT_EQ(textOfDocumentFault(DocumentFault::otherVersion, "a.json"),
              "“a.json” has the format of another version of kxctl.");
    EXPECT_EQ(textOfDocumentFault(DocumentFault::otherKind, "a\n.json"),
              "“a\uFFFD.json” is another kind of file than the one that is wanted.");
}

} // namespace kx
