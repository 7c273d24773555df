#pragma once

#include "Json.h"
#include "LmSdpObject.h"
#include "Text.h"

namespace lmsdp
{

/// Is shown the lines of a message: the session level, the time descriptions, the media descriptions.
class TreeVisitor
{
public:
    virtual ~TreeVisitor() = default;

    /// A group of lines begins: "session", "time" or "media". `number` counts those of its kind from 1; it is 0 for
    /// the session level.
    virtual void group(const char* kind, std::size_t number) = 0;
    virtual void line(LmSdpField& field) = 0;
};

void visitTree(LmSdpMsg& message, TreeVisitor& visitor);

/// One line: its letter, its value and its members. A line that cannot be written has the words of the refusal in
/// place of the value.
Json lineOf(LmSdpField& field, Keys keys);

/// The whole tree.
Json treeOf(LmSdpMsg& message, Keys keys);

} // namespace lmsdp
