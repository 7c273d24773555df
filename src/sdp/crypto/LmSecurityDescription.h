#pragma once

#include "LmLibs/LmUtil/LmString.h"
#include "core/MemAccountOperators.h"
#include "sdp/LmSdpExport.h"

/// One session parameter of an `a=crypto` line (RFC 4568, section 6.3). A plain value: nothing is validated.
class LMSDP_API LmSecurityDescription
{
public:
    /// The parameters known by name; the grammar of RFC 4568, section 9.2, has their forms.
    enum ESecurityDescription
    {
        KDR = 0,
        UNENCRYPTED_SRTP,
        UNENCRYPTED_SRTCP,
        UNAUTHENTICATED_SRTP,
        FEC_ORDER,
        FEC_KEY,
        WSH,
        UNKNOWN, ///< a name outside the table, which `m_Name` holds
        NOT_SET
    };

    /// No name, no value, `NOT_SET`.
    LmSecurityDescription();

    /// The type follows from the name, in upper or lower case; the name stays as it is given.
    LmSecurityDescription(const char* name, const char* value);

    /// The name follows from the type; it is empty for `UNKNOWN`, `NOT_SET` and any number beyond them.
    LmSecurityDescription(ESecurityDescription type, const char* value);

    ///@{
    /// A copy of every member.
    LmSecurityDescription(const LmSecurityDescription& other) = default;
    LmSecurityDescription& operator=(const LmSecurityDescription& other) = default;
    ///@}
    ~LmSecurityDescription() = default;

    QUORVEX_MEM_ACCOUNT(LmSecurityDescription)

    LmString m_Name;                       ///< as it stands in the text
    ESecurityDescription m_Type = NOT_SET; ///< what the name stands for
    LmString m_Value;                      ///< the text behind the "="; empty for a parameter without a value
};
