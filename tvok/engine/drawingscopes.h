/// Pens, brushes and fonts that are given back at the end of a scope, also when what stands in it throws.
#pragma once

#include "tvok/host/Platform.h"

namespace tvok::dgi {

/// A drawing object that is freed with its scope.
class Owned {
public:
    explicit Owned(host::Handle object) : object_(object) {}
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() { host::platform().DeleteObject(object_); }
    host::Handle handle() const { return object_; }

private:
    host::Handle object_;
};

/// An object that is in use for a scope; the one before is selected back.
class Selected {
public:
    Selected(host::Handle hDC, host::Handle object)
        : hDC_(hDC), before_(host::platform().SelectObject(hDC, object)) {}
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;
    ~Selected() { host::platform().SelectObject(hDC_, before_); }

private:
    host::Handle hDC_;
    host::Handle before_;
};

} // namespace tvok::dgi
