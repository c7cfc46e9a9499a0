// apply: makes many units show the values of a table, or of a plan that was kept.

#include "commands/Commands.h"
#include "commands/RowsFile.h"
#include "commands/TableRun.h"

namespace kx {

int runApply(CommandRun& run) {
    return runTable(run, [](CommandRun& reading, TableFile& file) {
        return readRowsFile(reading, reading.line().words.front(), file);
    });
}

} // namespace kx
