#pragma once

#include <QString>

#include <optional>

namespace quillon {

/// A file's new base name: "2026-10-14 Amazon invoice £42". Parts that say nothing are left out, a
/// date that isn't yyyy-MM-dd among them. One legal path component whatever the parts hold; empty
/// when none of them says anything.
[[nodiscard]] QString assemble(const QString& date, const QString& from, const QString& what,
                               const QString& amount);

/// One part of a name, at most 90 characters on one line, without white space or dots at its ends
/// and without anything that leads to another folder. Nothing when nothing remains.
[[nodiscard]] std::optional<QString> cleanName(const QString& part);

} // namespace quillon
