#include "platform/parts/part.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <string>

#include "runtime/file_names.h"

namespace tarn {
namespace {

// A library looks its symbols up in what came with its part before it looks in the program and
// all of the toolkit, and most of its functions when they are first called: for libcurl and its
// two dozen libraries that is a third of the work.
constexpr int ownSymbolsFirst = RTLD_LAZY | RTLD_LOCAL | RTLD_DEEPBIND;

[[noreturn]] void missing(const std::string& what) {
    throw std::runtime_error("Falta uma parte deste programa; instale-o de novo. " + what);
}

std::string lastError() {
    const char* error = dlerror();
    return error != nullptr ? error : "";
}

}  // namespace

std::filesystem::path fileOfPart(const char* part) {
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    return program.parent_path().parent_path() / "lib" / "tarnemissao" / "parts" /
           (std::string(part) + ".so");
}

Part::Part(const std::filesystem::path& file) : file_(open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (file_ < 0) {
        missing(nameOf(file) + ": " + std::strerror(errno));
    }
}

Part::~Part() {
    close(file_);
}

void* Part::function(const char* name) const {
    const std::string file = "/proc/self/fd/" + std::to_string(file_);
    void* library = dlopen(file.c_str(), ownSymbolsFirst);
    if (library == nullptr) {
        missing(lastError());
    }
    void* found = dlsym(library, name);
    if (found == nullptr) {
        missing(lastError());
    }
    return found;
}

}  // namespace tarn
