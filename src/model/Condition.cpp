#include "model/Condition.h"

#include "model/JsonFields.h"
#include "model/Uuid.h"

namespace quillon {

using namespace Qt::Literals::StringLiterals;

QJsonObject toJson(const Condition& condition) {
    QJsonObject object{
        {"id"_L1, uuidText(condition.id)},
        {"attribute"_L1, rawValue(condition.attribute)},
        {"op"_L1, rawValue(condition.op)},
        {"value"_L1, condition.value},
    };
    if (condition.unit)
        object.insert("unit"_L1, rawValue(*condition.unit));
    return object;
}

Expected<Condition> conditionFromJson(const JsonReader& json) {
    Condition condition;
    JsonFields fields(json);
    fields.required("id"_L1, condition.id);
    fields.required("attribute"_L1, condition.attribute);
    fields.required("op"_L1, condition.op);
    fields.required("value"_L1, condition.value);
    fields.optional("unit"_L1, condition.unit);
    return fields.result(std::move(condition));
}

} // namespace quillon
