#pragma once

#include "LmLibs/LmUtil/LmUtilExport.h"

#include <cstdint>

/// An IPv4 address: a value of one 32-bit word. No name is ever looked up.
class LMUTIL_API LmInetAddress
{
public:
    /// An address not yet set.
    LmInetAddress() = default;

    /// The address of a text in dotted form, as `initFromAddress` takes it; not set where the text is none. The other
    /// two arguments are of no account.
    LmInetAddress(const char* host, const char* service, int flags);

    /// Takes dotted IPv4, without leading zeros, with white space at either end, and nothing else. Gives false, and
    /// changes nothing, for any other text and for a null pointer.
    bool initFromAddress(const char* text);

    /// The first IPv4 address of an interface that is up and not loopback; 127.0.0.1 where there is none. The
    /// argument is of no account.
    static LmInetAddress sGetLocalHost(int flags);

    /// In host byte order; 0 means not set.
    unsigned int getAddress() const { return m_Address; }

    /// The dotted form ("0.0.0.0" when not set), valid until the same thread asks again.
    const char* getHostAddress() const;

    ///@{
    /// Compares the addresses; two that are not set are equal.
    friend bool operator==(LmInetAddress left, LmInetAddress right) { return left.m_Address == right.m_Address; }
    friend bool operator!=(LmInetAddress left, LmInetAddress right) { return left.m_Address != right.m_Address; }
    ///@}

private:
    std::uint32_t m_Address = 0;
};
