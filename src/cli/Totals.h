#pragma once

#include <QString>

#include <cstddef>

namespace quillon {

/// The sentence that ends a command's output: "Tidied 31 files, 1 failed, 2 still settling."
class Totals {
public:
    explicit Totals(QString start) : text_(std::move(start)) {}

    /// Adds a clause unless the number is 0.
    void add(std::size_t number, const QString& what);
    /// Files that a run did not look at.
    void addLeftAlone(std::size_t deferred, std::size_t skippedNames);

    [[nodiscard]] QString sentence() const { return text_ + u'.'; }

private:
    QString text_;
};

} // namespace quillon
