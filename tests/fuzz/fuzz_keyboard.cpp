// A Keyboard theme, opened and saved by the buttons of the window.

#include "themewindow.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static auto *const window = new ThemeWindow("openKeyboard", "saveKeyboard");
    window->run(Fuzz::bytesOf(data, size));
    return 0;
}
