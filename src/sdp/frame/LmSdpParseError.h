#pragma once

#include "LmLibs/LmUtil/LmException.h"
#include "sdp/LmSdpExport.h"

/// Text or an argument that is no valid SDP. The other failures of the library are plain LmExceptions.
class LMSDP_API LmSdpParseError : public LmException
{
public:
    ///@{
    /// An error with that message; the empty one for none and for a null pointer.
    LmSdpParseError();
    explicit LmSdpParseError(const char* message);
    ///@}
    ~LmSdpParseError() override;

    /// Throws an LmSdpParseError with that message.
    [[noreturn, gnu::cold]] static void sThrow(const char* message);
};
