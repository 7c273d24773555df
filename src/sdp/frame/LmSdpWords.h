#pragma once

#include "LmLibs/LmUtil/LmOutputStream.h"
#include "LmLibs/LmUtil/LmString.h"
#include "core/ThreadHeapOperators.h"

#include <string_view>
#include <vector>

/// Lists of words in a line's text, separated by blanks and by nothing else.
using LmSdpWordList = std::vector<LmString, Quorvex::ThreadHeapAllocator<LmString>>;

/// The pieces of `text` between its blanks. Pieces of no length are dropped, but for the last one, behind the last
/// blank, which always counts: a text that is empty or ends in a blank gives an empty last word.
LmSdpWordList lmWords(std::string_view text);

/// A new text of all words, each two separated by one blank.
LmString lmJoinWords(const LmSdpWordList& words);

/// For writing a list behind other values: a blank stands in front of each word.
struct LmSdpTrailingWords
{
    const LmSdpWordList& words;
};
LmOutputStream& operator<<(LmOutputStream& out, const LmSdpTrailingWords& trailing);
