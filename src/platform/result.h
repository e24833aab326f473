#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace vellumo {

/// What went wrong, ready to show.
struct Error {
    QString text;
    QString file = {};             ///< empty = none applies
    int line = 0;                  ///< from 1, 0 = none applies
    bool permissionDenied = false; ///< the platform refused what the user may not do
};

/// The error as file:line: text, with the parts that apply.
QString Describe(const Error &error);

/// A T, or the Error that stood in its way.
template <typename T> class [[nodiscard]] Result
{
public:
    Result(T value) : m_state(std::in_place_index<0>, std::move(value)) {}
    Result(Error error) : m_state(std::in_place_index<1>, std::move(error)) {}

    explicit operator bool() const { return m_state.index() == 0; }
    T &operator*() { return std::get<0>(m_state); }
    const T &operator*() const { return std::get<0>(m_state); }
    T *operator->() { return &std::get<0>(m_state); }
    const T *operator->() const { return &std::get<0>(m_state); }
    const Error &error() const { return std::get<1>(m_state); }

private:
    std::variant<T, Error> m_state;
};

/// Done, or the Error that stood in the way.
using Outcome = Result<std::monostate>;
inline const Outcome done = Outcome(std::monostate());

} // namespace vellumo
