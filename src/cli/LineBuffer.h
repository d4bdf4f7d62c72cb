#pragma once

#include <QString>

#include <ostream>
#include <string>

namespace quillon {

/// Collects output and writes it in large pieces, so that a hundred thousand lines cost a few
/// calls.
class LineBuffer {
public:
    enum class Style { plain, strong, faint, good, bad };

    LineBuffer(std::ostream& out, bool colored) : out_(out), colored_(colored) {}
    ~LineBuffer() { write(); }
    LineBuffer(const LineBuffer&) = delete;
    LineBuffer& operator=(const LineBuffer&) = delete;

    /// Adds text from outside, made harmless, and fills up to `width` columns.
    LineBuffer& add(const QString& text, Style style = Style::plain, qsizetype width = 0);
    void endLine();

private:
    void write();

    std::ostream& out_;
    bool colored_;
    std::string text_;
};

/// The width of a column that holds texts this wide; one that is much wider than the rest sticks
/// out instead of pushing the others away.
class ColumnWidth {
public:
    void fit(const QString& text);
    [[nodiscard]] qsizetype columns() const { return columns_; }

private:
    qsizetype columns_ = 0;
};

} // namespace quillon
