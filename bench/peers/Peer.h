#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// One SDP library, used as its own users would. Each is linked into a program of its own.
class Peer
{
public:
    struct Content
    {
        std::size_t sections = 0;
        std::size_t attributes = 0;

        /// Lines that a tree says by other means than an attribute, such as `a=sendonly`: of the session and then of
        /// each section. Only those count that the body has.
        std::vector<std::vector<std::string>> implied = {{}};
    };

    /// Takes a text that a library has written, while that is there.
    using Sink = std::function<void(std::string_view text)>;

    virtual ~Peer() = default;

    /// What the tree of a body holds. @throws std::runtime_error when the library does not take the body
    virtual Content content(const std::string& body) = 0;

    /// Reads a body and releases its tree.
    virtual void read(const std::string& body) = 0;

    /// Reads a body, writes it into memory and releases its tree.
    virtual void readAndWrite(const std::string& body, const Sink& sink) = 0;
};

/// The library that this program is linked with.
std::unique_ptr<Peer> makePeer();
