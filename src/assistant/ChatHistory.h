#pragma once

#include "assistant/AIMessage.h"
#include "assistant/ChatTurn.h"

#include <QList>

#include <vector>

namespace quillon {

/// How much of a conversation goes along with a question.
struct ChatDepth {
    std::size_t exchanges = 0; ///< questions with their answers
    std::size_t tokens = 0;    ///< of all of them together, by estimatedTokens()
};

/// What was said before a question, oldest first: each question that was answered, and its answer,
/// so that the roles take turns. Failures stay behind, and so does what Dobbin says of himself.
[[nodiscard]] QList<AIMessage> earlierMessages(const std::vector<ChatTurn>& turns,
                                               const QUuid& questionID, ChatDepth depth);

} // namespace quillon
