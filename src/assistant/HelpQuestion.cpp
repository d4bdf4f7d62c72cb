#include "assistant/HelpQuestion.h"

#include <QRegularExpression>

namespace quillon {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView help =
    u"I'm Dobbin, Quillon's filing assistant. Ask me in plain English and I can:\n\n"
    "• Find files: “Where did my invoice go?” I'll show where it went, with Reveal and "
    "Undo.\n"
    "• Explain what happened: “Why wasn't Setup.dmg trashed?” If rule order is the "
    "problem, I'll offer to fix it.\n"
    "• Write rules: “Move PDFs from amazon.com to Receipts.” I'll set it up for you to "
    "check before saving.\n"
    "• Make changes: turn rules on or off, reorder them, or run a folder now, each with"
    " a Do it button.\n"
    "• Answer how-to questions about Quillon, like “How do I undo something?”\n\n"
    "I can also sort and rename files by what's inside them: add a “Dobbin says it” "
    "condition or a “Rename with Dobbin” action to any rule.";

} // namespace

bool isHelpQuestion(const QString& question) {
    static const QRegularExpression pattern(
        u"what (else )?can (you|dobbin) (do|help)|what (do|does) (you|dobbin) do|"
        "how (can|do) (you|dobbin) help|how (do|can) i use (you|dobbin)|"
        "what (are|is) (you|dobbin) (for|able)"_s);
    return pattern.match(question.toLower()).hasMatch();
}

QString helpAnswer() {
    return help.toString();
}

} // namespace quillon
