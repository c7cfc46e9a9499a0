// Why a file that kxctl or the window has written cannot be used, in words.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "files/DocumentFault.h"

#include <string>
#include <string_view>

namespace kx {

// For example "“rack.plan” is damaged."
std::string textOfDocumentFault(DocumentFault fault, std::string_view path);

} // namespace kx
