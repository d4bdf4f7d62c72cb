#include "model/RuleFile.h"

#include "model/JsonFields.h"
#include "model/JsonText.h"
#include "model/JsonWriter.h"

#include <QJsonDocument>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Far beyond any rule file, and a bound on the memory that a mistaken path can cost.
constexpr qsizetype largestRuleFile = 64 << 20;

} // namespace

QByteArray encodeRules(const std::vector<Rule>& rules) {
    return QJsonDocument(jsonList(rules)).toJson(QJsonDocument::Indented);
}

Expected<std::vector<Rule>> decodeRules(const QByteArray& bytes) {
    if (bytes.size() > largestRuleFile)
        return failure(ErrorKind::invalid, u"a rule file has at most 64 MB"_s);
    const auto root = parseJson(bytes);
    if (!root)
        return std::unexpected(root.error());
    if (!root->isArray())
        return failure(ErrorKind::invalid,
                       u"a rule file is a list of rules, and this is an object"_s);
    return JsonFields::readList<Rule>(JsonReader(*root, u"rules"_s), ruleFromJson);
}

} // namespace quillon
