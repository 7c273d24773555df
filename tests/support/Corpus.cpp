#include "support/Corpus.h"

#include "LmLibs/LmUtil/LmCharacters.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace
{

const std::filesystem::path s_Corpus(LMSDP_TEST_CORPUS);

std::string nameOf(const std::filesystem::path& file)
{
    std::string name = file.stem().string();
    const auto isPlain = [](char c) { return lmIsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    std::replace_if(
        name.begin(), name.end(), [&](char c) { return !isPlain(c); }, '_');
    return name;
}

} // namespace

std::string corpusText(const std::string& path)
{
    std::ifstream file(s_Corpus / path, std::ios::binary);
    if (!file)
    {
        throw std::runtime_error("no such body: " + path);
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<CorpusFile> corpusFolder(const std::string& folder)
{
    std::vector<CorpusFile> files;
    for (const auto& entry : std::filesystem::directory_iterator(s_Corpus / folder))
    {
        if (entry.path().extension() == ".sdp")
        {
            const std::string file = entry.path().filename().string();
            files.push_back({nameOf(entry.path()), file, corpusText(folder + "/" + file)});
        }
    }
    std::sort(files.begin(), files.end(), [](const auto& left, const auto& right) { return left.file < right.file; });
    return files;
}
