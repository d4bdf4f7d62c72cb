// Measures what it takes to describe files with what is in them.
//   measure-text READER FIXTURES      FIXTURES holds agreement.docx and the like

#include "ChildRun.h"
#include "assistant/FileText.h"
#include "platform/linux/ReaderProcess.h"
#include "support/LinuxMachine.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cstdio>
#include <map>

namespace quillon::bench {
namespace {

using namespace Qt::Literals::StringLiterals;

namespace fs = std::filesystem;

constexpr auto letter = "On 12 March 2026 we sold forty chairs and nine tables to the school. "_L1;

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values.empty() ? 0 : values[values.size() / 2];
}

void makePdf(const std::string& path) {
    QPdfWriter writer(QString::fromStdString(path));
    QPainter painter(&writer);
    for (int page = 0; page < 2; ++page) {
        for (int line = 0; line < 40; ++line)
            painter.drawText(300, 300 + 300 * line, QString(letter));
        if (page == 0)
            writer.newPage();
    }
}

void makeImage(const std::string& path) {
    QImage image(1200, 1600, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(QFont(u"sans"_s, 18));
    for (int line = 0; line < 20; ++line)
        painter.drawText(40, 80 + 70 * line, QString(letter));
    painter.end();
    image.save(QString::fromStdString(path));
}

/// A thousand files by extension.
std::map<std::string, std::vector<std::string>> makeFiles(const testing::LinuxMachine& machine,
                                                          const fs::path& fixtures) {
    const std::map<std::string, int> counts{{"pdf", 250}, {"docx", 150}, {"odt", 100}, {"rtf", 100},
                                            {"doc", 80},  {"txt", 300},  {"png", 20}};
    std::map<std::string, std::vector<std::string>> files;
    for (const auto& [extension, count] : counts)
        for (int i = 0; i < count; ++i) {
            const std::string path = machine.at("file " + std::to_string(i) + "." + extension);
            if (i > 0)
                fs::copy_file(files[extension].front(), path);
            else if (extension == "pdf")
                makePdf(path);
            else if (extension == "png")
                makeImage(path);
            else if (extension == "txt")
                machine.write(path, QByteArray(letter.data(), letter.size()).repeated(100).data());
            else
                fs::copy_file(fixtures / ("agreement." + extension), path);
            files[extension].push_back(path);
        }
    return files;
}

void measure(const std::string& reader, const fs::path& fixtures) {
    const testing::LinuxMachine machine;
    ReaderProcess process(reader);
    const FileText text(machine.platform, process);
    const auto files = makeFiles(machine, fixtures);
    std::printf("| files | each, with its text | each by pdftotext | peak memory of a reader |\n"
                "|---|---|---|---|\n");
    for (const auto& [extension, paths] : files) {
        std::vector<double> ours;
        std::vector<double> theirs;
        for (const std::string& path : paths) {
            const auto start = std::chrono::steady_clock::now();
            const QString said = text.describe(path, true);
            ours.push_back(
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
                    .count());
            if (!said.contains("text: "_L1))
                std::fprintf(stderr, "%s gave no text\n", path.c_str());
            if (extension == "pdf")
                theirs.push_back(
                    runChild({"/usr/bin/pdftotext", "-l", "2", path, "-"}).milliseconds);
        }
        const std::string format = extension == "pdf"   ? "pdf"
                                   : extension == "png" ? "image"
                                                        : "document";
        const ChildRun once = runChild(
            {"/bin/sh", "-c", "\"$0\" \"$1\" <\"$2\" | cat", reader, format, paths.front()});
        std::printf(
            "| %zu %s | %.1f ms | %s | %s |\n", paths.size(), extension.c_str(), median(ours),
            theirs.empty() ? "" : (std::to_string(median(theirs)).substr(0, 4) + " ms").c_str(),
            extension == "txt" ? "no child"
                               : (std::to_string(once.peakKilobytes / 1024) + " MiB").c_str());
    }
}

} // namespace
} // namespace quillon::bench

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: measure-text READER FIXTURES\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    quillon::bench::measure(argv[1], argv[2]);
}
