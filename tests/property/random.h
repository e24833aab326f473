#pragma once

#include <QString>
#include <QtGlobal>

#include <iostream>
#include <iterator>
#include <random>

namespace vellumo {

/// How many operations at random a test tries.
inline constexpr int operations = 10000;

/// Random choices from a seed that is printed, so that a failure can be had again: VELLUMO_SEED has
/// it then. Otherwise each run has a seed of its own.
class Random
{
public:
    Random() : m_seed(Seed()), m_engine(m_seed)
    {
        std::cout << "VELLUMO_SEED=" << m_seed << std::endl;
    }

    /// From 0 to one less than the count.
    int Below(qsizetype count)
    {
        return std::uniform_int_distribution(0, static_cast<int>(count) - 1)(m_engine);
    }
    /// Both ends are possible.
    int Between(int least, int most)
    {
        return std::uniform_int_distribution(least, most)(m_engine);
    }
    bool OnceIn(int times) { return Below(times) == 0; }

    template <typename Choices> auto OneOf(const Choices &choices)
    {
        return *std::next(std::begin(choices), Below(std::ssize(choices)));
    }

private:
    static unsigned Seed()
    {
        bool isNumber = false;
        const uint given = qEnvironmentVariable("VELLUMO_SEED").toUInt(&isNumber);
        return isNumber ? given : std::random_device()();
    }

    unsigned m_seed;
    std::mt19937 m_engine;
};

} // namespace vellumo
