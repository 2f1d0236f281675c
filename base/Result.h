#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>

namespace zentaro {

/// Why something failed: a number (an error number of ours or of the system, 0 when there is none) and a text.
struct Error {
    std::int32_t number = 0;
    std::string text;
    bool operator==(const Error&) const = default;
};

/// A value, or the reason why there is none.
template <class T> class [[nodiscard]] Result {
public:
    Result(T value)
        : m_content(std::in_place_index<0>, std::move(value))
    {
    }
    Result(Error error)
        : m_content(std::in_place_index<1>, std::move(error))
    {
    }

    explicit operator bool() const { return m_content.index() == 0; }
    /// Only while the result holds a value.
    T& operator*() { return std::get<0>(m_content); }
    const T& operator*() const { return std::get<0>(m_content); }
    T* operator->() { return &std::get<0>(m_content); }
    const T* operator->() const { return &std::get<0>(m_content); }
    /// Only while the result holds an error.
    const Error& error() const { return std::get<1>(m_content); }

private:
    std::variant<T, Error> m_content;
};

/// Success, or the reason for the failure.
template <> class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Error error)
        : m_error(std::move(error))
        , m_failed(true)
    {
    }

    explicit operator bool() const { return !m_failed; }
    const Error& error() const { return m_error; }

private:
    Error m_error;
    bool m_failed = false;
};

/// Says at the place of the call that a failure changes nothing there.
template <class T> void IgnoreFailure(const Result<T>&) { }

} // namespace zentaro
