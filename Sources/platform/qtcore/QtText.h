// Text on its way between the core (UTF-8) and Qt (UTF-16), and the texts of the window in the
// language of the person at it.

#pragma once

#include "support/LocalizedText.h"

#include <QString>
#include <string>
#include <string_view>

namespace kx {

inline QString qtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string utf8Text(const QString& text) {
    return text.toStdString();
}

// The text for an English key, for whatever Qt shows. Has the form in which the interface
// description calls it; the note to translators goes to nobody at run time.
inline QString localizedQtText(const char* key, const char* /*note*/ = nullptr) {
    return qtText(localizedText(key));
}

} // namespace kx
