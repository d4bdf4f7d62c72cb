#pragma once

#include "platform/Platform.h"
#include "platform/TextReader.h"

#include <QDate>
#include <QLocale>
#include <QString>

#include <optional>
#include <string>

namespace quillon {

/// Tells a language model about a file in a few lines. Keeps nothing: every call looks at the file
/// again. Any thread; reading contents blocks, ten seconds at most.
class FileText {
public:
    /// Borrows both. Dates in texts are read as people of that locale write them.
    FileText(const Platform& platform, TextReader& reader, const QLocale& locale = QLocale());

    /// Lines with what is known of the file: its name and kind always; then its size, its date, and
    /// where it comes from. Only with `readContents` is it opened, for the beginning of its text
    /// and the date in that. No file can add lines of its own.
    [[nodiscard]] QString describe(const std::string& path, bool readContents) const;

    /// At most 700 characters on one line. Nothing for a file of a kind that isn't read, for one
    /// that is only online, and for one that says nothing or can't be read.
    [[nodiscard]] std::optional<QString> text(const std::string& path) const;

    [[nodiscard]] std::optional<QDate> firstDate(const QString& text) const;

    /// The host that the file was downloaded from.
    [[nodiscard]] std::optional<QString> sourceHost(const std::string& path) const;

    /// The words seen in an image, on one line.
    [[nodiscard]] std::optional<QString> recognizeText(const std::string& path) const;

private:
    [[nodiscard]] std::optional<QString> read(const std::string& path, TextKind kind) const;
    [[nodiscard]] std::optional<TextKind> textKind(const QString& fileName) const;

    const Platform& platform_;
    TextReader& reader_;
    QLocale locale_;
};

} // namespace quillon
