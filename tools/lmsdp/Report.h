#pragma once

#include "Json.h"
#include "Reading.h"
#include "Text.h"

namespace lmsdp
{

/// What the program gives back.
enum ExitStatus
{
    exitClean = 0,
    exitRefused = 1, ///< a body was refused, or has errors
    exitUsage = 2    ///< a bad command line, or a file that cannot be read
};

/// A failure of a body, and where it stands.
struct Refusal
{
    Failure failure;
    std::size_t line = 0; ///< counted from 1; 0 when the failure belongs to no line
    std::string text;     ///< of that line
};

/// A body that could not be read.
Refusal refusalOf(const Body& body, const Reading& reading);

/// A body that was read, and cannot be written.
Refusal unwritableOf(const Body& body, const Reading& reading, const Failure& failure);

/// Tells standard error.
void report(const Body& body, const Refusal& refusal, Keys keys);
void report(const InputError& error);

Json jsonOf(const Refusal& refusal, Keys keys);

/// Reads each body and hands it to `operation`, which gives an exit status. A file that cannot be read is reported,
/// and the others are done all the same. Gives the worst status.
template <typename Operation>
int forEachBody(const std::vector<std::string>& files, Operation operation)
{
    int status = exitClean;
    for (const std::string& file : orStandardInput(files))
    {
        try
        {
            status = std::max<int>(status, operation(readBody(file)));
        }
        catch (const InputError& error)
        {
            report(error);
            status = exitUsage;
        }
    }
    return status;
}

} // namespace lmsdp
