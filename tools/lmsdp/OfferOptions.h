#pragma once

#include "LmSdpObject.h"

#include <CLI/CLI.hpp>

#include <vector>

namespace lmsdp
{

/// Adds the options that tell the streams of a local body. Each of --audio, --video, --text, --image and
/// --application begins a stream, to which the --codec and --address behind it belong.
void addStreamOptions(CLI::App& command);

/// The streams that the command line named, in its order.
/// @throws CLI::ValidationError for a codec or an address without a stream in front, a second address of one stream,
///         and where there is no stream
std::vector<LmHandle<LmMediaStream>> streamsOf(const CLI::App& command);

} // namespace lmsdp
