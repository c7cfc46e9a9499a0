// Random operations on an index table and on a plain model of it; contents, results and, where
// there are any, the lines of the system log are compared after each.

#include "TableModelFixture.h"
#include "tables/GXIndexTable.h"

namespace kx {

namespace {

class IndexTableModel : public TableModelFixture {};

} // namespace

TEST_F(IndexTableModel, DoesTheSameAsThePlainModelAfterEveryRandomStep) {
    GXIndexTable table;
    model::PlainIndexTable plain;
    while (!HasFailure() && random.next()) {
        const Pair pair = anyPair();
        const auto row = static_cast<std::int32_t>(random.below(random.oneIn(5) ? 300 : 12));
        const std::string words = described(pair.plain) + " in row " + std::to_string(row);
        switch (random.below(9)) {
        case 0:
        case 1:
        case 2:
            random.tell("set " + words);
            table.setObjectAtIndex(pair.entry, row);
            plain.set(pair.plain, row);
            break;
        case 3:
        case 4:
        case 5:
            random.tell("remove " + words);
            table.removeObjectAtIndex(row);
            plain.remove(row);
            break;
        case 6:
        case 7:
            random.tell("remove the last row");
            table.removeObjectAtIndex(table.count() - 1);
            plain.remove(plain.count - 1);
            break;
        default:
            if (random.oneIn(10)) {
                random.tell("remove all");
                table.removeAllObjects();
                plain = {};
            }
        }
        ASSERT_EQ(table.description(), plain.description());
        ASSERT_EQ(table.numberOfRowsInTableView(), plain.count);
        ASSERT_EQ(described(table.objectAtIndex(row)), described(plain.at(row)));
    }
}

} // namespace kx
