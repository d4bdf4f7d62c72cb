#include "engine/FileFacts.h"

#include "engine/KindClassifier.h"
#include "platform/FileNames.h"
#include "platform/FileTags.h"
#include "platform/Provenance.h"

namespace quillon {
namespace {

/// Most names are ASCII, where composing is nothing to do and lower-casing a sum; leaves the rest
/// to the caller.
bool readAscii(std::string_view name, QString& text, QString& lower) {
    const auto length = static_cast<qsizetype>(name.size());
    text.resize(length);
    lower.resize(length);
    QChar* const textUnits = text.data();
    QChar* const lowerUnits = lower.data();
    unsigned all = 0;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const unsigned c = static_cast<unsigned char>(name[i]);
        const bool isCapital = c - 'A' < 26;
        textUnits[i] = QChar(c);
        lowerUnits[i] = QChar(c + (isCapital ? 'a' - 'A' : 0));
        all |= c;
    }
    return all < 0x80;
}

} // namespace

void FileFacts::NameText::cut(bool hasExtension) {
    stemLength = hasExtension ? full.lastIndexOf(u'.') : full.size();
}

QStringView FileFacts::NameText::extension() const {
    return stemLength == full.size() ? QStringView() : QStringView(full).sliced(stemLength + 1);
}

FileFacts::FileFacts(const Platform& platform, KindClassifier& kinds, const std::string& folder,
                     const ListedFile& file)
    : platform_(platform), kinds_(kinds), folder_(folder), file_(&file) {}

void FileFacts::reset(const ListedFile& file) {
    file_ = &file;
    path_.clear();
    nameIsRead_ = false;
    kind_.reset();
    tags_.reset();
    whereFrom_.reset();
}

const std::string& FileFacts::path() const {
    if (path_.empty())
        path_ = joinPath(folder_, file_->path);
    return path_;
}

void FileFacts::readName() {
    nameIsRead_ = true;
    const std::string_view bytes = lastComponent(file_->path);
    if (!readAscii(bytes, name_.full, lowerName_.full)) {
        name_.full =
            composed(QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size())));
        lowerName_.full = folded(name_.full);
    }
    // Neither composing nor lower-casing reaches across a dot, so that the parts of the whole are
    // the wholes of the parts.
    const bool hasExtension = !splitName(bytes).extension.empty();
    name_.cut(hasExtension);
    lowerName_.cut(hasExtension);
}

TextSubject FileFacts::fullName() {
    if (!nameIsRead_)
        readName();
    return {name_.full, lowerName_.full};
}

TextSubject FileFacts::name() {
    if (!nameIsRead_)
        readName();
    return {name_.stem(), lowerName_.stem()};
}

TextSubject FileFacts::extension() {
    if (!nameIsRead_)
        readName();
    return {name_.extension(), lowerName_.extension()};
}

FileKind FileFacts::kind() {
    if (!kind_) {
        if (!nameIsRead_)
            readName();
        kind_ = kinds_.kindOf(name_.full, file_->status.type);
    }
    return *kind_;
}

const Expected<QStringList>& FileFacts::tags() {
    if (!tags_) {
        tags_ = platform_.tags.tags(path());
        if (*tags_)
            for (QString& tag : **tags_)
                tag = folded(tag);
    }
    return *tags_;
}

const std::vector<TextSubject>& FileFacts::whereFrom() {
    if (whereFrom_)
        return *whereFrom_;
    whereFromTexts_.clear();
    for (const QString& entry : platform_.provenance.whereFrom(path()))
        whereFromTexts_ << composed(entry) << folded(entry);
    std::vector<TextSubject>& subjects = whereFrom_.emplace();
    for (qsizetype i = 0; i < whereFromTexts_.size(); i += 2)
        subjects.push_back({whereFromTexts_.at(i), whereFromTexts_.at(i + 1)});
    return subjects;
}

std::optional<Timestamp> FileFacts::date(ConditionAttribute attribute) const {
    const FileStatus& status = file_->status;
    switch (attribute) {
    case ConditionAttribute::dateModified:
        return status.modified;
    case ConditionAttribute::dateAdded: // Linux knows no better than when the file was made
    case ConditionAttribute::dateCreated:
        return status.created;
    case ConditionAttribute::lastOpened:
        return status.accessed;
    default:
        return std::nullopt;
    }
}

} // namespace quillon
