#pragma once

#include "LmSdpObject.h"
#include "Text.h"

#include <string>
#include <vector>

namespace lmsdp
{

/// Each command gives the exit status of the program.

struct ShowOptions
{
    std::vector<std::string> files;
    bool json = false;
    Keys keys = Keys::withheld;
};

int show(const ShowOptions& options);

/// `keys` is for the lines of messages alone: the text comes back with its keys.
int normalize(const std::vector<std::string>& files, Keys keys);

struct StreamsOptions
{
    std::string file = "-";
    bool json = false;
    Keys keys = Keys::withheld;
};

int streams(const StreamsOptions& options);

struct OfferOptions
{
    std::vector<LmHandle<LmMediaStream>> streams; ///< at least one
    bool json = false;
};

int offer(const OfferOptions& options);

struct CheckOptions
{
    std::vector<std::string> files; ///< or directories
    bool json = false;
    bool strict = false;
    Keys keys = Keys::withheld;
};

int check(const CheckOptions& options);

} // namespace lmsdp
