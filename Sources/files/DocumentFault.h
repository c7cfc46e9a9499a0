// Why a file that the program has written itself cannot be read again.
//
// Plain values; any thread.

#pragma once

namespace kx {

enum class DocumentFault {
    damaged,      // cut short, changed, or a value that the format does not allow
    otherKind,    // something else: JSON of another kind, or no JSON at all
    otherVersion, // of the same kind
};

} // namespace kx
