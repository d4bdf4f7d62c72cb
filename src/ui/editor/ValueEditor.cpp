#include "ui/editor/ValueEditor.h"

#include "engine/ConditionValues.h"
#include "model/FileKind.h"
#include "model/TagColor.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ValueEditor)
};

constexpr auto editorNames = std::to_array<std::u16string_view>(
    {u"text", u"kind", u"tag", u"days", u"size", u"date", u"question"});

ValueEditor editorOf(const Condition& condition) {
    return valueEditor(condition.attribute, condition.op);
}

bool isNumber(ValueEditor editor) {
    return editor == ValueEditor::days || editor == ValueEditor::size;
}

/// What a control that always shows a value begins with.
QString firstValue(ValueEditor editor) {
    if (editor == ValueEditor::kind)
        return rawValue(FileKind::image);
    return editor == ValueEditor::tag ? rawValue(TagColor::red) : QString();
}

bool fits(const QString& value, ValueEditor from, ValueEditor to) {
    if (from == to)
        return true;
    if (to == ValueEditor::kind)
        return fromRawValue<FileKind>(value).has_value();
    if (to == ValueEditor::tag)
        return fromRawValue<TagColor>(value).has_value();
    const auto isText = [](ValueEditor editor) {
        return editor == ValueEditor::text || editor == ValueEditor::question;
    };
    return isText(from) && isText(to);
}

Condition fitted(Condition condition, ValueEditor before) {
    const ValueEditor now = editorOf(condition);
    if (!fits(condition.value, before, now))
        condition.value = firstValue(now);
    return condition;
}

/// A day as the user's locale writes it, with four digits of the year or with two, which are those
/// of this century or of the end of the last.
QDate localDay(const QString& text) {
    const QLocale locale;
    const QString shortFormat = locale.dateFormat(QLocale::ShortFormat);
    QString fourDigits = shortFormat;
    if (!shortFormat.contains(u"yyyy"_s))
        fourDigits.replace(u"yy"_s, u"yyyy"_s);
    for (const QString& format : {fourDigits, locale.dateFormat(QLocale::LongFormat)})
        if (const QDate day = locale.toDate(text, format); day.isValid())
            return day;
    const QDate day = locale.toDate(text, shortFormat);
    return day.isValid() && day.year() < 1970 ? day.addYears(100) : day;
}

QString needs(ValueEditor editor) {
    if (isNumber(editor))
        return Texts::tr("Use a number");
    if (editor == ValueEditor::date)
        return Texts::tr("Use a date like 2026-10-14");
    return {};
}

} // namespace

ValueEditor valueEditor(ConditionAttribute attribute, MatchOperator op) {
    using enum ConditionAttribute;
    switch (attribute) {
    case name:
    case fullName:
    case extension:
    case whereFrom:
        return ValueEditor::text;
    case kind:
        return ValueEditor::kind;
    case tag:
        return ValueEditor::tag;
    case size:
        return ValueEditor::size;
    case dobbinSays:
        return ValueEditor::question;
    case dateModified:
    case dateAdded:
    case dateCreated:
    case lastOpened:
        break;
    }
    const bool isDay = op == MatchOperator::before || op == MatchOperator::after;
    return isDay ? ValueEditor::date : ValueEditor::days;
}

QString valueEditorName(ValueEditor editor) {
    return toQString(editorNames[static_cast<std::size_t>(editor)]);
}

Condition withAttribute(Condition condition, ConditionAttribute attribute) {
    const ValueEditor before = editorOf(condition);
    condition.attribute = attribute;
    const std::vector<MatchOperator> allowed = allowedOperators(attribute);
    if (std::ranges::find(allowed, condition.op) == allowed.end())
        condition.op = allowed.front();
    return fitted(std::move(condition), before);
}

Condition withOperator(Condition condition, MatchOperator op) {
    const ValueEditor before = editorOf(condition);
    condition.op = op;
    return fitted(std::move(condition), before);
}

QString storedValue(const Condition& condition) {
    const ValueEditor editor = editorOf(condition);
    const QString text = condition.value.trimmed();
    if (isNumber(editor)) {
        bool isLocal = false;
        const double number = QLocale().toDouble(text, &isLocal);
        if (parsedNumber(text))
            return text;
        return isLocal ? QString::number(number, 'g', 15) : condition.value;
    }
    if (editor == ValueEditor::date && !text.isEmpty()) {
        const QDate iso = parsedDay(text) ? QDate::fromString(text, u"yyyy-M-d") : QDate();
        const QDate day = iso.isValid() ? iso : localDay(text);
        return day.isValid() ? day.toString(Qt::ISODate) : condition.value;
    }
    return condition.value;
}

QString valueError(const Condition& condition) {
    const ValueEditor editor = editorOf(condition);
    const QString value = storedValue(condition);
    if (value.isEmpty())
        return {};
    if (isNumber(editor))
        return parsedNumber(value) ? QString() : needs(editor);
    if (editor == ValueEditor::date)
        return parsedDay(value) ? QString() : needs(editor);
    if (condition.op == MatchOperator::matchesRegex)
        if (const QRegularExpression pattern(value); !pattern.isValid())
            return Texts::tr("This pattern can’t be read: %1").arg(pattern.errorString());
    return {};
}

QString missingValue(const Condition& condition) {
    return condition.value.isEmpty() ? needs(editorOf(condition)) : QString();
}

} // namespace quillon
