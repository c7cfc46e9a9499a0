// The leaks that the sanitizers must not report.

// A SystemConfiguration keeps its watch on the host's configuration for as long as the process
// lives, even when the object itself is destroyed. The application makes one and keeps it.
extern "C" const char* __lsan_default_suppressions();  // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() { // NOLINT(bugprone-reserved-identifier)
    return "leak:CreateIPAddressListChangeCallbackSCF\n";
}
