#include "cli/LineBuffer.h"

#include "service/ShownText.h"

namespace quillon {
namespace {

constexpr std::size_t fullBuffer = 1 << 16;
constexpr qsizetype widestColumn = 44;
constexpr std::array<const char*, 5> codes{"", "\x1b[1m", "\x1b[2m", "\x1b[32m", "\x1b[31m"};

} // namespace

LineBuffer& LineBuffer::add(const QString& text, Style style, qsizetype width) {
    const QString shown = shownText(text);
    const bool styled = colored_ && style != Style::plain;
    if (styled)
        text_ += codes[std::size_t(style)];
    const QByteArray bytes = shown.toUtf8();
    text_.append(bytes.constData(), std::size_t(bytes.size()));
    if (styled)
        text_ += "\x1b[0m";
    if (width > 0)
        text_.append(std::size_t(std::max<qsizetype>(0, width - shownWidth(shown))), ' ');
    return *this;
}

void LineBuffer::endLine() {
    text_ += '\n';
    if (text_.size() >= fullBuffer)
        write();
}

void LineBuffer::write() {
    out_.write(text_.data(), std::streamsize(text_.size()));
    text_.clear();
}

void ColumnWidth::fit(const QString& text) {
    columns_ = std::max(columns_, std::min(shownWidth(shownText(text)), widestColumn));
}

} // namespace quillon
