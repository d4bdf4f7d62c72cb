#include "reader/PdfReader.h"

#include <QPdfDocument>
#include <QPdfSelection>

namespace quillon {

std::optional<QString> PdfReader::read(QFile& file) {
    QPdfDocument document;
    document.load(&file);
    if (document.status() != QPdfDocument::Status::Ready || document.pageCount() < 1) {
        return std::nullopt;
    }
    QString text = document.getAllText(0).text();
    if (document.pageCount() > 1 && text.size() < enoughText) {
        text += u' ' + document.getAllText(1).text();
    }
    return text;
}

} // namespace quillon
