#include "store/Diagnostics.h"

#include "engine/DateFormats.h"
#include "engine/RuleChecks.h"
#include "engine/RuleSummary.h"
#include "store/Attention.h"

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t mostErrors = 50;
constexpr auto indent = "    "_L1;

QString truth(bool value) {
    return value ? u"true"_s : u"false"_s;
}

/// Names may hold line breaks, and what a script printed most likely does.
QString oneLine(const QString& text) {
    return text.simplified();
}

class Report {
public:
    explicit Report(const DiagnosticsSystem& system) : system_(system) {}

    void header() {
        lines_ << u"Quillon Diagnostics"_s
               << u"Generated: "_s + dates_.dateAndTime(system_.now, system_.locale)
               << u"App version: "_s + system_.appVersion
               << u"%1: %2"_s.arg(system_.name, system_.version);
    }

    void folders(const std::vector<WatchedFolder>& folders,
                 const QHash<QUuid, FolderAccess>& access) {
        section(u"WATCHED FOLDERS (%1)"_s.arg(folders.size()));
        for (const WatchedFolder& folder : folders) {
            const auto found = access.constFind(folder.id);
            lines_ << u"%1 (%2)"_s.arg(oneLine(folder.name()), oneLine(folder.path))
                   << indent + u"watching=%1 access=%2 schedule=%3"_s.arg(truth(folder.isWatching),
                                                                          found == access.constEnd()
                                                                              ? u"not checked yet"_s
                                                                              : accessText(*found),
                                                                          rawValue(folder.schedule))
                   << indent + u"recursive=%1 onlyNewFiles=%2 skipOnlineOnly=%3"_s.arg(
                                   truth(folder.isRecursive), truth(folder.onlyNewFiles),
                                   truth(folder.skipOnlineOnly));
            rules(folder.rules);
        }
    }

    void warnings(const QStringList& warnings) {
        if (warnings.isEmpty())
            return;
        section(u"WARNINGS (%1)"_s.arg(warnings.size()));
        for (const QString& warning : warnings)
            lines_ << oneLine(warning);
    }

    void errors(const std::vector<LogEntry>& logs) {
        std::vector<const LogEntry*> recent;
        for (const LogEntry& entry : logs)
            if (isRecentError(entry, system_.now))
                recent.push_back(&entry);
        section(u"ERRORS (last 24h: %1, showing up to %2 of %3 kept)"_s.arg(recent.size())
                    .arg(mostErrors)
                    .arg(logs.size()));
        recent.resize(std::min(recent.size(), mostErrors));
        for (const LogEntry* entry : recent)
            lines_ << u"%1  %2/%3: %4"_s.arg(minute(entry->date), oneLine(entry->folderName),
                                             oneLine(entry->fileName),
                                             oneLine(entry->actionSummary));
    }

    void activity(const std::vector<LogEntry>& logs) {
        const auto errors = std::size_t(
            std::ranges::count_if(logs, [](const auto& entry) { return entry.isError; }));
        section(u"ACTIVITY LOG: %1 entries kept (%2 actions, %3 errors)"_s.arg(logs.size())
                    .arg(logs.size() - errors)
                    .arg(errors));
    }

    [[nodiscard]] QString text() const { return lines_.join(u'\n'); }

private:
    void section(const QString& title) { lines_ << QString() << title; }

    [[nodiscard]] QString accessText(FolderAccess access) const {
        switch (access) {
        case FolderAccess::ok:
            return u"ok"_s;
        case FolderAccess::missing:
            return u"MISSING — folder not found"_s;
        case FolderAccess::denied:
            return u"DENIED — %1 is blocking access"_s.arg(system_.name);
        }
        return {};
    }

    void rules(const std::vector<Rule>& rules) {
        if (rules.empty())
            lines_ << indent + u"(no rules)"_s;
        for (std::size_t i = 0; i < rules.size(); ++i) {
            const Rule& rule = rules[i];
            lines_ << indent + u"%1. [%2] %3: %4"_s.arg(QString::number(i + 1),
                                                        rule.isEnabled ? u"on"_s : u"off"_s,
                                                        oneLine(rule.name), oneLine(summary(rule)));
            for (const QString& warning : validationWarnings(rule))
                lines_ << "        Warning: "_L1 + oneLine(warning);
        }
    }

    [[nodiscard]] QString minute(Timestamp date) {
        return dates_.format(u"yyyy-MM-dd HH:mm"_s, date).value_or(QString());
    }

    const DiagnosticsSystem& system_;
    DateFormats dates_;
    QStringList lines_;
};

} // namespace

QString diagnosticsReport(const std::vector<WatchedFolder>& folders,
                          const QHash<QUuid, FolderAccess>& access,
                          const std::vector<LogEntry>& logs, const QStringList& warnings,
                          const DiagnosticsSystem& system) {
    Report report(system);
    report.header();
    report.folders(folders, access);
    report.warnings(warnings);
    report.errors(logs);
    report.activity(logs);
    return report.text();
}

} // namespace quillon
