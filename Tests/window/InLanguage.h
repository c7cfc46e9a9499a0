// Sets the language of the process's texts from its construction to its destruction.

#pragma once

#include "platform/qtcore/QtLocalizedText.h"
#include "platform/qtcore/QtTranslations.h"

namespace kx {

class InLanguage {
public:
    explicit InLanguage(const QString& language)
        : _translations({language})
        , _previous(installLocalizedText(&_texts)) {}
    ~InLanguage() { installLocalizedText(_previous); }
    InLanguage(const InLanguage&) = delete;
    InLanguage& operator=(const InLanguage&) = delete;

    QString language() const { return _translations.language(); }

private:
    QtTranslations _translations;
    QtLocalizedText _texts;
    const LocalizedText* _previous;
};

} // namespace kx
