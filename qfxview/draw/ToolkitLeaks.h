#pragma once
// Include in the one file of an executable that holds main(). Qt 5's offscreen platform leaves
// its screen objects behind at exit; the leak checker of the sanitizer build is told so, and
// reports everything else. Without the sanitizer nothing calls this.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libqoffscreen.so\nleak:libQt5Gui.so\nleak:libQt5Core.so\n";
}

// The suppressed toolkit leaks are expected; their count on standard error would only be noise
// in the program's own messages.
extern "C" const char* __lsan_default_options() {
    return "print_suppressions=0";
}
