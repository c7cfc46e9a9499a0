#include "words/DroppedDatagramsText.h"

#include "support/LocalizedText.h"

namespace kx {

std::string textOfDroppedDatagrams(std::uint32_t datagrams) {
    if (datagrams == 0) {
        return {};
    }
    return datagrams == 1 ? localizedText("The system dropped 1 datagram before it was read, so a "
                                          "unit may be missing. Help says how to allow a larger "
                                          "buffer.")
                          : localizedText("The system dropped %d datagrams before they were read, "
                                          "so units may be missing. Help says how to allow a "
                                          "larger buffer.",
                                          {static_cast<long long>(datagrams)});
}

} // namespace kx
