// Under the name of a program of the machine that wine runs on, such as pdftotext.exe: runs that
// one, hands on what it writes and ends with its status. wine starts programs of its machine, but
// gives their callers neither a pipe to them nor word of their end, so that both go by files here.
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>

namespace {

namespace fs = std::filesystem;

constexpr int failed = 127;  // as a shell's for a program that isn't there
constexpr std::wstring_view script =
    L"folder=$1; shift; \"$@\" >\"$folder/out\" 2>\"$folder/err\"; "
    L"echo $? >\"$folder/part\"; mv \"$folder/part\" \"$folder/end\"";

// As programs read their words back from a line.
std::wstring wordOfLine(std::wstring_view word) {
    std::wstring line = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t letter : word) {
        if (letter == L'"') {
            line.append(backslashes + 1, L'\\');
        }
        backslashes = letter == L'\\' ? backslashes + 1 : 0;
        line += letter;
    }
    return line.append(backslashes, L'\\') + L'"';
}

// A word that begins as a path of Windows, as its machine names that.
std::wstring ofTheMachine(const std::wstring& word) {
    using Translate = char*(CDECL*)(const wchar_t*);
    static const auto translate = reinterpret_cast<Translate>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
    const bool isPath = word.size() > 2 && word[1] == L':' && (word[2] == L'/' || word[2] == L'\\');
    char* name = isPath && translate != nullptr ? translate(word.c_str()) : nullptr;
    if (name == nullptr) {
        return word;
    }
    std::wstring wide(MultiByteToWideChar(CP_UTF8, 0, name, -1, nullptr, 0) - 1, L'\0');
    MultiByteToWideChar(CP_UTF8, 0, name, -1, wide.data(), static_cast<int>(wide.size()));
    HeapFree(GetProcessHeap(), 0, name);
    return wide;
}

bool begin(std::wstring line) {
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION begun{};
    return CreateProcessW(L"Z:\\bin\\sh", line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                          &how, &begun) != 0;
}

void handOn(const fs::path& file, std::FILE* to) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    _setmode(_fileno(to), _O_BINARY);
    std::fwrite(bytes.data(), 1, bytes.size(), to);
    std::fflush(to);
}

}  // namespace

int wmain(int count, wchar_t** words) {
    const fs::path folder =
        fs::temp_directory_path() / ("host-" + std::to_string(GetCurrentProcessId()));
    fs::remove_all(folder);
    fs::create_directory(folder);
    std::wstring line = L"sh -c " + wordOfLine(script) + L" sh " +
                        wordOfLine(ofTheMachine(folder)) + L" " +
                        wordOfLine(fs::path(words[0]).stem().wstring());
    for (int i = 1; i < count; ++i) {
        line += L" " + wordOfLine(ofTheMachine(words[i]));
    }
    if (!begin(std::move(line))) {
        return failed;
    }
    constexpr std::chrono::milliseconds turn{5};
    while (!fs::exists(folder / "end")) {
        std::this_thread::sleep_for(turn);
    }
    handOn(folder / "out", stdout);
    handOn(folder / "err", stderr);
    int status = failed;
    std::ifstream(folder / "end") >> status;
    fs::remove_all(folder);
    return status;
}
