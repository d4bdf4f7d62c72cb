#pragma once

#include "platform/UserFolders.h"

namespace quillon {

class Archives;
class Clock;
class CloudFiles;
class ContentTypes;
class FileSystem;
class FileTags;
class Processes;
class Provenance;
class Trash;

/// Every service of the operating system that the engine needs. Borrowed: whoever makes a Platform
/// keeps the services alive for as long as it is used.
struct Platform {
    FileSystem& fileSystem;
    Trash& trash;
    FileTags& tags;
    Provenance& provenance;
    CloudFiles& cloudFiles;
    ContentTypes& contentTypes;
    Processes& processes;
    Archives& archives;
    Clock& clock;
    UserFolders folders;
};

} // namespace quillon
