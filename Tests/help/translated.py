"""Compares a paragraph of the help book with its translation, and with what the window says."""

import collections
import html
import os
import re
import xml.etree.ElementTree

PLACEHOLDER = re.compile(r"%[@ds]")

# The names of the keys that the book names, as the window's sentences write them.
KEYS = {
    "de": {"Ctrl": "Strg", "Shift": "Umschalt", "Return": "Eingabe", "Home": "Pos1", "Left": "Links",
           "Right": "Rechts", "Up": "Hoch", "Down": "Herunter"},
    "fr": {"Shift": "Maj", "Return": "Entrée", "Esc": "Échap", "Home": "Début", "Left": "Gauche",
           "Right": "Droite", "Up": "Haut", "Down": "Bas"},
    "es": {"Shift": "Mayús", "Return": "Intro", "Home": "Inicio", "Left": "Izquierda",
           "Right": "Derecha", "Up": "Arriba", "Down": "Abajo"},
    "ja": {"Left": "←", "Right": "→", "Up": "↑", "Down": "↓"},
}
KEY = re.compile(r"(?:(?:Ctrl|Shift|Alt)\+)*(?:Ctrl|Shift|Alt|Return|Esc|Tab|Home|Left|Right|Up|Down|F\d+|[A-Z]|\.)")


def plain(text):
    """A text as a person reads it: without marks of letters for the keyboard, and with single blanks."""
    return " ".join(re.sub(r"\(&.\)", "", text).replace("&", "").split(" ")).strip()


def single_spaced(text):
    return re.sub(r"[ \n\t]+", " ", text).strip(" ")


def contents(text, *tags):
    """The texts within these elements, as a person reads them; "…" stands for an inner <var>."""
    found = re.findall(rf"<(?:{'|'.join(tags)})\b[^>]*>(.*?)</(?:{'|'.join(tags)})>", text, re.DOTALL)
    return [single_spaced(html.unescape(re.sub(r"<[^>]*>", "", re.sub(r"<var>.*?</var>", "…", each))))
            for each in found]


def key_in(language, key):
    return "+".join(KEYS[language].get(part, part) for part in key.split("+"))


def is_of_the_system(text):
    """Whether the system words this text, and therefore says it in its own language."""
    return text in {os.strerror(number) for number in range(1, 134)}


class Window:
    """The texts of the window's catalogue of a language."""

    def __init__(self, catalogue):
        messages = xml.etree.ElementTree.parse(catalogue).iter("message")
        self._texts = {single_spaced(plain(message.findtext("source"))):
                       single_spaced(plain(message.findtext("translation"))) for message in messages}
        self._patterns = []
        for english, translation in self._texts.items():
            words = PLACEHOLDER.sub("", english)
            if len(re.findall("[A-Za-z]{2,}", words)) >= 2:
                pieces = [{"%d": r"(\d+|…)", "%@": "(.*?)", "%s": "(.*?)"}.get(piece, re.escape(piece))
                          for piece in re.split("(%[@ds])", english)]
                self._patterns.append((len(words), re.compile("".join(pieces)), translation))
        self._patterns.sort(key=lambda pattern: -pattern[0])

    def __call__(self, english):
        """What the window says for a whole text of it; None where the text is not the window's."""
        if english in self._texts:
            return self._texts[english]
        for _, pattern, translation in self._patterns:
            match = pattern.fullmatch(english)
            if match:
                parts = [self(part) or part for part in match.groups()]
                return PLACEHOLDER.sub(lambda _: parts.pop(0), translation)
        return self._with_an_end(english)

    def _with_an_end(self, english):
        """The translation of a text of the window that has an end without words, such as an address."""
        for _, pattern, translation in self._patterns:
            match = pattern.match(english)
            end = english[match.end():] if match and not pattern.groups else ""
            if re.search("[0-9A-Z…]", end) and not re.search("[A-Za-z]{2}", end):
                return single_spaced(translation + end)
        return None

    def wordings_of_part(self, english):
        """The translations of the window's texts that this text is a part of; "…" stands for anything."""
        part = self._pattern_of_part(english)
        return [translation for text, translation in self._texts.items() if part.search(text)]

    def is_part_of_any(self, part, wordings):
        pattern = self._pattern_of_part(part)
        return any(pattern.search(wording) for wording in wordings)

    @staticmethod
    def _pattern_of_part(text):
        return re.compile(r".*?".join(re.escape(piece.strip()) for piece in text.split("…")))


def elements(text):
    return collections.Counter(re.findall(r"</?[a-z]+[^>]*>", text))


def numbers(text):
    return collections.Counter(re.findall(r"\d+", text))


class Faults:
    """The faults of a translation into one language."""

    def __init__(self, language, catalogue):
        self._language = language
        self._window = Window(catalogue)

    def __call__(self, entry):
        """What is wrong with the translation of an entry, one line for each fault."""
        found = [*self._of_elements(entry), *self._of_numbers(entry), *self._of_keys(entry),
                 *self._of_the_whole(entry)]
        for tag in ("b", "i", "code"):
            found += self._of_names(entry, tag)
        return [f"{fault} in: {entry.translation}" for fault in found]

    def _of_elements(self, entry):
        expected, there = elements(entry.english), elements(entry.translation)
        return [f"{element} is missing or too many" for element in (expected - there) + (there - expected)]

    @staticmethod
    def _of_numbers(entry):
        return [f"{number} is missing" for number in numbers(entry.english) - numbers(entry.translation)]

    def _of_keys(self, entry):
        there = contents(entry.translation, "kbd")
        wanted = [key_in(self._language, key) for key in contents(entry.english, "kbd") if KEY.fullmatch(key)]
        return [f"the key {key} is missing" for key in wanted if key not in there]

    def _of_the_whole(self, entry):
        """An entry may be one text of the window; in <pre> each line may be one."""
        english, lines = entry.english.split("\n"), entry.translation.split("\n")
        if len(english) != len(lines):
            return [f"{len(lines)} lines instead of {len(english)}"]
        wanted = [(self._window(single_spaced(html.unescape(text))), single_spaced(html.unescape(line)))
                  for text, line in zip(english, lines) if "<" not in text]
        return [f"“{text}” is missing" for text, line in wanted if text not in (None, line)]

    def _of_names(self, entry, tag):
        there = contents(entry.translation, tag)
        for text in contents(entry.english, tag):
            wanted = self._window(text)
            if wanted is not None:
                # A name in <i> is a word of its sentence, and may begin with a small letter.
                if wanted not in there and (tag != "i" or wanted.lower() not in map(str.lower, there)):
                    yield f"“{wanted}” is missing"
            elif tag != "b" and (" " in text or text.endswith(":")) and self._window.wordings_of_part(text):
                wordings = self._window.wordings_of_part(text)
                if not any(self._window.is_part_of_any(part, wordings) for part in there):
                    yield f"“{text}” is not in the words of the window"
            elif tag == "code" and not is_of_the_system(text) and text not in there:
                yield f"“{text}” is missing"
