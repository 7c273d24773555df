#include "Json.h"

namespace lmsdp
{

std::string documentText(const Json& document)
{
    return document.dump(2, ' ', true, Json::error_handler_t::replace) + '\n';
}

Json makeDocument(const char* command, Json bodies)
{
    return {{"command", command}, {"bodies", std::move(bodies)}};
}

} // namespace lmsdp
