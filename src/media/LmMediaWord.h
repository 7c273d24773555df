#pragma once

#include "media/LmMediaStream.h"

/// The media word of an `m=` line and the kind of stream that it stands for (RFC 4566, section 8.2.1).
struct LmMediaWord
{
    const char* word;
    LmMediaStream::Type type;
};

/// In the order of the kinds' numbers.
constexpr LmMediaWord lmMediaWords[] = {{"audio", LmMediaStream::AUDIO},
                                        {"video", LmMediaStream::VIDEO},
                                        {"text", LmMediaStream::TEXT},
                                        {"image", LmMediaStream::IMAGE},
                                        {"application", LmMediaStream::APPLICATION}};
