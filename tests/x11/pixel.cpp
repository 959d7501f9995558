// usage: pixel X Y [X Y]...
//        pixel --area X Y WIDTH HEIGHT
// Prints the colour of each of these screen pixels as RRGGBB, one per line; or one number that stands for all
// the pixels of an area.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

namespace {

unsigned long ColorAt(XImage& image, int x, int y) {
    return XGetPixel(&image, x, y) & 0xFFFFFFul;
}

XImage* Look(Display* display, char** numbers, int width, int height) {
    return XGetImage(display, DefaultRootWindow(display), std::atoi(numbers[0]), std::atoi(numbers[1]),
                     static_cast<unsigned>(width), static_cast<unsigned>(height), AllPlanes, ZPixmap);
}

bool PrintPixel(Display* display, char** numbers) {
    XImage* image = Look(display, numbers, 1, 1);
    if (image == nullptr) return false;
    std::printf("%06lX\n", ColorAt(*image, 0, 0));
    XDestroyImage(image);
    return true;
}

bool PrintArea(Display* display, char** numbers) {
    const int width = std::atoi(numbers[2]);
    const int height = std::atoi(numbers[3]);
    XImage* image = Look(display, numbers, width, height);
    if (image == nullptr) return false;
    std::uint64_t mixed = 0xCBF29CE484222325u;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) mixed = (mixed ^ ColorAt(*image, x, y)) * 0x100000001B3u;
    std::printf("%016llX\n", static_cast<unsigned long long>(mixed));
    XDestroyImage(image);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        std::fprintf(stderr, "pixel: no display\n");
        return 1;
    }
    bool done = true;
    if (argc == 6 && std::string_view(argv[1]) == "--area") {
        done = PrintArea(display, argv + 2);
    } else {
        for (int argument = 1; argument + 1 < argc && done; argument += 2)
            done = PrintPixel(display, argv + argument);
    }
    XCloseDisplay(display);
    return done ? 0 : 1;
}
