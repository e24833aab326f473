#pragma once

/// Runs tests of this program: with arguments NAME..., those of the files NAME_test.cpp, else all;
/// and of these the ones that GoogleTest's own arguments and variables leave. A filter that names
/// tests says all by itself. Gives what main is to return: not 0 where a test fails, or where a
/// file has none.
int RunTests(int argc, char *argv[]);
