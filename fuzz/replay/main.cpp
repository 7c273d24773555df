// Feeds files to a fuzz target, in a build without a fuzzer.

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    for (int place = 1; place < argc; ++place)
    {
        std::ifstream file(argv[place], std::ios::binary);
        if (!file)
        {
            std::fprintf(stderr, "%s: can't be read\n", argv[place]);
            return 1;
        }
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    std::printf("%d inputs\n", argc - 1);
    return 0;
}
