// Growth of a vector that may become large: by an eighth of its length, where push_back() alone
// doubles it. An element is then moved some eight times in all, and at most a ninth is room for
// more.

#pragma once

#include <vector>

namespace kx {

// Makes room for one more element when there is none.
template<class Element>
void makeRoomForOneMore(std::vector<Element>& elements) {
    constexpr std::size_t fewest = 8;
    if (elements.size() == elements.capacity()) {
        elements.reserve(elements.size() + elements.size() / 8 + fewest);
    }
}

} // namespace kx
