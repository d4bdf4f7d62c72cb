#include "ui/editor/RuleEditor.h"

namespace quillon {

RuleEditor::RuleEditor(AppStore& store, QObject* parent) : QObject(parent), store_(store) {}

} // namespace quillon
