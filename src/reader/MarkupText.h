#pragma once

#include <QString>
#include <QXmlStreamReader>

namespace quillon {

enum class Markup { word, openDocument };

/// Takes the text out of a word processor's XML, which may come in pieces.
class MarkupText {
public:
    MarkupText(Markup markup, qsizetype enough);

    /// Any bytes at all; broken XML ends the text.
    void add(QByteArrayView piece);

    /// True when more pieces would not change the text.
    [[nodiscard]] bool isDone() const { return isDone_; }

    [[nodiscard]] QString take() { return std::move(text_); }

private:
    struct Elements;

    void startElement();
    void endElement();

    const Elements& elements_;
    qsizetype enough_;
    QXmlStreamReader xml_;
    int textDepth_ = 0;    ///< how many of the elements around hold text
    int skippedDepth_ = 0; ///< 0: not in one that is skipped
    bool isDone_ = false;
    QString text_;
};

} // namespace quillon
