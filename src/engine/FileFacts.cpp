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

struct Cut {
    QStringView stem;
    QStringView extension;
};

Cut cutAt(qsizetype dot, QStringView name) {
    if (dot == name.size())
        return {name, {}};
    return {name.first(dot), name.sliced(dot + 1)};
}

} // namespace

FileFacts::FileFacts(const Platform& platform, KindClassifier& kinds, const std::string& folder,
                     const ListedFile& file)
    : platform_(platform), kinds_(kinds), folder_(folder), file_(&file) {}

void FileFacts::reset(const ListedFile& file) {
    file_ = &file;
    path_.clear();
    names_.areRead = false;
    kind_.reset();
    tags_.reset();
    whereFrom_.reset();
}

const std::string& FileFacts::path() const {
    if (path_.empty())
        path_ = joinPath(folder_, file_->path);
    return path_;
}

void FileFacts::readNames() {
    const std::string_view bytes = lastComponent(file_->path);
    const NameParts parts = splitName(bytes);
    auto dot = static_cast<qsizetype>(parts.stem.size()); // the end when there is no extension
    auto lowerDot = dot;
    if (!readAscii(bytes, names_.text, names_.lower)) {
        names_.text = composed(QString::fromUtf8(bytes));
        names_.lower = folded(names_.text);
        // Neither composing nor lower-casing reaches across a dot: the parts of the composed name
        // are the composed parts of the name.
        const bool isCut = !parts.extension.empty();
        dot = isCut ? names_.text.lastIndexOf(u'.') : names_.text.size();
        lowerDot = isCut ? names_.lower.lastIndexOf(u'.') : names_.lower.size();
    }
    const Cut text = cutAt(dot, names_.text);
    const Cut lower = cutAt(lowerDot, names_.lower);
    names_.full = {names_.text, names_.lower};
    names_.stem = {text.stem, lower.stem};
    names_.extension = {text.extension, lower.extension};
    names_.areRead = true;
}

FileKind FileFacts::kind() {
    if (!kind_)
        kind_ = kinds_.kindOf(names().text, file_->status.type);
    return *kind_;
}

const Expected<QStringList>& FileFacts::tags() {
    if (!tags_) {
        tags_ = platform_.tags.tags(path());
        if (*tags_)
            for (QString& tag : **tags_)
                tag = folded(composed(tag));
    }
    return *tags_;
}

const std::vector<TextSubject>& FileFacts::whereFrom() {
    if (whereFrom_)
        return *whereFrom_;
    whereFromTexts_.clear();
    for (const QString& entry : platform_.provenance.whereFrom(path())) {
        const QString text = composed(entry);
        whereFromTexts_ << text << folded(text);
    }
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
