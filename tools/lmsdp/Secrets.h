#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace lmsdp
{

/// A piece of a text, from `begin` up to, but not including, `end`.
struct Range
{
    std::size_t begin;
    std::size_t end;
};

/// Where key texts stand in a line of a body, letter included, whether or not the line can be read: behind "inline:",
/// in the key parameters of `a=crypto`, in `a=key-mgmt` and in `k=`. In rising order, without overlaps.
std::vector<Range> findSecrets(std::string_view line);

} // namespace lmsdp
