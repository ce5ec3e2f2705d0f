// Runs a target over files in place of a fuzzer: every input that is kept, with any compiler.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace
{

void replay(const std::filesystem::path& path)
{
    // Named beforehand: an input that ends the program ends the output with its name.
    std::printf("%s\n", path.filename().c_str());
    std::fflush(stdout);
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

} // namespace

int main(int argc, char** argv)
{
    int replayed = 0;
    for (int i = 1; i < argc; ++i)
    {
        for (const auto& entry : std::filesystem::directory_iterator(argv[i]))
        {
            replay(entry.path());
            ++replayed;
        }
    }
    // A folder that was moved would prove nothing without a word.
    return replayed > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
