#include "words/ForgottenUnitsText.h"

#include "support/LocalizedText.h"
#include "units/UnitRegistry.h"

namespace kx {

// The number stands in the sentence, so that each language writes it in its own way.
static_assert(UnitRegistry::defaultLimit == 1'048'576);

std::string textOfForgottenUnits(bool areForgotten) {
    return areForgotten
               ? localizedText("More than 1,048,576 units have answered, so the list leaves out "
                               "those that were not heard for longest.")
               : std::string();
}

} // namespace kx
