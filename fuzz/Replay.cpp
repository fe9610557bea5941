// Runs a fuzz target over the files of the folders that are named, and over no bytes at all.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

namespace {

void RunFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> vecBytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    // The bytes move to a block of exactly their size, so that a sanitizer sees a read beyond the last.
    const std::vector<std::uint8_t> vecInput(vecBytes.begin(), vecBytes.end());
    LLVMFuzzerTestOneInput(vecInput.data(), vecInput.size());
}

/// Replays the files of a folder and returns their number, so that a folder without seeds can fail.
int RunFolder(const std::filesystem::path& pathFolder)
{
    int nFiles = 0;
    for (const auto& entry : std::filesystem::directory_iterator(pathFolder)) {
        if (!entry.is_regular_file())
            continue;
        RunFile(entry.path());
        ++nFiles;
    }
    return nFiles;
}

} // namespace

int main(int nCount, char** arrArguments)
{
    LLVMFuzzerTestOneInput(nullptr, 0);
    for (int i = 1; i < nCount; ++i) {
        std::error_code error;
        if (!std::filesystem::is_directory(arrArguments[i], error)) {
            std::fprintf(stderr, "%s: no such folder of seeds\n", arrArguments[i]);
            return 1;
        }
        const int nFiles = RunFolder(arrArguments[i]);
        std::printf("%s: %d seeds\n", arrArguments[i], nFiles);
        if (nFiles == 0)
            return 1;
    }
    return 0;
}
