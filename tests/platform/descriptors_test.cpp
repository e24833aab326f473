#include "platform/descriptor.h"
#include "platform/descriptor_supply.h"

#include "support/print.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <thread>

using namespace vellumo;

namespace {

QByteArray ReadToEnd(int descriptor)
{
    QByteArray read;
    char part[4096];
    for (ssize_t size = 0; (size = ::read(descriptor, part, sizeof part)) > 0;)
        read.append(part, size);
    return read;
}

TEST(Descriptors, AWriteWaitsForRoomInAPipeThatDoesNotWait)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    ASSERT_EQ(fcntl(ends[1], F_SETFL, O_NONBLOCK), 0);
    const QByteArray bytes(1'000'000, 'x'); // of which no pipe takes all at once
    QByteArray read;
    std::thread reader([&] { read = ReadToEnd(ends[0]); });
    {
        const Descriptor writer(ends[1]);
        EXPECT_TRUE(writer.Write(bytes));
    }
    reader.join();
    close(ends[0]);
    EXPECT_EQ(read, bytes);
}

TEST(Descriptors, TheirSupplyIsWhatTheProcessMayOpen)
{
    EXPECT_TRUE(DescriptorsAreLeft(50));
    rlimit before = {};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit few = {20, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
    const bool left = DescriptorsAreLeft(50);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_FALSE(left);
    EXPECT_TRUE(DescriptorsAreLeft(50)) << "those that were tried are closed again";
}

} // namespace
