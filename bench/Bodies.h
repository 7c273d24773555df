#pragma once

#include "LmSdpObject.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <functional>
#include <string>

/// The five bodies that all figures are about, in the order of the tables.
constexpr const char* g_Names[] = {"sip_audio", "sip_av_srtp", "broadcast", "webrtc_offer", "multi_media_50"};

std::string bodyNamed(const std::string& name);

/// A session with so many lines `a=`, or with so many sections of three lines.
std::string bodyOfAttributes(std::size_t count);
std::string bodyOfSections(std::size_t count);

/// The pieces of which a body of any size can be put together.
std::string sessionHead();
std::string repeated(const std::string& piece, std::size_t count);

std::size_t countLines(const std::string& body);

LmHandle<LmByteArray> bytesOf(const std::string& body);
void read(LmSdpMsg& msg, const LmHandle<LmByteArray>& hBytes);

/// Bytes per second and calls of the allocator per body, of a benchmark that handles one body of this length each time
/// and has made so many calls in all.
void report(benchmark::State& state, std::size_t length, double calls);

/// Seconds of processor time of this thread that `action` takes, the best of so many.
double bestSeconds(const std::function<void()>& action, int runs);
