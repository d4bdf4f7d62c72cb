#include "reader/MarkupText.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

/// Elements by their names without prefix, which are unambiguous where text stands.
struct MarkupText::Elements {
    QList<QStringView> holdText;
    QList<QStringView> paragraphs;
    QList<QStringView> breaks;
    QList<QStringView> tabs;
    QList<QStringView> spaces;
    QList<QStringView> skipped; ///< what no reader of the page sees, or sees twice
};

MarkupText::MarkupText(Markup markup, qsizetype enough)
    : elements_([markup]() -> const Elements& {
        static const Elements word{
            .holdText = {u"t"},
            .paragraphs = {u"p"},
            .breaks = {u"br", u"cr"},
            .tabs = {u"tab", u"tc"},
            .spaces = {},
            .skipped = {u"Fallback", u"moveFrom", u"pPr", u"rPr", u"sectPr"}};
        static const Elements openDocument{.holdText = {u"p", u"h"},
                                           .paragraphs = {u"p", u"h"},
                                           .breaks = {u"line-break"},
                                           .tabs = {u"tab"},
                                           .spaces = {u"s"},
                                           .skipped = {u"annotation", u"tracked-changes",
                                                       u"scripts", u"automatic-styles",
                                                       u"font-face-decls", u"forms"}};
        return markup == Markup::word ? word : openDocument;
    }())
    , enough_(enough) {}

void MarkupText::add(QByteArrayView piece) {
    xml_.addData(piece.toByteArray());
    while (!isDone_) {
        const QXmlStreamReader::TokenType token = xml_.readNext();
        if (token == QXmlStreamReader::StartElement) {
            startElement();
        } else if (token == QXmlStreamReader::EndElement) {
            endElement();
        } else if (token == QXmlStreamReader::Characters && textDepth_ > 0 && skippedDepth_ == 0) {
            text_ += xml_.text();
        } else if (token == QXmlStreamReader::Invalid || token == QXmlStreamReader::EndDocument) {
            isDone_ = xml_.error() != QXmlStreamReader::PrematureEndOfDocumentError;
            return;
        }
        isDone_ = isDone_ || text_.size() >= enough_;
    }
}

void MarkupText::startElement() {
    const QStringView name = xml_.name();
    if (skippedDepth_ > 0 || elements_.skipped.contains(name)) {
        ++skippedDepth_;
        return;
    }
    textDepth_ += elements_.holdText.contains(name) ? 1 : 0;
    if (elements_.breaks.contains(name)) {
        text_ += u'\n';
    } else if (elements_.tabs.contains(name)) {
        text_ += u'\t';
    } else if (elements_.spaces.contains(name)) {
        text_ += u' ';
    }
}

void MarkupText::endElement() {
    const QStringView name = xml_.name();
    if (skippedDepth_ > 0) {
        --skippedDepth_;
        return;
    }
    textDepth_ -= elements_.holdText.contains(name) ? 1 : 0;
    if (elements_.paragraphs.contains(name)) {
        text_ += u'\n';
    }
}

} // namespace quillon
