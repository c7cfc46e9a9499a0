// Conversion of text between the core (UTF-8) and Qt (UTF-16), and the texts of the window in the
// user's language.

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

// The localized text for an English key, as a text of Qt's. It has the signature with which the
// interface description calls it. The note to translators is not used at run time.
inline QString localizedQtText(const char* key, const char* /*note*/ = nullptr) {
    return qtText(localizedText(key));
}

} // namespace kx
