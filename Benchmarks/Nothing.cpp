// Links what kxctl links, and does nothing.

int main() {
    return 0;
}
