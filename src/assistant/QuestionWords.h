#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

/// The text without letter case, accents and other marks, so that "Réçu" equals "recu".
[[nodiscard]] QString plainText(const QString& text);

/// The words of a question in plain text, in order: what stands between white space or quotation
/// marks, without punctuation at its ends and without a possessive "'s". Dots, dashes and
/// underlines inside stay, so that "Setup.dmg" is one word. At most 200.
[[nodiscard]] QStringList questionWords(const QString& question);

/// Whether a word, in plain text, says nothing about what is looked for.
[[nodiscard]] bool isStopWord(const QString& word);

/// The word without the ending of a plural: "invoices" and "invoice" are the same.
[[nodiscard]] QString singular(const QString& word);

} // namespace quillon
