#pragma once

#include <optional>
#include <utility>

namespace orlen {

/// The errno of a failed system call.
struct Errno {
    int code = 0;
    friend bool operator==(const Errno&, const Errno&) = default;
};

/// The result of a system call: a value, or the errno that explains why there is none. Used inside platform
/// and by the few callers that must tell "missing" from "denied" from "other device".
template <typename T>
class [[nodiscard]] Result {
public:
    Result(T value) : m_value(std::move(value)) {}
    Result(Errno error) : m_error(error) {}

    [[nodiscard]] bool ok() const { return m_value.has_value(); }
    /// 0 if ok.
    [[nodiscard]] int error() const { return m_error.code; }

    /// Only if ok.
    [[nodiscard]] T& value() & { return *m_value; }
    [[nodiscard]] const T& value() const& { return *m_value; }
    [[nodiscard]] T&& value() && { return *std::move(m_value); }

private:
    std::optional<T> m_value;
    Errno m_error;
};

template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Errno error) : m_error(error) {}

    [[nodiscard]] bool ok() const { return m_error.code == 0; }
    [[nodiscard]] int error() const { return m_error.code; }

private:
    Errno m_error;
};

} // namespace orlen
