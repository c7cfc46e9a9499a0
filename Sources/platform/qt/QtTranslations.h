// Qt's own texts in the user's language, such as the buttons of message boxes. They are used where
// the system has them; elsewhere they stay English.
//
// Needs a QCoreApplication, and must be destroyed before it. Main thread only.

#pragma once

#include <QTranslator>
#include <string_view>

namespace kx {

class QtTranslations final {
public:
    // Installs the texts of a language, as in "de".
    explicit QtTranslations(std::string_view language);

private:
    QTranslator _texts;
};

} // namespace kx
