#pragma once

#include "store/JsonStream.h"

#include <QJsonValue>

#include <ostream>

namespace quillon {

/// Hands what has been built over to the stream once it is worth it, so that a long list never lies
/// in memory as a whole. To be called between items.
void passOn(JsonStream& json, std::ostream& out);

/// Ends the output.
void finish(JsonStream& json, std::ostream& out);

/// A list of texts.
void writeTexts(JsonStream& json, const QStringList& texts);

/// Any value but null; the keys of an object come in their alphabetical order.
void writeJson(JsonStream& json, const QJsonValue& value);

} // namespace quillon
