// The titles of a pop-up, in order, as texts in UTF-8 that lie one behind the other in memory. A
// list of a million short titles takes two blocks; a separate text for each title would take a
// million.
//
// Any thread, one at a time. Copies are independent.

#pragma once

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kx {

class TitleList {
public:
    using value_type = std::string_view;

    // Random access. It gives titles by value.
    class const_iterator;

    TitleList() = default;
    TitleList(std::initializer_list<std::string_view> titles) { append(titles); }
    TitleList(const std::vector<std::string>& titles) { append(titles); }

    bool empty() const { return _ends.empty(); }
    std::size_t size() const { return _ends.size(); }
    std::size_t bytes() const { return _text.size(); } // bytes of all titles together

    // A view of the title at `index`, counted from 0, valid until the list changes or is moved.
    // `index` must be below size().
    std::string_view operator[](std::size_t index) const {
        const std::size_t start = index == 0 ? 0 : _ends[index - 1];
        return std::string_view(_text).substr(start, _ends[index] - start);
    }

    const_iterator begin() const;
    const_iterator end() const;

    // Makes room for so many titles with so many bytes altogether. Contents do not change.
    void reserve(std::size_t titles, std::size_t bytes);

    // `title` must not be part of this list.
    void push_back(std::string_view title);

    // Appends any range of texts. They must not be part of this list.
    template<class Titles>
    void append(const Titles& titles) {
        for (const auto& title : titles) {
            push_back(title);
        }
    }

private:
    std::string _text;
    std::vector<std::size_t> _ends; // the end of each title within _text
};

class TitleList::const_iterator {
public:
    using iterator_concept = std::random_access_iterator_tag;
    using iterator_category =
        std::input_iterator_tag; // older categories promise references
    using value_type = std::string_view;
    using difference_type = std::ptrdiff_t;
    using reference = std::string_view;
    using pointer = void;

    const_iterator() = default;
    const_iterator(const TitleList& titles, std::size_t index)
        : _titles(&titles)
        , _index(static_cast<difference_type>(index)) {}

    std::string_view operator*() const { return (*_titles)[static_cast<std::size_t>(_index)]; }
    std::string_view operator[](difference_type distance) const { return *(*this + distance); }

    const_iterator& operator+=(difference_type distance) {
        _index += distance;
        return *this;
    }
    const_iterator& operator-=(difference_type distance) { return *this += -distance; }
    const_iterator& operator++() { return *this += 1; }
    const_iterator& operator--() { return *this -= 1; }
    const_iterator operator++(int) { return std::exchange(*this, *this + 1); }
    const_iterator operator--(int) { return std::exchange(*this, *this - 1); }

    friend const_iterator operator+(const_iterator place, difference_type distance) {
        return place += distance;
    }
    friend const_iterator operator+(difference_type distance, const_iterator place) {
        return place += distance;
    }
    friend const_iterator operator-(const_iterator place, difference_type distance) {
        return place -= distance;
    }
    friend difference_type operator-(const const_iterator& left, const const_iterator& right) {
        return left._index - right._index;
    }

    // Compare only iterators of one list.
    friend auto operator<=>(const const_iterator& left, const const_iterator& right) = default;

private:
    const TitleList* _titles = nullptr;
    difference_type _index = 0;
};

inline TitleList::const_iterator TitleList::begin() const {
    return {*this, 0};
}

inline TitleList::const_iterator TitleList::end() const {
    return {*this, size()};
}

} // namespace kx
