#pragma once

#include "LmLibs/LmUtil/LmOutputStream.h"
#include "LmLibs/LmUtil/LmString.h"

#include <string_view>
#include <vector>

/// Lists of words in a line's text, separated by blanks and by nothing else.

/// The pieces of `text` between its blanks. Pieces of no length are dropped, but for the last one, behind the last
/// blank, which always counts: a text that is empty or ends in a blank gives an empty last word.
std::vector<LmString> lmWords(std::string_view text);

/// A new text of all words, each two separated by one blank.
LmString lmJoinWords(const std::vector<LmString>& words);

/// For writing a list behind other values: a blank stands in front of each word.
struct LmSdpTrailingWords
{
    const std::vector<LmString>& words;
};
LmOutputStream& operator<<(LmOutputStream& out, const LmSdpTrailingWords& trailing);
