#include "Report.h"

#include "Lines.h"

#include <algorithm>
#include <iostream>

namespace lmsdp
{
namespace
{

Refusal at(const Body& body, std::size_t offset, const Failure& failure)
{
    const Lines lines(body.bytes);
    const std::size_t number = lines.numberAt(offset);
    return {failure, number, std::string(lines.text(number))};
}

} // namespace

Refusal refusalOf(const Body& body, const Reading& reading)
{
    return at(body, refusedAt(body, reading), *reading.refusal);
}

Refusal unwritableOf(const Body& body, const Reading& reading, const Failure& failure)
{
    const std::vector<ReadLine> lines = readLines(body, reading);
    const auto found = std::find_if(lines.begin(), lines.end(), [](const ReadLine& line) {
        return attempt([&line] { written(*line.field); }).has_value();
    });
    return found == lines.end() ? Refusal{failure, 0, ""} : at(body, found->begin, failure);
}

void report(const Body& body, const Refusal& refusal, Keys keys)
{
    std::cout.flush();
    std::cerr << "lmsdp: " << printable(body.name) << ':';
    if (refusal.line != 0)
    {
        std::cerr << refusal.line << ':';
    }
    std::cerr << ' ' << refusal.failure.exceptionClass << ": " << printable(refusal.failure.words) << '\n';
    if (refusal.line != 0)
    {
        std::cerr << "    " << excerpt(refusal.text, 0, keys).text << '\n';
    }
}

void report(const InputError& error)
{
    std::cout.flush();
    std::cerr << "lmsdp: " << printable(error.what()) << '\n';
}

Json jsonOf(const Refusal& refusal, Keys keys)
{
    Json result{{"class", refusal.failure.exceptionClass}, {"words", refusal.failure.words}};
    if (refusal.line != 0)
    {
        result["line"] = refusal.line;
        result["text"] = lineText(refusal.text, keys);
    }
    return result;
}

} // namespace lmsdp
