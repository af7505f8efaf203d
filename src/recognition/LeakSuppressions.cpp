// Only in builds with the address sanitizer. At the end of the program it looks for leaks, but in the cage it
// cannot suspend the threads of the libraries, and so takes what GLib and Fontconfig keep for lost.
extern "C" const char* __lsan_default_suppressions(); // NOLINT(bugprone-reserved-identifier): the sanitizer's
extern "C" const char* __lsan_default_suppressions()  // NOLINT(bugprone-reserved-identifier)
{
    return "leak:libglib-2.0\nleak:libfontconfig\n";
}
