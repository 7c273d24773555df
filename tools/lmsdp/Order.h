#pragma once

#include "Reading.h"

namespace lmsdp
{

/// For each line of a body, in the order of the text, the place at which it is written, counted from 0.
std::vector<std::size_t> writtenPlaces(const std::vector<ReadLine>& lines);

/// The lines that have to change places for the written order: the fewest that can, and rather a line at session level
/// than a time or media description.
std::vector<bool> movedLines(const std::vector<ReadLine>& lines, const std::vector<std::size_t>& places);

} // namespace lmsdp
