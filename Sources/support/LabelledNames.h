// The order of labelled entries, such as telephone numbers written "NAME:NUMBER [LABEL]". Entries
// are ordered by name, and those of one name by the rank of the label.
//
// Pure, except for the labels' localized texts: main thread only, like LocalizedText.h.

#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace kx {

// The sort key: the text before the first colon, followed by the rank of the label behind the last
// "[". The labels with a rank, in the user's language and in any case, are "work" (01), "home"
// (02), "iPhone" (03), "mobile" (04), "main" (05), "home fax" (06), "work fax" (07), "pager" (08),
// "other" (09) and "vacation" (10). The text behind the "[" gets the rank of the first of these
// labels with which it begins, so "home fax" counts as "home"; any other text stands for itself.
// The translations keep this rule: in every language the label of a fax begins with the label of
// its place, so 06 and 07 never occur.
//
// Without a colon the key is the whole text. Without a "[" the key ends before the colon.
std::string compareStringForCID(std::string_view text);

// Compares the sort keys of two texts; their case counts.
std::weak_ordering compareCID(std::string_view text, std::string_view other);

} // namespace kx
