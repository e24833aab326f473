#pragma once

#include <string>
#include <utility>
#include <variant>

namespace palmtools {

/// What went wrong, ready to show; file is empty where no file is at fault.
struct Error {
    std::string text;
    std::string file = {};
};

/// A T, or the Error that stood in its way.
template <typename T> class [[nodiscard]] Result
{
public:
    Result(T value) : m_state(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) : m_state(std::in_place_index<1>, std::move(error)) {}

    explicit operator bool() const { return m_state.index() == 0; }
    const T &operator*() const { return std::get<0>(m_state); }
    T &operator*() { return std::get<0>(m_state); }
    const T *operator->() const { return &std::get<0>(m_state); }
    T *operator->() { return &std::get<0>(m_state); }
    const Error &error() const { return std::get<1>(m_state); }

private:
    std::variant<T, Error> m_state;
};

} // namespace palmtools
