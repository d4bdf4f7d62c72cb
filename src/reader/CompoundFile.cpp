#include "reader/CompoundFile.h"

#include "reader/LittleEndian.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::uint32_t lastSector = 0xFFFFFFFA; ///< greater numbers have other meanings
constexpr std::uint32_t smallSectorSize = 64;
constexpr std::uint64_t entrySize = 128;
constexpr std::uint8_t streamType = 2;

std::vector<std::uint32_t> numbersIn(QByteArrayView bytes) {
    std::vector<std::uint32_t> numbers;
    for (std::uint64_t at = 0; const auto number = numberAt<std::uint32_t>(bytes, at); at += 4) {
        numbers.push_back(*number);
    }
    return numbers;
}

QString nameIn(QByteArrayView entry) {
    QString name;
    const auto length = std::min<std::uint64_t>(64, numberAt<std::uint16_t>(entry, 64).value_or(0));
    for (std::uint64_t at = 0; at + 2 < length; at += 2) { // the last one is zero
        name += QChar(numberAt<char16_t>(entry, at).value_or(0));
    }
    return name;
}

} // namespace

QByteArray CompoundFile::Sectors::chain(std::uint32_t first, std::uint64_t length) const {
    QByteArray whole;
    std::uint32_t sector = first;
    // A chain that comes back to itself ends when it has as many bytes as there are.
    length = std::min(length, static_cast<std::uint64_t>(bytes.size()));
    for (std::size_t count = 0; count < next.size() && sector < next.size(); ++count) {
        const auto have = static_cast<std::uint64_t>(whole.size());
        if (have >= length) {
            break;
        }
        const std::uint64_t offset = static_cast<std::uint64_t>(sector) * size;
        const QByteArrayView part =
            partOf(bytes, offset, std::min<std::uint64_t>(size, length - have));
        if (part.isEmpty()) {
            break;
        }
        whole.append(part);
        sector = next[sector];
    }
    return whole;
}

std::optional<CompoundFile> CompoundFile::open(QByteArrayView bytes) {
    CompoundFile file;
    return file.read(bytes) ? std::optional(std::move(file)) : std::nullopt;
}

bool CompoundFile::read(QByteArrayView bytes) {
    const auto shift = numberAt<std::uint16_t>(bytes, 30);
    const QByteArrayView header = partOf(bytes, 0, 512);
    if (header.size() < 512 || (shift != 9 && shift != 12)) {
        return false;
    }
    sectors_.size = 1U << *shift;
    sectors_.bytes = partOf(bytes, sectors_.size, static_cast<std::uint64_t>(bytes.size()));
    for (const std::uint32_t sector : tableSectors(header)) {
        const auto numbers = numbersIn(partOf(
            sectors_.bytes, static_cast<std::uint64_t>(sector) * sectors_.size, sectors_.size));
        sectors_.next.insert(sectors_.next.end(), numbers.begin(), numbers.end());
    }
    const auto everything = static_cast<std::uint64_t>(bytes.size());
    directory_ = sectors_.chain(*numberAt<std::uint32_t>(header, 48), everything);
    smallBelow_ = *numberAt<std::uint32_t>(header, 56);
    readSmallSectors(*numberAt<std::uint32_t>(header, 60));
    return !directory_.isEmpty();
}

/// Where the table of chains itself lies: the header lists its first 109 sectors, and sectors that
/// are chained by their last number list the rest.
std::vector<std::uint32_t> CompoundFile::tableSectors(QByteArrayView header) const {
    const std::size_t most = static_cast<std::size_t>(sectors_.bytes.size()) / sectors_.size + 1;
    std::vector<std::uint32_t> listed = numbersIn(header.sliced(76));
    std::uint32_t list = *numberAt<std::uint32_t>(header, 68);
    while (list < lastSector && listed.size() < most) {
        auto numbers = numbersIn(partOf(
            sectors_.bytes, static_cast<std::uint64_t>(list) * sectors_.size, sectors_.size));
        if (numbers.size() < 2) { // nothing but the number of a next one, perhaps its own
            break;
        }
        list = numbers.back();
        numbers.pop_back();
        listed.insert(listed.end(), numbers.begin(), numbers.end());
    }
    std::erase_if(listed, [&](std::uint32_t sector) { return sector >= most; });
    // Each table sector once: a list that names one a thousand times must not grow by it.
    listed.resize(std::min(listed.size(), most));
    return listed;
}

/// Short streams share one stream that belongs to the first entry.
void CompoundFile::readSmallSectors(std::uint32_t firstOfTable) {
    const std::optional<Entry> root = entry(0);
    if (!root) {
        return;
    }
    const auto everything = static_cast<std::uint64_t>(sectors_.bytes.size());
    smallBytes_ = sectors_.chain(root->first, root->length);
    small_.size = smallSectorSize;
    small_.next = numbersIn(sectors_.chain(firstOfTable, everything));
}

std::optional<QByteArrayView> CompoundFile::entryBytes(std::uint32_t index) const {
    const QByteArrayView found = partOf(directory_, index * entrySize, entrySize);
    return found.size() == entrySize ? std::optional(found) : std::nullopt;
}

std::optional<CompoundFile::Entry> CompoundFile::entry(std::uint32_t index) const {
    const std::optional<QByteArrayView> bytes = entryBytes(index);
    if (!bytes) {
        return std::nullopt;
    }
    return Entry{.left = *numberAt<std::uint32_t>(*bytes, 68),
                 .right = *numberAt<std::uint32_t>(*bytes, 72),
                 .child = *numberAt<std::uint32_t>(*bytes, 76),
                 .first = *numberAt<std::uint32_t>(*bytes, 116),
                 .length = *numberAt<std::uint32_t>(*bytes, 120)};
}

std::optional<QByteArray> CompoundFile::stream(QStringView name) const {
    const std::optional<Entry> root = entry(0);
    // The entries of a folder are a tree; a knot in it is walked once.
    std::vector<bool> isSeen(static_cast<std::size_t>(directory_.size()) / entrySize);
    std::vector<std::uint32_t> waiting{root ? root->child : lastSector};
    while (!waiting.empty()) {
        const std::uint32_t index = waiting.back();
        waiting.pop_back();
        if (index >= isSeen.size() || isSeen[index]) {
            continue;
        }
        isSeen[index] = true;
        const Entry found = *entry(index);
        const QByteArrayView bytes = *entryBytes(index);
        if (bytes[66] == streamType && nameIn(bytes) == name) {
            if (found.length >= smallBelow_) {
                return sectors_.chain(found.first, found.length);
            }
            Sectors small = small_;
            small.bytes = smallBytes_;
            return small.chain(found.first, found.length);
        }
        waiting.push_back(found.left);
        waiting.push_back(found.right);
    }
    return std::nullopt;
}

} // namespace quillon
