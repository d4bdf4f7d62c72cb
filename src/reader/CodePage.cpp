#include "reader/CodePage.h"

#include <unicode/ucnv.h>

namespace quillon {

namespace {

std::string converterName(int number) {
    switch (number) {
    case 10000:
        return "macintosh";
    case 65001:
        return "UTF-8";
    default:
        return (number >= 1250 && number <= 1258 ? "windows-" : "cp") + std::to_string(number);
    }
}

UConverter* open(int number) {
    UErrorCode error = U_ZERO_ERROR;
    UConverter* const converter = ::ucnv_open(converterName(number).c_str(), &error);
    return U_SUCCESS(error) ? converter : nullptr;
}

} // namespace

void CodePage::Close::operator()(UConverter* converter) const {
    ::ucnv_close(converter);
}

CodePage::CodePage(int number) : number_(number), converter_(open(number)) {
    if (!converter_) {
        converter_.reset(open(1252));
    }
}

QString CodePage::decode(QByteArrayView bytes) const {
    if (!converter_) {
        return QString::fromLatin1(bytes);
    }
    QString text(bytes.size() * 2, Qt::Uninitialized); // no byte becomes more than a pair
    UErrorCode error = U_ZERO_ERROR;
    const std::int32_t length =
        ::ucnv_toUChars(converter_.get(), reinterpret_cast<char16_t*>(text.data()),
                        static_cast<std::int32_t>(text.size()), bytes.data(),
                        static_cast<std::int32_t>(bytes.size()), &error);
    text.resize(U_SUCCESS(error) ? length : 0);
    return text;
}

} // namespace quillon
