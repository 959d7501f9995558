#include "tvok/host/Services.h"

#include <utility>

#include "tvok/records/Error.h"

namespace tvok::host {
namespace {

constinit thread_local Services* currentServices = nullptr;

} // namespace

Services& services() {
    if (currentServices == nullptr) throw ObjectError("this thread has no services: make a desktop first");
    return *currentServices;
}

Services* SetServices(Services* services) {
    return std::exchange(currentServices, services);
}

} // namespace tvok::host
