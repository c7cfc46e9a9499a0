#include "support/TitleList.h"

namespace kx {

void TitleList::reserve(std::size_t titles, std::size_t bytes) {
    _ends.reserve(titles);
    _text.reserve(bytes);
}

// This is not inline. When it is inlined and a title is known to be short, GCC 12 copies the title
// with a string instruction that takes several times as long.
void TitleList::push_back(std::string_view title) {
    _text += title;
    _ends.push_back(_text.size());
}

} // namespace kx
