#pragma once

#include "service/CommandConnection.h"

#include <array>
#include <istream>
#include <ostream>
#include <streambuf>

namespace quillon {

/// A stream whose bytes go to the other end of a connection. Bad once that is gone.
class RemoteOutput final : public std::ostream {
public:
    RemoteOutput(CommandConnection& connection, FrameType type)
        : std::ostream(nullptr), buffer_(connection, type) {
        rdbuf(&buffer_);
    }

private:
    class Buffer final : public std::streambuf {
    public:
        Buffer(CommandConnection& connection, FrameType type);

    private:
        int_type overflow(int_type byte) override;
        int sync() override;

        CommandConnection& connection_;
        FrameType type_;
        std::array<char, 1 << 14> space_;
    };

    Buffer buffer_;
};

/// A stream whose bytes come from the other end, asked for when they are needed.
class RemoteInput final : public std::istream {
public:
    explicit RemoteInput(CommandConnection& connection)
        : std::istream(nullptr), buffer_(connection) {
        rdbuf(&buffer_);
    }

private:
    class Buffer final : public std::streambuf {
    public:
        explicit Buffer(CommandConnection& connection) : connection_(connection) {}

    private:
        int_type underflow() override;

        CommandConnection& connection_;
        std::string bytes_;
    };

    Buffer buffer_;
};

} // namespace quillon
