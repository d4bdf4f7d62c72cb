#include "ui/history/HistoryLayout.h"

#include "model/CleanupRecipe.h"
#include "model/Uuid.h"
#include "store/Undo.h"
#include "ui/CountTexts.h"
#include "ui/FolderLook.h"
#include "ui/TimeTexts.h"
#include "ui/folders/ActivityEntry.h"

#include <QCoreApplication>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(HistoryLayout)
};

/// The recipes of a clean-up by the names of the rules that carry them out.
const QHash<QString, QString>& recipeTitles() {
    static const QHash<QString, QString> titles = [] {
        QHash<QString, QString> made;
        const WatchedFolder any;
        for (const CleanupRecipe& recipe : recipesFor(any))
            made.insert(recipe.makeRule(any, recipe.days.value_or(0)).name, recipe.title);
        return made;
    }();
    return titles;
}

struct Batch {
    std::vector<const LogEntry*> shown = {}; ///< that the filter lets through
    std::size_t size = 0;
    bool canUndo = false;
    bool isCleanup = true;
    QStringList titles = {}; ///< of its recipes or rules, each once
};

class Layout {
public:
    explicit Layout(const HistorySource& source) : source_(source) {
        for (std::size_t i = 0; i < source.folders.size(); ++i)
            tints_.insert(source.folders[i].id, lookOf(source.folders[i], i).tint);
    }

    HistoryLayout make() {
        gatherBatches();
        for (const LogEntry& entry : source_.logs) {
            made_.errorCount += entry.isError && source_.filter.matchesSubject(entry) ? 1 : 0;
            const auto batch = entry.batchID ? batches_.constFind(*entry.batchID) : batches_.cend();
            const bool isBatch = batch != batches_.cend() && batch->size > 1;
            if (isBatch && !batch->shown.empty() && &entry == batch->shown.front())
                addBatch(*entry.batchID, *batch);
            else if (!isBatch && source_.filter.matches(entry))
                add(rowOf(entry), localDay(entry.date), 1);
        }
        endDay();
        return std::move(made_);
    }

private:
    void gatherBatches() {
        for (const LogEntry& entry : source_.logs) {
            if (!entry.batchID)
                continue;
            Batch& batch = batches_[*entry.batchID];
            ++batch.size;
            batch.canUndo |= canBeUndone(entry);
            const auto recipe = recipeTitles().constFind(entry.ruleName);
            batch.isCleanup &= recipe != recipeTitles().cend();
            const QString title = recipe == recipeTitles().cend() ? entry.ruleName : *recipe;
            if (!title.isEmpty() && !batch.titles.contains(title))
                batch.titles.append(title);
            if (source_.filter.matches(entry))
                batch.shown.push_back(&entry);
        }
    }

    void addBatch(const QUuid& id, const Batch& batch) {
        const LogEntry& newest = *batch.shown.front();
        const auto undoing = source_.undoing.constFind(id);
        HistoryRow head = commonRow(newest);
        head.key = batchKey(id);
        head.isBatch = true;
        // What is looked for must not hide.
        head.isOpen = source_.turnedBatches.contains(id) == source_.filter.isOpen();
        head.title = (batch.isCleanup ? Texts::tr("Clean Up in %1") : Texts::tr("Run in %1"))
                         .arg(newest.folderName);
        head.secondLine = Texts::tr("%1 · %2", "a number of files and the rules that filed them")
                              .arg(fileCount(batch.size), batch.titles.join(u", "_s));
        head.canUndo = batch.canUndo;
        if (undoing != source_.undoing.cend()) {
            head.isUndoing = true;
            if (undoing->total > 0)
                head.progress = double(undoing->done) / double(undoing->total);
            head.secondLine = Texts::tr("Putting back… %1 of %2")
                                  .arg(undoing->done)
                                  .arg(fileCount(undoing->total));
        }
        const QDate day = localDay(newest.date);
        add(head, day, batch.shown.size());
        if (!head.isOpen)
            return;
        for (const LogEntry* entry : batch.shown) {
            HistoryRow row = rowOf(*entry);
            row.isInBatch = true;
            add(row, day, 0);
        }
    }

    HistoryRow commonRow(const LogEntry& entry) const {
        HistoryRow row;
        row.timeText = clockText(entry.date);
        row.spokenTime = spokenTimeText(entry.date, source_.now);
        row.folderName = entry.folderName;
        row.tint = entry.folderID ? tints_.value(*entry.folderID, -1) : -1;
        return row;
    }

    HistoryRow rowOf(const LogEntry& entry) const {
        HistoryRow row = commonRow(entry);
        const ActivityEntry shown = activityEntry(entry, source_.now);
        row.entryId = shown.key;
        row.key = shown.key;
        row.title = shown.fileName;
        row.kind = shown.kind;
        row.secondLine = shown.secondLine;
        row.canReveal = shown.canReveal;
        row.canUndo = shown.canUndo;
        row.isError = shown.isError;
        row.isUndoing = row.canUndo && entry.batchID && source_.undoing.contains(*entry.batchID);
        return row;
    }

    void add(HistoryRow row, QDate day, std::size_t entries) {
        if (made_.rows.empty() || day != day_) {
            endDay();
            day_ = day;
            row.isFirst = true;
        }
        row.day = day.toString(Qt::ISODate);
        made_.rows.push_back(std::move(row));
        entriesOfDay_ += entries;
    }

    void endDay() {
        if (made_.rows.empty())
            return;
        made_.rows.back().isLast = true;
        made_.days.push_back({.day = made_.rows.back().day,
                              .heading = dayHeading(day_, source_.now),
                              .count = entryCount(entriesOfDay_)});
        entriesOfDay_ = 0;
    }

    const HistorySource& source_;
    HistoryLayout made_;
    QHash<QUuid, Batch> batches_;
    QHash<QUuid, int> tints_;
    QDate day_;
    std::size_t entriesOfDay_ = 0;
};

} // namespace

HistoryLayout layOutHistory(const HistorySource& source) {
    return Layout(source).make();
}

QString batchKey(const QUuid& batchID) {
    return u"batch "_s + uuidText(batchID);
}

} // namespace quillon
