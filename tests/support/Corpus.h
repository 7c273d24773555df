#pragma once

#include <ostream>
#include <string>
#include <vector>

/// A body of `tests/corpus`.
struct CorpusFile
{
    std::string name; ///< the file's name without its ending, with every other character than letters and digits as _
    std::string file; ///< the file's name
    std::string text; ///< its bytes

    friend void PrintTo(const CorpusFile& body, std::ostream* out) { *out << body.name; }
};

/// The bytes of a file below `tests/corpus`.
std::string corpusText(const std::string& path);

/// The bodies of one folder of `tests/corpus`, in the order of their names.
std::vector<CorpusFile> corpusFolder(const std::string& folder);
