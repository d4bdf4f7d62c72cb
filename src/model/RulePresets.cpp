#include "model/RulePresets.h"

#include "model/FileKind.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

Preset preset(const QString& title, const QString& description, const QString& symbolName,
              const Condition& condition, const RuleAction& action) {
    return {.title = title,
            .description = description,
            .symbolName = symbolName,
            .rule = {.name = title, .conditions = {condition}, .actions = {action}}};
}

/// "Size greater than 0 KB" stands for every file that has contents.
Preset sortingPreset(const QString& title, const QString& description, const QString& symbolName,
                     SortStrategy sortBy) {
    return preset(title, description, symbolName,
                  {.attribute = ConditionAttribute::size,
                   .op = MatchOperator::greaterThan,
                   .value = u"0"_s,
                   .unit = SizeUnit::kb},
                  {.type = ActionType::sortIntoSubfolder, .sortBy = sortBy});
}

} // namespace

std::vector<Preset> rulePresets() {
    return {
        sortingPreset(u"Sort by kind"_s,
                      u"File images, documents, audio… into matching subfolders"_s,
                      u"square.grid.2x2"_s, SortStrategy::byKind),
        sortingPreset(u"Sort by month"_s, u"Group files into YYYY-MM folders by date"_s,
                      u"calendar"_s, SortStrategy::byMonth),
        preset(u"Unpack archives"_s, u"Extract zip/tar/7z files, then trash the original"_s,
               u"archivebox"_s,
               {.attribute = ConditionAttribute::kind,
                .op = MatchOperator::is,
                .value = rawValue(FileKind::archive)},
               {.type = ActionType::unpack, .keepOriginal = false}),
        preset(u"Tag screenshots"_s, u"Give files named “Screenshot…” an orange tag"_s,
               u"camera.viewfinder"_s,
               {.attribute = ConditionAttribute::name,
                .op = MatchOperator::beginsWith,
                .value = u"Screenshot"_s},
               {.type = ActionType::addTag, .tag = TagColor::orange}),
        preset(u"Flag large files"_s, u"Tag anything over 100 MB red"_s, u"scalemass"_s,
               {.attribute = ConditionAttribute::size,
                .op = MatchOperator::greaterThan,
                .value = u"100"_s,
                .unit = SizeUnit::mb},
               {.type = ActionType::addTag, .tag = TagColor::red}),
        preset(u"Flag stale files"_s, u"Tag files added over 90 days ago grey"_s,
               u"clock.badge.exclamationmark"_s,
               {.attribute = ConditionAttribute::dateAdded,
                .op = MatchOperator::olderThanDays,
                .value = u"90"_s},
               {.type = ActionType::addTag, .tag = TagColor::gray}),
    };
}

} // namespace quillon
