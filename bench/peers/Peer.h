#pragma once

#include <cstddef>
#include <memory>
#include <string>

/// One SDP library, used as its own users would. Each is linked into a program of its own.
class Peer
{
public:
    struct Content
    {
        std::size_t sections = 0;
        std::size_t attributes = 0;
    };

    virtual ~Peer() = default;

    /// What the tree of a body holds. @throws std::runtime_error when the library does not take the body
    virtual Content content(const std::string& body) = 0;

    /// Reads a body and releases its tree.
    virtual void read(const std::string& body) = 0;

    /// Reads a body, writes it into memory and releases its tree. Gives the length of what was written.
    virtual std::size_t readAndWrite(const std::string& body) = 0;
};

/// The library that this program is linked with.
std::unique_ptr<Peer> makePeer();
