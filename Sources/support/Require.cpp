#include "support/Require.h"

#include "support/SystemLog.h"

#include <cstdlib>
#include <string>

namespace kx {

void require(bool condition, std::string_view expression, std::string_view sourcePath,
             std::source_location location) {
    if (condition) {
        return;
    }
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
