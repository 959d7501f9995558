/// The errors that reach a host, and the quiet region that keeps them from it.
#pragma once

#include <exception>
#include <stdexcept>
#include <string>
#include <utility>

namespace tvok {

/// Base of every error that this library throws.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// An index outside an array. The array is as it was.
class SubscriptError : public Error {
public:
    explicit SubscriptError(long long index, long long upperBound)
        : Error("subscript out of range: " + std::to_string(index) + " is not within 0 to " +
                std::to_string(upperBound)) {}
};

/// A member of an object that does not exist was called, such as the hook of a control at design time.
class ObjectError : public Error {
public:
    using Error::Error;
};

/// A result does not fit its 32-bit place.
class OverflowError : public Error {
public:
    using Error::Error;
};

/// A value has a type that cannot stand where it was given.
class TypeError : public Error {
public:
    using Error::Error;
};

/// A file could not be read, written or understood. The text names the file.
class FileError : public Error {
public:
    using Error::Error;
};

/// A service of the machine is missing, such as a font. The text says what to install.
class ResourceError : public Error {
public:
    using Error::Error;
};

/// Something is in use and may not be changed now.
class LockedError : public Error {
public:
    using Error::Error;
};

/// A quiet region: runs each statement in turn; a statement that throws ends there and the next one runs.
/// Whatever a host's handler throws counts like any other error.
template<class... Statements>
void quietly(Statements&&... statements) {
    const auto run = [](auto&& statement) {
        try {
            statement();
        } catch (...) { // NOLINT(bugprone-empty-catch): ignoring is what a quiet region is for
        }
    };
    (run(statements), ...);
}

/// For statements that all have to run although one throws: keeps what was thrown first until `Rethrow`.
class FirstError {
public:
    template<class Statement>
    void Try(Statement&& statement) {
        try {
            statement();
        } catch (...) {
            if (!first_) first_ = std::current_exception();
        }
    }
    /// Throws what was kept, if anything was. Has to end the statements.
    void Rethrow() {
        if (first_) std::rethrow_exception(std::exchange(first_, nullptr));
    }

private:
    std::exception_ptr first_;
};

} // namespace tvok
