#include "service/Frames.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

constexpr std::size_t lengthBytes = 4;
constexpr std::size_t headerBytes = lengthBytes + 1;

void appendLength(std::string& bytes, std::size_t length) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(char(length >> shift & 0xFF));
}

std::size_t lengthAt(std::string_view bytes) {
    std::size_t length = 0;
    for (const char byte : bytes.substr(0, lengthBytes))
        length = length << 8 | std::uint8_t(byte);
    return length;
}

constexpr auto knownTypes = std::to_array(
    {FrameType::greeting, FrameType::output, FrameType::errors, FrameType::wantsInput,
     FrameType::beat, FrameType::ended, FrameType::request, FrameType::input, FrameType::cancel});

constexpr std::string_view yes = "1";

} // namespace

std::string encodeFrame(FrameType type, std::string_view payload) {
    std::string bytes;
    bytes.reserve(headerBytes + payload.size());
    appendLength(bytes, payload.size());
    bytes.push_back(char(type));
    return bytes.append(payload);
}

Expected<std::optional<Frame>> FrameReader::next() {
    if (bytes_.size() < headerBytes)
        return std::nullopt;
    const std::size_t length = lengthAt(bytes_);
    const auto type = FrameType(bytes_[lengthBytes]);
    if (length > largestPayload || !std::ranges::count(knownTypes, type))
        return failure(ErrorKind::invalid, QStringLiteral("what was sent can't be understood"));
    if (bytes_.size() < headerBytes + length)
        return std::nullopt;
    Frame frame{.type = type, .payload = bytes_.substr(headerBytes, length)};
    bytes_.erase(0, headerBytes + length);
    return frame;
}

std::string packTexts(const std::vector<std::string>& texts) {
    std::string packed;
    for (const std::string& text : texts) {
        appendLength(packed, text.size());
        packed += text;
    }
    return packed;
}

std::optional<std::vector<std::string>> unpackTexts(std::string_view packed) {
    std::vector<std::string> texts;
    while (!packed.empty()) {
        if (packed.size() < lengthBytes)
            return std::nullopt;
        const std::size_t length = lengthAt(packed);
        packed.remove_prefix(lengthBytes);
        if (length > packed.size())
            return std::nullopt;
        texts.emplace_back(packed.substr(0, length));
        packed.remove_prefix(length);
    }
    return texts;
}

std::string packGreeting(const Greeting& greeting) {
    return packTexts({greeting.protocol, greeting.version, greeting.dataFolder});
}

std::optional<Greeting> unpackGreeting(std::string_view packed) {
    const auto texts = unpackTexts(packed);
    if (!texts || texts->size() < 3)
        return std::nullopt;
    return Greeting{.protocol = (*texts)[0], .version = (*texts)[1], .dataFolder = (*texts)[2]};
}

std::string packRequest(const Request& request) {
    std::vector<std::string> texts{request.workingFolder, std::string(request.colored ? yes : ""),
                                   std::string(request.showsProgress ? yes : "")};
    texts.insert(texts.end(), request.arguments.begin(), request.arguments.end());
    return packTexts(texts);
}

std::optional<Request> unpackRequest(std::string_view packed) {
    const auto texts = unpackTexts(packed);
    if (!texts || texts->size() < 3 || !(*texts)[0].starts_with('/'))
        return std::nullopt;
    return Request{.workingFolder = (*texts)[0],
                   .colored = (*texts)[1] == yes,
                   .showsProgress = (*texts)[2] == yes,
                   .arguments = {texts->begin() + 3, texts->end()}};
}

} // namespace quillon
