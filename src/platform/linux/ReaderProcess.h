#pragma once

#include "platform/TextReader.h"

#include <chrono>

namespace quillon {

/// Has every file but plain text read by a child process, `quillon-reader`, which gets the open
/// file and nothing else: no path, no environment of ours. Whatever it does, it is waited for until
/// the limit, and what it prints is believed only if it ended well and printed UTF-8. Plain text
/// needs no parser and is read here.
class ReaderProcess : public TextReader {
public:
    explicit ReaderProcess(std::string program,
                           std::chrono::milliseconds limit = std::chrono::seconds(10))
        : program_(std::move(program)), limit_(limit) {}

    [[nodiscard]] Expected<QString> read(const std::string& path, TextKind kind) override;

private:
    std::string program_;
    std::chrono::milliseconds limit_;
};

/// Where the reader is installed: beside the program that runs, else in ../libexec/quillon from
/// there.
[[nodiscard]] std::string readerProgram();

} // namespace quillon
