#include "SampleModel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <functional>

namespace quillon::testing {

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList fileNames(const QString& message) {
    static const QRegularExpression line(u"^name: (.*)$"_s, QRegularExpression::MultilineOption);
    QStringList names;
    for (auto found = line.globalMatch(message); found.hasNext();)
        names.append(found.next().captured(1));
    return names;
}

QJsonArray aboutEach(const QString& message,
                     const std::function<QJsonObject(const QString& name)>& answer) {
    QJsonArray answers;
    for (const QString& name : fileNames(message)) {
        QJsonObject about = answer(name);
        about[u"id"_s] = u"f%1"_s.arg(answers.size() + 1);
        answers.append(about);
    }
    return answers;
}

QJsonObject verdict(const QString& name) {
    static const QRegularExpression receipt(u"receipt|order-|slip|payment|bill|invoice"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    const bool matches = receipt.match(name).hasMatch();
    return {{u"whatItIs"_s, matches ? u"shop receipt"_s : u"something else"_s},
            {u"matches"_s, matches}};
}

QJsonObject nameParts(const QString&) {
    return {{u"date"_s, u"2026-11-18"_s},
            {u"from"_s, u"Amazon"_s},
            {u"what"_s, u"invoice"_s},
            {u"amount"_s, u"£42.99"_s}};
}

QJsonObject rule() {
    const auto condition = [](const QString& attribute, const QString& op, const QString& value) {
        return QJsonObject{{u"attribute"_s, attribute},
                           {u"operator"_s, op},
                           {u"value"_s, value},
                           {u"sizeUnit"_s, u"MB"_s}};
    };
    const auto action = [](const QString& type, const QString& destination, const QString& tag) {
        return QJsonObject{{u"type"_s, type},
                           {u"destination"_s, destination},
                           {u"renamePattern"_s, QString()},
                           {u"tag"_s, tag},
                           {u"sortBy"_s, u"none"_s}};
    };
    const QJsonArray conditions{condition(u"Where from"_s, u"contains"_s, u"amazon.com"_s),
                                condition(u"Dobbin says it"_s, u"is"_s, u"a receipt or invoice"_s)};
    const QJsonArray actions{action(u"Rename with Dobbin"_s, QString(), u"none"_s),
                             action(u"Move to folder"_s, u"Receipts"_s, u"none"_s),
                             action(u"Add tag"_s, QString(), u"green"_s)};
    return {{u"name"_s, u"Name and file receipts"_s},
            {u"matchMode"_s, u"all"_s},
            {u"conditions"_s, conditions},
            {u"actions"_s, actions},
            {u"note"_s, u"I took “receipts” to mean what the file is, not what it’s called."_s}};
}

QJsonObject change() {
    return {{u"type"_s, u"turnOffRule"_s},
            {u"folder"_s, u"Downloads"_s},
            {u"rule"_s, u"Trash old installers"_s},
            {u"ruleOrder"_s, QJsonArray()},
            {u"description"_s, QString()}};
}

ModelServer::Answer answerTo(const ModelServer::Request& request) {
    const QJsonObject json = request.json();
    const QString message = json[u"messages"_s].toArray().last()[u"content"_s].toString();
    const QStringList asked = json[u"format"_s][u"properties"_s].toObject().keys();
    const auto say = [](const QJsonObject& answer) {
        return ModelServer::chatAnswer(
            QString::fromUtf8(QJsonDocument(answer).toJson(QJsonDocument::Compact)));
    };
    if (asked.contains(u"verdicts"_s))
        return say({{u"verdicts"_s, aboutEach(message, verdict)}});
    if (asked.contains(u"names"_s))
        return say({{u"names"_s, aboutEach(message, nameParts)}});
    if (asked.contains(u"conditions"_s))
        return say(rule());
    if (asked.contains(u"actions"_s))
        return say({{u"actions"_s, QJsonArray{change()}}});
    if (asked.contains(u"folders"_s))
        return say({{u"folders"_s, QJsonArray()}});
    return ModelServer::chatAnswer(u"Trash old installers in Downloads is the rule doing that. "
                                   u"Turn off Trash old installers to stop it."_s);
}

} // namespace

void playSampleModel(ModelServer& server) {
    server.haveModels({u"qwen2.5:7b"_s});
    server.play("/api/chat", answerTo);
}

} // namespace quillon::testing
