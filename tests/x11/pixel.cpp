// usage: pixel X Y [X Y]...
// Prints the colour of each of these screen pixels as RRGGBB, one per line.

#include <cstdio>
#include <cstdlib>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

int main(int argc, char** argv) {
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        std::fprintf(stderr, "pixel: no display\n");
        return 1;
    }
    for (int argument = 1; argument + 1 < argc; argument += 2) {
        XImage* image = XGetImage(display, DefaultRootWindow(display), std::atoi(argv[argument]),
                                  std::atoi(argv[argument + 1]), 1, 1, AllPlanes, ZPixmap);
        if (image == nullptr) return 1;
        std::printf("%06lX\n", XGetPixel(image, 0, 0) & 0xFFFFFFul);
        XDestroyImage(image);
    }
    XCloseDisplay(display);
    return 0;
}
