#include "engine/PhraseReader.h"
#include "engine/PhraseValues.h"
#include "engine/RulePhrases.h"
#include "model/PathText.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// An action without what follows the words: a folder, a pattern, a colour.
struct Start {
    ActionType type;
    bool keepsOriginal = false;
};

constexpr Phrase<Start> starts[] = {
    {u"move to", {ActionType::move}},
    {u"move it to", {ActionType::move}},
    {u"move into", {ActionType::move}},
    {u"copy to", {ActionType::copy}},
    {u"copy it to", {ActionType::copy}},
    {u"copy into", {ActionType::copy}},
    {u"rename to", {ActionType::rename}},
    {u"rename it to", {ActionType::rename}},
    {u"rename with dobbin", {ActionType::renameWithDobbin}},
    {u"tag", {ActionType::addTag}},
    {u"tag it", {ActionType::addTag}},
    {u"tag with", {ActionType::addTag}},
    {u"add tag", {ActionType::addTag}},
    {u"add", {ActionType::addTag}},
    {u"remove tag", {ActionType::removeTag}},
    {u"remove", {ActionType::removeTag}},
    {u"sort into subfolders", {ActionType::sortIntoSubfolder}},
    {u"sort into subfolder", {ActionType::sortIntoSubfolder}},
    {u"sort", {ActionType::sortIntoSubfolder}},
    {u"unpack", {ActionType::unpack}},
    {u"unpack it", {ActionType::unpack}},
    {u"unpack archive", {ActionType::unpack}},
    {u"unpack and keep the archive", {ActionType::unpack, true}},
    {u"unpack and keep archive", {ActionType::unpack, true}},
    {u"unpack and keep it", {ActionType::unpack, true}},
    {u"unpack archive and keep it", {ActionType::unpack, true}},
    {u"run shortcut", {ActionType::runShortcut}},
    {u"run script", {ActionType::runScript}},
    {u"run shell script", {ActionType::runScript}},
    {u"move to trash", {ActionType::trash}},
    {u"move to the trash", {ActionType::trash}},
    {u"move it to the trash", {ActionType::trash}},
    {u"trash", {ActionType::trash}},
};

constexpr Phrase<SortStrategy> strategies[] = {
    {u"by kind", SortStrategy::byKind},
    {u"by month", SortStrategy::byMonth},
    {u"by extension", SortStrategy::byExtension},
};

std::unexpected<Error> wrong(const QString& sentence) {
    return failure(ErrorKind::invalid, sentence);
}

/// Text that must be there; `example` shows what it would look like.
Expected<QString> readText(const PhraseReader& reader, const QString& example) {
    QString text = reader.value();
    if (text.isEmpty())
        return wrong(u"Something is missing after it, as in “%1”"_s.arg(example));
    return text;
}

Expected<QString> readFolder(const PhraseReader& reader, const QString& folder) {
    const auto text = readText(reader, u"move to ~/Documents"_s);
    if (!text)
        return text;
    if (text->startsWith(u'/') || text == u"~"_s || text->startsWith("~/"_L1))
        return *text;
    if (text == u"."_s)
        return folder;
    if (text->startsWith("./"_L1))
        return appendedPath(folder, text->sliced(2));
    return wrong(u"“%1” is not a full path; write “~/%1” for a folder of yours, “./%1” for one "
                 "inside the watched folder"_s.arg(*text));
}

Expected<TagColor> readColor(const PhraseReader& reader) {
    auto text = readText(reader, u"tag red"_s);
    if (!text)
        return std::unexpected(text.error());
    if (text->endsWith(" tag"_L1, Qt::CaseInsensitive))
        text->chop(4);
    return namedCase<TagColor>(*text);
}

Expected<SortStrategy> readStrategy(PhraseReader& reader) {
    if (const auto strategy = reader.takeOne(strategies))
        return *strategy;
    if (reader.rest().isEmpty())
        return wrong(u"Something is missing after it, as in “sort into subfolders by kind”"_s);
    return wrong(NearestPhrase(reader).offer(strategies).sentence(u"a way to sort"_s));
}

/// Puts what was read where it belongs, or passes on why it could not be.
template <typename Field, typename Value>
Expected<void> put(Field& field, Expected<Value> value) {
    if (!value)
        return std::unexpected(value.error());
    field = std::move(*value);
    return {};
}

Expected<void> readRest(PhraseReader& reader, const QString& folder, RuleAction& action) {
    switch (action.type) {
    case ActionType::move:
    case ActionType::copy:
        return put(action.destination, readFolder(reader, folder));
    case ActionType::rename:
        return put(action.renamePattern, readText(reader, u"rename to {date}-{name}"_s));
    case ActionType::addTag:
    case ActionType::removeTag:
        return put(action.tag, readColor(reader));
    case ActionType::runShortcut:
        return put(action.shortcutName, readText(reader, u"run shortcut Shrink"_s));
    case ActionType::runScript:
        return put(action.scriptCommand, readText(reader, u"run script 'gzip \"$1\"'"_s));
    case ActionType::sortIntoSubfolder:
        if (const auto read = put(action.sortBy, readStrategy(reader)); !read)
            return read;
        break;
    case ActionType::renameWithDobbin:
    case ActionType::unpack:
    case ActionType::trash:
        break;
    }
    if (!reader.rest().isEmpty())
        return wrong(u"“%1” is too much; nothing can follow there"_s.arg(reader.rest()));
    return {};
}

} // namespace

Expected<RuleAction> actionFromWords(const QString& words, const QString& folder) {
    PhraseReader reader(words);
    reader.skip({u"then"});
    if (reader.rest().isEmpty())
        return wrong(u"An action is missing, such as “move to ~/Documents”"_s);
    const auto start = reader.takeOne(starts);
    if (!start)
        return wrong(
            NearestPhrase(reader).offer(starts).sentence(u"something that a rule can do"_s));
    RuleAction action{.type = start->type, .keepOriginal = start->keepsOriginal};
    if (const auto read = readRest(reader, folder, action); !read)
        return std::unexpected(read.error());
    return action;
}

} // namespace quillon
