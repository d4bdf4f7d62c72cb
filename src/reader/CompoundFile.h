#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

#include <cstdint>
#include <optional>
#include <vector>

namespace quillon {

/// A file of streams, as old office programs write them: sectors chained like those of a disk.
/// Whatever the bytes claim, reading ends and takes no more memory than they do.
class CompoundFile {
public:
    /// `bytes` must outlive it. Absent when they don't hold such a file.
    [[nodiscard]] static std::optional<CompoundFile> open(QByteArrayView bytes);

    /// What a stream of the top level holds; shorter than it says when sectors are missing. Absent
    /// when there is none of that name.
    [[nodiscard]] std::optional<QByteArray> stream(QStringView name) const;

private:
    /// The sectors of one size: where they lie, and which follows which.
    struct Sectors {
        QByteArrayView bytes; ///< from the first sector on
        std::uint32_t size = 0;
        std::vector<std::uint32_t> next;

        [[nodiscard]] QByteArray chain(std::uint32_t first, std::uint64_t length) const;
    };
    struct Entry {
        std::uint32_t left = 0;
        std::uint32_t right = 0;
        std::uint32_t child = 0;
        std::uint32_t first = 0;
        std::uint64_t length = 0;
    };

    CompoundFile() = default;
    [[nodiscard]] bool read(QByteArrayView bytes);
    [[nodiscard]] std::vector<std::uint32_t> tableSectors(QByteArrayView header) const;
    void readSmallSectors(std::uint32_t firstOfTable);
    [[nodiscard]] std::optional<QByteArrayView> entryBytes(std::uint32_t index) const;
    [[nodiscard]] std::optional<Entry> entry(std::uint32_t index) const;

    Sectors sectors_;
    QByteArray directory_;
    QByteArray smallBytes_;
    Sectors small_; ///< without their bytes, which move with this
    std::uint64_t smallBelow_ = 0;
};

} // namespace quillon
