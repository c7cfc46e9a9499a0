// What the leak check of the sanitizers must let pass.

// A SystemConfiguration keeps its watch on the host's configuration for as long as the process
// lives, also when it is destroyed itself; the application makes one and keeps it.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:CreateIPAddressListChangeCallbackSCF\n";
}
