// Stands in for libFuzzer's main where there is none: runs each file that is named, or
// that lies in a folder that is, and none of the options.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace files = std::filesystem;

std::vector<files::path> inputsOf(const std::vector<std::string>& names) {
    std::vector<files::path> inputs;
    for (const std::string& name : names) {
        if (files::is_directory(name)) {
            std::copy_if(files::directory_iterator(name), {}, std::back_inserter(inputs),
                         [](const files::path& path) { return files::is_regular_file(path); });
        } else if (!name.starts_with('-')) {
            inputs.emplace_back(name);
        }
    }
    std::sort(inputs.begin(), inputs.end());
    return inputs;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<files::path> inputs = inputsOf({argv + 1, argv + argc});
    for (const files::path& path : inputs) {
        std::fprintf(stderr, "%s\n", path.string().c_str());
        std::ifstream file(path, std::ios::binary);
        if (!file) {
            return 1;
        }
        const std::string bytes((std::istreambuf_iterator<char>(file)), {});
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    std::fprintf(stderr, "%zu inputs\n", inputs.size());
    return inputs.empty() ? 1 : 0;
}
