#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon::test {

/// One source file: its path below src/ and its whole text.
struct SourceFile {
    std::string path;
    std::string text;
};

/// Every way in which the files break the layering, as "PATH:LINE: what is wrong". An include in
/// quotes must name one of the files.
[[nodiscard]] std::vector<std::string> layeringFaults(const std::vector<SourceFile>& files);

} // namespace quillon::test
