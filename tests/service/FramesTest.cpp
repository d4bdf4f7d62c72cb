#include "service/Frames.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace quillon::testing {
namespace {

using namespace std::string_literals;

TEST(FrameReader, refusesWhatCantBeAFrame) {
    const struct {
        const char* what;
        std::string bytes;
        bool refused;
    } cases[] = {
        {"nothing yet", "", false},
        {"half a header", "\0\0\0"s, false},
        {"half a payload", "\0\0\0\4\2ab"s, false},
        {"an unknown type", "\0\0\0\0\x63"s, true},
        {"longer than any frame", "\x7F\0\0\0\2"s, true},
        {"text", "GET / HTTP/1.1\r\n\r\n", true},
    };
    for (const auto& [what, bytes, refused] : cases) {
        FrameReader reader;
        reader.add(bytes);
        const auto frame = reader.next();
        EXPECT_EQ(!frame, refused) << what;
        EXPECT_FALSE(frame && *frame) << what;
    }
}

RC_GTEST_PROP(FrameReader, cutsFramesHoweverTheyArrive, ()) {
    const auto payloads = *rc::gen::arbitrary<std::vector<std::string>>();
    std::string bytes;
    for (const std::string& payload : payloads)
        bytes += encodeFrame(FrameType::output, payload);
    FrameReader reader;
    std::vector<std::string> found;
    while (!bytes.empty()) {
        const auto count = *rc::gen::inRange<std::size_t>(1, bytes.size() + 1);
        reader.add(bytes.substr(0, count));
        bytes.erase(0, count);
        for (auto frame = reader.next(); frame && *frame; frame = reader.next())
            found.push_back((*frame)->payload);
    }
    RC_ASSERT(found == payloads);
}

RC_GTEST_PROP(Request, comesBackAsItWas, ()) {
    const Request request{.workingFolder = "/" + *rc::gen::arbitrary<std::string>(),
                          .colored = *rc::gen::arbitrary<bool>(),
                          .showsProgress = *rc::gen::arbitrary<bool>(),
                          .arguments = *rc::gen::arbitrary<std::vector<std::string>>()};
    const std::string packed = packRequest(request);
    RC_ASSERT(unpackRequest(packed) == request);
    // Anything cut off is refused or another request, and never read past its end.
    std::ignore = unpackRequest(packed.substr(0, *rc::gen::inRange<std::size_t>(0, packed.size())));
}

} // namespace
} // namespace quillon::testing
