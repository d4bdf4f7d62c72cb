#pragma once

#include "support/ModelServer.h"

namespace quillon::testing {

/// Makes the server play a model on this computer that has an answer for everything Quillon asks:
/// receipts are known by their names, sentences become one rule, questions get one answer with a
/// change to go with it.
void playSampleModel(ModelServer& server);

} // namespace quillon::testing
