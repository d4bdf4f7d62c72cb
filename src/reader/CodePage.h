#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>
#include <string>

struct UConverter;

namespace quillon {

/// Turns the bytes of an old code page into text. Bytes that mean nothing become replacement
/// characters.
class CodePage {
public:
    /// By its number as Windows counts them. An unknown one is taken for 1252.
    explicit CodePage(int number = 1252);

    [[nodiscard]] QString decode(QByteArrayView bytes) const;
    [[nodiscard]] int number() const { return number_; }

private:
    struct Close {
        void operator()(UConverter* converter) const;
    };

    int number_;
    std::unique_ptr<UConverter, Close> converter_;
};

} // namespace quillon
