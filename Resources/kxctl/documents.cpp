// Writes one of the documents that are made of the table of commands to standard output.
//
// usage: kxctl_documents manual DAY | bash | zsh | fish
//
// The build runs it; nobody installs it.

#include "commands/CommandHelp.h"

#include <cstdio>
#include <string>

int main(int argc, char* argv[]) {
    const std::string kind = argc > 1 ? argv[1] : "";
    std::string text;
    if (kind == "manual" && argc == 3) {
        text = kx::manualPage(argv[2]);
    } else if (kind == "bash" && argc == 2) {
        text = kx::bashCompletion();
    } else if (kind == "zsh" && argc == 2) {
        text = kx::zshCompletion();
    } else if (kind == "fish" && argc == 2) {
        text = kx::fishCompletion();
    } else {
        std::fputs("usage: kxctl_documents manual DAY | bash | zsh | fish\n", stderr);
        return 2;
    }
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() ? 0 : 1;
}
