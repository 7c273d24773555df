#include "Commands.h"
#include "Report.h"

#include <iostream>

namespace lmsdp
{

int normalize(const std::vector<std::string>& files, Keys keys)
{
    return forEachBody(files, [keys](const Body& body) -> int {
        const Reading reading = read(body);
        if (reading.refusal)
        {
            report(body, refusalOf(body, reading), keys);
            return exitRefused;
        }
        std::string text;
        if (const std::optional<Failure> failure = attempt([&] { text = written(*reading.message); }))
        {
            report(body, unwritableOf(body, reading, *failure), keys);
            return exitRefused;
        }
        std::cout << text;
        return exitClean;
    });
}

} // namespace lmsdp
