#pragma once

#include "platform/Error.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// What the two ends of the control socket say to each other. Numbers never change their meaning.
enum class FrameType : std::uint8_t {
    greeting = 1,   ///< instance: texts, see Greeting
    output = 2,     ///< instance: bytes for standard output
    errors = 3,     ///< instance: bytes for standard error
    wantsInput = 4, ///< instance: send an `input`; with a question: one line, typed in secret
    beat = 5,       ///< instance: still at work
    ended = 6,      ///< instance: one byte, the exit code; the last frame

    request = 16, ///< command: texts, see Request
    input = 17,   ///< command: bytes of standard input, none at its end
    cancel = 18,  ///< command: stop early
};

struct Frame {
    FrameType type;
    std::string payload;

    bool operator==(const Frame&) const = default;
};

/// The most that a frame may carry: more than the system allows a command line to be.
inline constexpr std::size_t largestPayload = 4 << 20;

/// The length of the payload in four bytes, the largest first, then the type, then the payload.
[[nodiscard]] std::string encodeFrame(FrameType type, std::string_view payload = {});

/// Cuts a stream of bytes into frames.
class FrameReader {
public:
    void add(std::string_view bytes) { bytes_.append(bytes); }

    /// The next whole frame, if there is one. Fails with `invalid` for what can't be one; there is
    /// no going on after that.
    [[nodiscard]] Expected<std::optional<Frame>> next();

private:
    std::string bytes_;
};

/// Texts one after the other, each with its length.
[[nodiscard]] std::string packTexts(const std::vector<std::string>& texts);
/// Nothing when they can't be told apart.
[[nodiscard]] std::optional<std::vector<std::string>> unpackTexts(std::string_view packed);

/// With what an instance greets whoever calls.
struct Greeting {
    std::string protocol = "1"; ///< another number: we would not understand each other
    std::string version = QUILLON_VERSION;
    std::string dataFolder;

    bool operator==(const Greeting&) const = default;
};

[[nodiscard]] std::string packGreeting(const Greeting& greeting);
[[nodiscard]] std::optional<Greeting> unpackGreeting(std::string_view packed);

/// A command that the instance is to carry out.
struct Request {
    std::string workingFolder; ///< absolute
    bool colored = false;
    bool showsProgress = false;
    std::vector<std::string> arguments;

    bool operator==(const Request&) const = default;
};

[[nodiscard]] std::string packRequest(const Request& request);
[[nodiscard]] std::optional<Request> unpackRequest(std::string_view packed);

} // namespace quillon
