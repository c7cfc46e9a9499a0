// Text on its way between the core (UTF-8) and Qt (UTF-16).

#pragma once

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

} // namespace kx
