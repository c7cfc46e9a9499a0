// What is wrong with a table of units, in words.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "files/TableComplaint.h"

#include <string>

namespace kx {

// The fault alone, for example "“4.7E+11” is a number that a spreadsheet has shortened. …"
std::string faultOfTable(const TableComplaint& complaint);

// The same behind its place, for example "Line 3, internal-ip: Line 2 has the same address."
std::string textOfComplaint(const TableComplaint& complaint);

} // namespace kx
