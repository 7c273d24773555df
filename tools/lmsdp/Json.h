#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace lmsdp
{

/// Members keep the order in which they are set.
using Json = nlohmann::ordered_json;

/// The text of a document, in ASCII, with a line end behind it. Bytes that are no UTF-8 become U+FFFD.
std::string documentText(const Json& document);

/// The document that every command writes: its name and what it found for each body. docs/lmsdp-json.md tells what is
/// in it.
Json makeDocument(const char* command, Json bodies);

} // namespace lmsdp
