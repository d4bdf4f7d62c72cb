#include "app/DialogFileChooser.h"

namespace quillon {
namespace {

void open(QFileDialog& dialog, const std::string& start, const FileChooser::Chosen& chosen) {
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    dialog.setDirectory(start.empty() ? QDir::homePath() : QString::fromStdString(start));
    QObject::connect(&dialog, &QFileDialog::finished, &dialog, [&dialog, chosen](int result) {
        const QStringList files = dialog.selectedFiles();
        chosen(result == QDialog::Accepted && !files.isEmpty()
                   ? std::optional(files.first().toStdString())
                   : std::nullopt);
    });
    dialog.open();
}

} // namespace

void DialogFileChooser::chooseFolder(const QString& title, const std::string& start,
                                     Chosen chosen) {
    auto* const dialog = new QFileDialog(nullptr, title);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    open(*dialog, start, chosen);
}

void DialogFileChooser::chooseFile(const QString& title, const std::string& start, Chosen chosen) {
    auto* const dialog = new QFileDialog(nullptr, title);
    dialog->setFileMode(QFileDialog::ExistingFile);
    open(*dialog, start, chosen);
}

void DialogFileChooser::chooseNewFile(const QString& title, const QString& suggestedName,
                                      Chosen chosen) {
    auto* const dialog = new QFileDialog(nullptr, title);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(suggestedName);
    open(*dialog, {}, chosen);
}

} // namespace quillon
