#include "cli/own_console.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <chrono>
#include <string>
#include <thread>

namespace tarn::test {
namespace {

DWORD consoleUsers() {
    std::array<DWORD, 8> users{};
    return GetConsoleProcessList(users.data(), users.size());
}

bool usersBecome(DWORD count) {
    constexpr std::chrono::seconds most{20};
    const auto end = std::chrono::steady_clock::now() + most;
    while (consoleUsers() != count && std::chrono::steady_clock::now() < end) {
        std::this_thread::yield();
    }
    return consoleUsers() == count;
}

// A program that shares this one's console until the end of its life.
class Neighbour {
public:
    Neighbour() {
        std::wstring line = L"ping.exe -n 60 127.0.0.1";
        STARTUPINFOW looks{};
        looks.cb = sizeof looks;
        EXPECT_NE(CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                 &looks, &program_),
                  0);
    }
    ~Neighbour() {
        TerminateProcess(program_.hProcess, 0);
        WaitForSingleObject(program_.hProcess, INFINITE);
        CloseHandle(program_.hThread);
        CloseHandle(program_.hProcess);
    }
    Neighbour(const Neighbour&) = delete;
    Neighbour& operator=(const Neighbour&) = delete;

private:
    PROCESS_INFORMATION program_{};
};

class OwnConsole : public testing::Test {
protected:
    OwnConsole() {
        FreeConsole();
        EXPECT_NE(AllocConsole(), 0);
    }
    ~OwnConsole() override { FreeConsole(); }
};

TEST_F(OwnConsole, IsClosed) {
    ASSERT_EQ(consoleUsers(), 1U);
    cli::closeOwnConsole();
    EXPECT_EQ(consoleUsers(), 0U);
    cli::closeOwnConsole();
    EXPECT_EQ(consoleUsers(), 0U);
}

TEST_F(OwnConsole, StaysWhereAnotherProgramUsesIt) {
    const Neighbour neighbour;
    ASSERT_TRUE(usersBecome(2));
    cli::closeOwnConsole();
    EXPECT_EQ(consoleUsers(), 2U);
}

}  // namespace
}  // namespace tarn::test
