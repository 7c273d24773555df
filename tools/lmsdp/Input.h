#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace lmsdp
{

/// One body as it stands in a file or came in, any bytes.
struct Body
{
    std::string name; ///< for messages: the file's name, or "<stdin>"
    std::string bytes;
};

/// What could not be read, in words for the user.
class InputError : public std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// Reads a file, or standard input for "-".
/// @throws InputError when there is no such file, or it cannot be read or is too large
Body readBody(const std::string& file);

/// The files named, or "-" when there are none.
std::vector<std::string> orStandardInput(std::vector<std::string> files);

} // namespace lmsdp
