#include "assistant/JudgePrompts.h"

#include "model/JsonText.h"
#include "store/JsonStream.h"

#include <QJsonArray>
#include <QJsonValue>

#include <span>

namespace quillon {

using namespace Qt::Literals::StringLiterals;
using namespace std::literals;

namespace {

constexpr QStringView verdictSystem =
    u"You sort files for Quillon, a Mac app that tidies folders. For every file listed, first "
    "say what it actually is, then decide whether that is what the question describes, using "
    "its name, kind, source and any text shown. Be strict: related documents are different "
    "things — a payslip or bank statement is not a receipt, a quote is not an invoice, a "
    "letter about a bill is not the bill. matches is true only when whatItIs names the same "
    "kind of thing as the question. When unsure, answer false. Give one verdict per file id.";

constexpr QStringView nameSystem =
    u"You help Quillon, a Mac app that tidies folders, give files clear names. For each file, "
    "fill in the parts of its new name: the date, who it's from or about, what it is, and "
    "the total if it's a bill or payment. Keep every part short; never copy whole sentences "
    "from the text. Use only facts shown for that file. Give one entry per file id.";

struct Property {
    std::string_view name;
    std::string_view type;
    std::string_view description;
};

constexpr Property verdictProperties[] = {
    {"id", "string", "The file's id, like f1"},
    {"whatItIs", "string",
     "What this file actually is, in two to four words, e.g. supermarket receipt, payslip, "
     "shopping "
     "list"},
    {"matches", "boolean", "True only when what it is fits the question exactly"},
};

constexpr Property nameProperties[] = {
    {"id", "string", "The file's id, like f1"},
    {"date", "string", "yyyy-MM-dd: the date in text if shown, else the file's date"},
    {"from", "string",
     "Who it's from or about, one to three words, e.g. Tesco, Amazon, ACME Ltd; empty if unknown"},
    {"what", "string",
     "What it is, one to three words, e.g. receipt, invoice, payslip, meeting minutes"},
    {"amount", "string",
     "The total with currency symbol for bills and payments, e.g. £42.99; otherwise empty"},
};

/// An object that holds a list of objects.
QByteArray listSchema(std::string_view list, std::span<const Property> properties) {
    JsonStream json;
    json.beginObject().key("type").text("object"sv).key("properties").beginObject();
    json.key(list).beginObject().key("type").text("array"sv).key("items").beginObject();
    json.key("type").text("object"sv).key("properties").beginObject();
    for (const Property& property : properties) {
        json.key(property.name).beginObject().key("type").text(property.type);
        json.key("description").text(property.description).endObject();
    }
    json.endObject().key("required").beginList();
    for (const Property& property : properties)
        json.text(property.name);
    json.endList().key("additionalProperties").truth(false).endObject().endObject().endObject();
    json.key("required").beginList().text(list).endList();
    json.key("additionalProperties").truth(false).endObject();
    return json.take();
}

QString fileBlocks(const QStringList& facts) {
    QStringList blocks;
    for (const QString& fact : facts)
        blocks.append(u"[f"_s + QString::number(blocks.size() + 1) + u"]\n"_s + fact);
    return blocks.join(u"\n\n"_s);
}

AIRequest request(QStringView system, const QString& message, QByteArray schema) {
    return {.system = system.toString(),
            .messages = {{.role = AIMessage::Role::user, .text = message}},
            .schema = std::move(schema),
            .cheap = true};
}

/// The place of the file in what was asked.
std::optional<std::size_t> fileIndex(const QString& id, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        if (id == u'f' + QString::number(i + 1))
            return i;
    return std::nullopt;
}

} // namespace

AIRequest verdictRequest(const QString& question, const QStringList& facts) {
    return request(verdictSystem, judgePrompt(question, facts),
                   listSchema("verdicts", verdictProperties));
}

AIRequest nameRequest(const QStringList& facts) {
    return request(nameSystem, fileBlocks(facts), listSchema("names", nameProperties));
}

QString judgePrompt(const QString& question, const QStringList& facts) {
    return u"Question: is each file "_s + question + u"?\n\n"_s + fileBlocks(facts);
}

Expected<std::vector<std::optional<QJsonObject>>> mapByID(const QString& answer,
                                                          const QString& list, std::size_t count) {
    const auto json = parseJson(answer.toUtf8());
    if (!json || !json->toObject().value(list).isArray())
        return failure(ErrorKind::invalid, u"The model's answer is not what was asked for"_s);
    std::vector<std::optional<QJsonObject>> byFile(count);
    for (const QJsonValue& value : json->toObject().value(list).toArray()) {
        const QJsonObject said = value.toObject();
        const auto index = fileIndex(said.value("id"_L1).toString(), count);
        if (index && !byFile[*index])
            byFile[*index] = said;
    }
    return byFile;
}

} // namespace quillon
