#pragma once

#include <string>

namespace quillon::testing {

/// Fills a downloads folder with 120 files of every kind: 4 installers, 23 files that nobody has
/// opened for months, 11 screenshots, 3 archives, and 79 that are in use.
void makeDownloads(const std::string& folder);

/// An empty or sparse file that was changed and opened so many days ago.
void makeFile(const std::string& path, long long bytes, double daysAgo);

} // namespace quillon::testing
