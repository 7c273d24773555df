#include "Input.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <limits>
#include <memory>

namespace lmsdp
{
namespace
{

/// The library counts bytes in 32 bits.
constexpr std::size_t s_LargestBody = std::numeric_limits<unsigned int>::max() - 1;

[[noreturn]] void fail(const std::string& name, const char* why)
{
    throw InputError(name + ": " + why);
}

std::string readAll(std::FILE* file, const std::string& name)
{
    std::string bytes;
    char block[1 << 16];
    while (const std::size_t count = std::fread(block, 1, sizeof block, file))
    {
        bytes.append(block, count);
        if (bytes.size() > s_LargestBody)
        {
            fail(name, "larger than a body can be");
        }
    }
    if (std::ferror(file) != 0)
    {
        fail(name, std::strerror(errno));
    }
    return bytes;
}

} // namespace

Body readBody(const std::string& file)
{
    if (file == "-")
    {
        return {"<stdin>", readAll(stdin, "<stdin>")};
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> opened(std::fopen(file.c_str(), "rb"), &std::fclose);
    if (!opened)
    {
        fail(file, std::strerror(errno));
    }
    return {file, readAll(opened.get(), file)};
}

std::vector<std::string> orStandardInput(std::vector<std::string> files)
{
    if (files.empty())
    {
        files.emplace_back("-");
    }
    return files;
}

} // namespace lmsdp
