// Puts files through a fuzz target once, without a fuzzer: replay FOLDER ...
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    int files = 0;
    for (int i = 1; i < argc; ++i) {
        if (!std::filesystem::exists(argv[i])) continue; // version control keeps no empty folders
        for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[i])) {
            if (!entry.is_regular_file() || entry.path().extension() == ".py") continue;
            std::ifstream in(entry.path(), std::ios::binary);
            const std::vector<char> bytes(std::istreambuf_iterator<char>(in), {});
            std::printf("%s\n", entry.path().c_str());
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++files;
        }
    }
    std::printf("%d files\n", files);
    return files > 0 ? 0 : 1;
}
