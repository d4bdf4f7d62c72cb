#pragma once

#include <QString>

#include <ostream>

/// So that a failed expectation shows text as text.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
