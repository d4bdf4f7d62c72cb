#include "assistant/ChatHistory.h"

#include "assistant/HelpQuestion.h"
#include "assistant/TokenEstimate.h"

#include <algorithm>

namespace quillon {

QList<AIMessage> earlierMessages(const std::vector<ChatTurn>& turns, const QUuid& questionID,
                                 ChatDepth depth) {
    QList<AIMessage> messages;
    auto next = std::ranges::find(turns, questionID, &ChatTurn::id) - turns.begin();
    for (; next >= 2 && depth.exchanges > 0; --next) {
        const ChatTurn& question = turns[std::size_t(next - 2)];
        const ChatTurn& answer = turns[std::size_t(next - 1)];
        if (!question.isUser || answer.isUser || answer.isError || isHelpQuestion(question.text))
            continue;
        const std::size_t tokens = estimatedTokens(question.text) + estimatedTokens(answer.text);
        if (tokens > depth.tokens)
            break;
        depth.tokens -= tokens;
        --depth.exchanges;
        messages.prepend({.role = AIMessage::Role::assistant, .text = answer.text});
        messages.prepend({.role = AIMessage::Role::user, .text = question.text});
    }
    return messages;
}

} // namespace quillon
