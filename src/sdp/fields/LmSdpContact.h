#pragma once

#include "LmLibs/LmUtil/LmOutputStream.h"
#include "LmLibs/LmUtil/LmString.h"
#include "sdp/LmSdpExport.h"

#include <cstddef>
#include <string_view>

class LmSdpField;

/// What `e=` and `p=` lines have in common: an address and an optional comment, in one of three shapes.
struct LmSdpContact
{
    /// The values are those that the lines have always counted with.
    enum EShape : int
    {
        eAddressOnly = 0,    ///< `address`
        eCommentThenAddress, ///< `comment <address>`
        eAddressThenComment  ///< `address (comment)`
    };

    /// The comment of a line whose "(" or "<" stands at `open`.
    static LmString sCommentInParentheses(std::string_view line, std::size_t open);
    static LmString sCommentInFront(std::string_view line, std::size_t open);

    /// Writes the whole line of `field` in its shape.
    /// @throws LmException `unknownShape` when the shape is none of the three
    void writeLine(LmOutputStream& out, const LmSdpField& field, const char* unknownShape) const;

    LmString m_Address;
    LmString m_Comment;
    int m_Format = eAddressOnly;
};
