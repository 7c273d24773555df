#pragma once

#include "LmSdpObject.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <functional>
#include <string>

/// The five bodies that all figures are about, in the order of the tables.
constexpr const char* g_Names[] = {"sip_audio", "sip_av_srtp", "broadcast", "webrtc_offer", "multi_media_50"};

/// A session with so many lines `a=`, or with so many sections of three lines.
std::string bodyOfAttributes(std::size_t count);
std::string bodyOfSections(std::size_t count);

using Generator = std::string (*)(std::size_t count);

struct GeneratedBody
{
    const char* name;
    Generator generate;
    std::size_t count;
};
constexpr GeneratedBody g_Generated[] = {{"1,000 attributes", &bodyOfAttributes, 1000},
                                         {"10,000 attributes", &bodyOfAttributes, 10000},
                                         {"100,000 attributes", &bodyOfAttributes, 100000},
                                         {"10,000 media sections", &bodyOfSections, 10000}};

/// One of the five or one that is generated.
std::string bodyNamed(const std::string& name);

/// The pieces of which a body of any size can be put together.
std::string sessionHead();
std::string repeated(const std::string& piece, std::size_t count);

std::size_t countLines(const std::string& body);

LmHandle<LmByteArray> bytesOf(const std::string& body);
void read(LmSdpMsg& msg, const LmHandle<LmByteArray>& hBytes);

/// Seconds of processor time of this thread that `action` takes, the best of so many.
double bestSeconds(const std::function<void()>& action, int runs);

/// The benchmarks of each file, added to those that are run.
void registerMessages();
void registerGrowth();
void registerThreads();
