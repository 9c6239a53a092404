// What an operation of the operating system gives back: a value, or why there is none.
//
// Failures are ordinary values here. A caller either handles one or says, with IgnoreFailure,
// why nobody needs to know.
#pragma once

#include <cstdint>
#include <utility>
#include <variant>

namespace zentar {

enum class FileError : std::uint8_t {
    NotFound,       // no such file, folder or drive
    AccessDenied,   // rights, or a read-only file that is to be changed or deleted
    InUse,          // another program holds it
    AlreadyExists,  // the target of a creation or a rename is there
    NoSpace,        // disk or quota full
    BadName,        // a name that the file system cannot hold
    Other,
};

// Success, or the reason of a failure.
class [[nodiscard]] Status {
  public:
    Status() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): a failure is returned as it is
    Status(FileError error) : failed_(true), error_(error) {}

    bool Ok() const { return !failed_; }
    // Meaningful only when !Ok().
    FileError Error() const { return error_; }

  private:
    bool failed_ = false;
    FileError error_ = FileError::Other;
};

// A T, or the reason why there is none. Value() may be called only when Ok().
template <typename T>
class [[nodiscard]] Result {
  public:
    Result(T value) : held_(std::move(value)) {}  // NOLINT(google-explicit-constructor)
    Result(FileError error) : held_(error) {}     // NOLINT(google-explicit-constructor)

    bool Ok() const { return std::holds_alternative<T>(held_); }
    T& Value() { return std::get<T>(held_); }
    const T& Value() const { return std::get<T>(held_); }
    T ValueOr(T other) const { return Ok() ? Value() : std::move(other); }
    // Meaningful only when !Ok().
    FileError Error() const { return std::get<FileError>(held_); }

  private:
    std::variant<T, FileError> held_;
};

// For the places where a failure is deliberately of no consequence; the line says why.
inline void IgnoreFailure(const Status& /*status*/) {}

}  // namespace zentar
