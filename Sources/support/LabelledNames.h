// The order of labelled entries, such as telephone numbers written "NAME:NUMBER [LABEL]": by name,
// and for one name by the rank of the label.
//
// Pure but for the labels' localized texts: main thread only, as LocalizedText.h is.

#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace kx {

// The sort key: what stands before the first colon, followed by the rank of the label behind the
// last "[". The labels with a rank, in the user's language and whatever their case, are "work"
// (01), "home" (02), "iPhone" (03), "mobile" (04), "main" (05), "home fax" (06), "work fax" (07),
// "pager" (08), "other" (09) and "vacation" (10). The first of them with which the text behind the
// "[" begins gives its rank, so "home fax" counts as "home"; any other text stands for itself. The
// translations keep it so: in every language the label of a fax begins with that of its place, and
// 06 and 07 never come up.
//
// Without a colon the key is the whole text; without a "[" it ends before the colon.
std::string compareStringForCID(std::string_view text);

// Compares the sort keys of two texts; their case counts.
std::weak_ordering compareCID(std::string_view text, std::string_view other);

} // namespace kx
