#include "support/Require.h"

#include "support/SystemLog.h"

#include <cstdlib>
#include <string>

namespace kx {

void endBrokenContract(std::string_view expression, std::string_view sourcePath,
                       const std::source_location& location) {
    std::string line = "Assertion failed: (";
    line.append(expression);
    line.append("), function ");
    line.append(location.function_name());
    line.append(", ");
    line.append(sourcePath);
    logLastToSystem(line);
    std::abort();
}

} // namespace kx
