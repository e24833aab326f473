#include "platform/undoable.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>

using namespace vellumo;

TEST(Undoable, UndoesTheLatestFirstAndThenEnds)
{
    std::string done;
    const Undoable first([&] { done += "a"; }, [&] { done += "A"; });
    const Undoable second([&] { done += "b"; }, [&] { done += "B"; });
    EXPECT_EQ(done, "ab");
    UndoAll([&] { done += "."; });
    EXPECT_EQ(done, "abBA.");
    ForgetUndoing();
}

TEST(Undoable, LeavesWhatIsGone)
{
    std::string done;
    {
        const Undoable gone([] {}, [&] { done += "gone"; });
    }
    UndoAll([] {});
    EXPECT_EQ(done, "");
    ForgetUndoing();
}

TEST(Undoable, WhatIsMadeTooLateIsUndoneAtOnce)
{
    std::string done;
    UndoAll([] {});
    {
        const Undoable late([&] { done += "made"; }, [&] { done += ", undone"; });
    }
    EXPECT_EQ(done, "made, undone");

    ForgetUndoing();
    const Undoable again([&] { done += ", made"; }, [&] { done += ", undone"; });
    EXPECT_EQ(done, "made, undone, made");
}

TEST(Undivided, HoldsASignalBackUntilItIsDone)
{
    std::atomic<bool> ended = false;
    std::thread signal;
    {
        const Undivided work;
        signal = std::thread([&] { UndoAll([&] { ended = true; }); });
        std::this_thread::yield();
        EXPECT_FALSE(ended);
    }
    signal.join();
    EXPECT_TRUE(ended);
    ForgetUndoing();
}
