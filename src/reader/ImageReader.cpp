#include "reader/ImageReader.h"

#include "reader/OcrLanguages.h"

#include <QDir>
#include <QImageReader>

#include <cmath>
#include <memory>
#include <tesseract/ocrclass.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestSide = 20'000;
constexpr int decodedMegabytes = 200;      ///< for pixels as they are decoded
constexpr double recognizedPixels = 6.0e6; ///< more would take too long, and letters stay legible
constexpr int mostLines = 40;              ///< of a page of small print, a second or more
constexpr int mostMilliseconds = 7000;
constexpr float leastConfidence = 40; ///< in per cent; below are patterns in photographs

QStringList installedLanguages(const QString& folder) {
    QStringList names;
    for (const QFileInfo& file : QDir(folder).entryInfoList({u"*.traineddata"_s})) {
        names.append(file.completeBaseName());
    }
    return names;
}

QSize fitting(QSize size) {
    const double pixels = static_cast<double>(size.width()) * size.height();
    return pixels <= recognizedPixels ? size : size * std::sqrt(recognizedPixels / pixels);
}

QImage decoded(QFile& file) {
    QImageReader decoder(&file);
    decoder.setDecideFormatFromContent(true);
    decoder.setAutoTransform(true);
    const QSize size = decoder.size();
    // Drawings are programs rather than pictures, and have their words as text.
    if (!size.isValid() || size.isEmpty() || size.width() > longestSide ||
        size.height() > longestSide || decoder.format().startsWith("svg") ||
        decoder.format() == "pdf") {
        return {};
    }
    decoder.setScaledSize(fitting(size));
    return decoder.read().convertToFormat(QImage::Format_Grayscale8);
}

/// The lines that were recognized well enough, in the order in which they are read.
QString confidentLines(tesseract::TessBaseAPI& recognizer) {
    QString text;
    const std::unique_ptr<tesseract::ResultIterator> lines(recognizer.GetIterator());
    if (!lines) {
        return text;
    }
    do {
        if (lines->Confidence(tesseract::RIL_TEXTLINE) < leastConfidence) {
            continue;
        }
        const std::unique_ptr<char[]> line(lines->GetUTF8Text(tesseract::RIL_TEXTLINE));
        text += QString::fromUtf8(line.get());
    } while (text.size() < enoughText && lines->Next(tesseract::RIL_TEXTLINE));
    return text;
}

} // namespace

ImageReader::ImageReader() {
    QImageReader::setAllocationLimit(decodedMegabytes);
    static_cast<void>(QImageReader::supportedImageFormats()); // loads the plugins

    const QString folder = ocrDataFolder();
    const QStringList languages =
        ocrLanguages(installedLanguages(folder), qEnvironmentVariable("LANG"));
    if (languages.isEmpty()) {
        return;
    }
    const std::vector<std::string> dictionaries{"load_system_dawg", "load_freq_dawg"};
    const std::vector<std::string> off(dictionaries.size(), "0");
    isReady_ =
        recognizer_.Init(folder.toUtf8().constData(), languages.join(u'+').toUtf8().constData(),
                         tesseract::OEM_LSTM_ONLY, nullptr, 0, &dictionaries, &off, false) == 0;
}

std::optional<QString> ImageReader::read(QFile& file) {
    const QImage image = isReady_ ? decoded(file) : QImage();
    if (image.isNull()) {
        return std::nullopt;
    }
    recognizer_.SetPageSegMode(tesseract::PSM_AUTO);
    recognizer_.SetImage(image.constBits(), image.width(), image.height(), 1,
                         static_cast<int>(image.bytesPerLine()));
    // Ends early, with what it has seen so far: after enough for anybody, or before we are killed.
    int lines = 0;
    tesseract::ETEXT_DESC until;
    until.cancel_this = &lines;
    until.cancel = [](void* count, int) { return ++*static_cast<int*>(count) > mostLines; };
    until.set_deadline_msecs(mostMilliseconds);
    static_cast<void>(recognizer_.Recognize(&until));
    return confidentLines(recognizer_);
}

} // namespace quillon
