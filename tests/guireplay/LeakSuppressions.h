#pragma once
// Include in the one file of a test program that holds main(). Qt 5's offscreen platform and
// fontconfig leave their singletons behind at exit; the sanitizer build's leak checker is told
// so and reports everything else.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libqoffscreen.so\nleak:libQt5Gui.so\nleak:libQt5Core.so\nleak:libQt5Widgets.so\n"
           "leak:libfontconfig.so\n";
}
