#include "SampleFiles.h"

#include <QDate>

#include <array>
#include <chrono>
#include <fcntl.h>
#include <span>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr long long kilo = 1000;
constexpr long long mega = 1000 * kilo;

struct File {
    const char* name;
    long long bytes;
    double daysAgo;
};

constexpr std::array installers = std::to_array<File>({
    {"Blender-4.5.dmg", 412 * mega, 101},
    {"ubuntu-24.04-desktop.iso", 2400 * mega, 142},
    {"AudioBridge-2.1.pkg", 96 * mega, 155},
    {"PrinterDriver.dmg", 188 * mega, 175},
});

constexpr std::array staleFiles = std::to_array<File>({
    {"Lease draft v2.docx", 84 * kilo, 79},      {"Passport scan.pdf", 1200 * kilo, 85},
    {"tile-samples.zip", 38 * mega, 102},        {"Workshop notes.odt", 61 * kilo, 107},
    {"Site photos.zip", 164 * mega, 111},        {"Kitchen plan.pdf", 4300 * kilo, 114},
    {"garden-before.jpg", 5800 * kilo, 118},     {"Meeting with landlord.m4a", 47 * mega, 121},
    {"holiday-clip.mov", 212 * mega, 126},       {"Recipe cards.pdf", 2100 * kilo, 128},
    {"fonts-trial.tar.gz", 18 * mega, 131},      {"Seating plan.xlsx", 42 * kilo, 134},
    {"old-theme.css", 12 * kilo, 137},           {"Bike manual.pdf", 9700 * kilo, 140},
    {"mixdown-03.wav", 61 * mega, 146},          {"Allotment map.png", 3400 * kilo, 149},
    {"Choir parts.zip", 22 * mega, 158},         {"Quote Harper Roofing.pdf", 310 * kilo, 163},
    {"letter to council.rtf", 28 * kilo, 170},   {"paint-colours.svg", 19 * kilo, 182},
    {"Tax leaflet 2025.pdf", 1900 * kilo, 201},  {"notes-backup.txt", 7 * kilo, 214},
    {"Train tickets July.pdf", 420 * kilo, 131},
});

constexpr std::array archives = std::to_array<File>({
    {"icons-v3.zip", 6 * mega, 9},
    {"Photos from Ana.zip", 88 * mega, 16},
    {"dataset-sample.tar.gz", 31 * mega, 24},
});

constexpr std::array inUse = std::to_array<File>({
    {"Invoice-2026-1187.pdf", 148 * kilo, 0.4},
    {"Invoice-2026-1188.pdf", 151 * kilo, 0.5},
    {"invoice_oct_hosting.pdf", 96 * kilo, 3},
    {"order-114-5508.pdf", 88 * kilo, 1.2},
    {"Till slip Fenwick.pdf", 61 * kilo, 2},
    {"receipt_0419.pdf", 72 * kilo, 2.5},
    {"Payment confirmation.pdf", 54 * kilo, 4},
    {"eTicket receipt.pdf", 120 * kilo, 5},
    {"Garage bill.pdf", 93 * kilo, 6},
    {"scan_0034.pdf", 640 * kilo, 1},
    {"scan_0035.pdf", 655 * kilo, 1},
    {"Team offsite.mp4", 740 * mega, 3},
    {"Interview raw.mov", 1300 * mega, 5},
    {"Talk recording.mkv", 610 * mega, 8},
    {"Podcast 112.mp3", 54 * mega, 2},
    {"Podcast 113.mp3", 51 * mega, 1},
    {"Agenda Thursday.docx", 33 * kilo, 1},
    {"Minutes 12 Nov.docx", 41 * kilo, 9},
    {"Budget 2027.xlsx", 120 * kilo, 2},
    {"Slides draft.pptx", 8400 * kilo, 3},
    {"Contract Nadia.docx", 57 * kilo, 12},
    {"README.md", 4 * kilo, 6},
    {"export.csv", 310 * kilo, 2},
    {"export (1).csv", 311 * kilo, 2},
    {"backup.sql", 14 * mega, 20},
    {"build-log.txt", 220 * kilo, 1},
    {"config.json", 3 * kilo, 4},
    {"report.py", 9 * kilo, 7},
    {"logo-final.svg", 17 * kilo, 10},
    {"logo-final2.svg", 17 * kilo, 8},
    {"poster A3.pdf", 12 * mega, 11},
    {"Boarding pass.pdf", 210 * kilo, 13},
    {"Letter from school.pdf", 180 * kilo, 14},
    {"Guitar tabs.pdf", 350 * kilo, 18},
    {"font-licence.txt", 6 * kilo, 22},
});
constexpr int screenshots = 11;
constexpr int photos = 44;

void make(const std::string& folder, std::span<const File> files) {
    for (const File& file : files)
        makeFile(folder + "/" + file.name, file.bytes, file.daysAgo);
}

timespec daysBack(double days) {
    using namespace std::chrono;
    const auto then = system_clock::now() - duration_cast<seconds>(duration<double>(days * 86400));
    return {.tv_sec = system_clock::to_time_t(then), .tv_nsec = 0};
}

} // namespace

void makeFile(const std::string& path, long long bytes, double daysAgo) {
    const int file = ::open(path.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
    const std::array<timespec, 2> times{daysBack(daysAgo), daysBack(daysAgo)};
    if (file < 0 || ::ftruncate(file, bytes) != 0 || ::futimens(file, times.data()) != 0)
        qFatal("%s can't be made", path.c_str());
    ::close(file);
}

void makeDownloads(const std::string& folder) {
    make(folder, installers);
    make(folder, staleFiles);
    make(folder, archives);
    make(folder, inUse);
    for (int i = 0; i < screenshots; ++i) {
        const QDate day = QDate::currentDate().addDays(-2 - i * 3);
        const QString name = u"Screenshot %1.png"_s.arg(day.toString(Qt::ISODate));
        makeFile(folder + "/" + name.toStdString(), (380 + i * 610) * kilo, 2 + i * 3);
    }
    for (int i = 0; i < photos; ++i)
        makeFile(folder + "/IMG_" + std::to_string(2207 + i) + ".jpg", (2400 + i * 37) * kilo,
                 1 + i % 20);
}

} // namespace quillon::testing
