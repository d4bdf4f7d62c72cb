#include "ui/CountTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CountTexts)
};

/// What is said of one thing stands by itself, so that the source texts read well without any
/// catalogue.
QString counted(std::size_t number, const char* one, const char* many) {
    return number == 1 ? Texts::tr(one) : Texts::tr(many, nullptr, static_cast<int>(number));
}

} // namespace

QString fileCount(std::size_t number) {
    return counted(number, QT_TRANSLATE_NOOP("CountTexts", "1 file"),
                   QT_TRANSLATE_N_NOOP("CountTexts", "%Ln files"));
}

QString folderCount(std::size_t number) {
    return counted(number, QT_TRANSLATE_NOOP("CountTexts", "1 folder"),
                   QT_TRANSLATE_N_NOOP("CountTexts", "%Ln folders"));
}

QString ruleCount(std::size_t number) {
    return counted(number, QT_TRANSLATE_NOOP("CountTexts", "1 rule"),
                   QT_TRANSLATE_N_NOOP("CountTexts", "%Ln rules"));
}

QString entryCount(std::size_t number) {
    return counted(number, QT_TRANSLATE_NOOP("CountTexts", "1 entry"),
                   QT_TRANSLATE_N_NOOP("CountTexts", "%Ln entries"));
}

QString errorCount(std::size_t number) {
    return counted(number, QT_TRANSLATE_NOOP("CountTexts", "1 error"),
                   QT_TRANSLATE_N_NOOP("CountTexts", "%Ln errors"));
}

QString dayCount(std::size_t number) {
    return counted(number, QT_TRANSLATE_NOOP("CountTexts", "1 day"),
                   QT_TRANSLATE_N_NOOP("CountTexts", "%Ln days"));
}

QString sizeText(std::uint64_t bytes) {
    if (bytes == 1)
        return Texts::tr("1 byte");
    if (bytes < 1000)
        return Texts::tr("%1 bytes").arg(bytes);
    static constexpr auto units = std::to_array<const char*>({
        QT_TRANSLATE_NOOP("CountTexts", "%1 KB"),
        QT_TRANSLATE_NOOP("CountTexts", "%1 MB"),
        QT_TRANSLATE_NOOP("CountTexts", "%1 GB"),
        QT_TRANSLATE_NOOP("CountTexts", "%1 TB"),
    });
    std::size_t unit = 0;
    double amount = static_cast<double>(bytes) / 1000;
    // Where rounding would make a thousand, the next unit has one.
    for (; amount >= 999.5 && unit + 1 < units.size(); ++unit)
        amount /= 1000;
    const bool needsTenths = unit > 0 && amount < 9.95;
    return Texts::tr(units[unit]).arg(QLocale().toString(amount, 'f', needsTenths ? 1 : 0));
}

QString putBackText(std::size_t restored, std::size_t failed, const QString& onlyName) {
    const bool isOne = restored + failed == 1 && !onlyName.isEmpty();
    if (failed == 0)
        return Texts::tr("Put back %1", "a file, or a number of files")
            .arg(isOne ? onlyName : fileCount(restored));
    if (restored == 0 && isOne)
        return Texts::tr("Couldn’t put %1 back. It has moved or gone.").arg(onlyName);
    if (restored == 0)
        return Texts::tr("Couldn’t put %1 back. They have moved or gone.", "a number of files")
            .arg(fileCount(failed));
    return Texts::tr("Put back %1, %2 couldn’t be", "a number of files and a number")
        .arg(fileCount(restored))
        .arg(failed);
}

} // namespace quillon
