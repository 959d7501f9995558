// The states of the workbench that are worth a picture.
#include "apps/gallery/Window.h"

namespace gallery {

std::vector<Scene> Window::Scenes() {
    return {
        {"", [] {}},
    };
}

} // namespace gallery
