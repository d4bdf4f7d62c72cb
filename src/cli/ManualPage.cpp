#include "cli/ManualPage.h"

#include "cli/SyntaxOutline.h"

#include <QString>

namespace quillon {
namespace {

/// Text as the typesetter wants it.
std::string typeset(std::string_view text) {
    std::string result;
    for (const char32_t c : QString::fromUtf8(text).toStdU32String()) {
        if (c == U'\\')
            result += "\\e";
        else if (c == U'-')
            result += "\\-";
        else if (c == U'\'')
            result += "\\(aq";
        else if (c == U'“' || c == U'”')
            result += c == U'“' ? "\\(lq" : "\\(rq";
        else if (c < 0x80)
            result += static_cast<char>(c);
        else
            result += "\\[u" +
                      QString::number(c, 16).toUpper().rightJustified(4, u'0').toStdString() + ']';
    }
    // A line that begins with a dot would be a command.
    return (result.starts_with('.') ? "\\&" : "") + result;
}

std::string heading(const std::string& page, std::string_view description) {
    const std::string capitals = QString::fromStdString(page).toUpper().toStdString();
    return ".TH " + typeset(capitals) + " 1 \"\" \"quillon " QUILLON_VERSION "\" \"Quillon\"\n" +
           ".SH NAME\n" + typeset(page) + " \\- " + typeset(description) + '\n';
}

std::string placeholder(const ValueOutline& value) {
    std::string text = "\\fI" + typeset(value.name) + "\\fR";
    if (value.isMany)
        text += " ...";
    return value.isRequired ? text : '[' + text + ']';
}

std::string synopsis(const VerbOutline& outline) {
    std::string text = ".B quillon " + typeset(outline.verb->name) + "\n";
    for (const ValueOutline& argument : outline.arguments)
        text += placeholder(argument) + '\n';
    for (const OptionOutline& option : outline.options) {
        std::string words = "\\fB" + typeset(option.name) + "\\fR";
        if (!option.value.name.empty())
            words += " \\fI" + typeset(option.value.name) + "\\fR";
        text += (option.value.isRequired ? words : '[' + words + ']') + '\n';
    }
    return text;
}

std::string entries(const VerbOutline& outline) {
    std::string text;
    for (std::size_t i = 0; i < outline.arguments.size(); ++i)
        text += ".TP\n\\fI" + typeset(outline.arguments[i].name) + "\\fR\n" +
                typeset(outline.argumentDescriptions[i]) + ".\n";
    for (const OptionOutline& option : outline.options)
        text += ".TP\n\\fB" + typeset(option.name) + "\\fR" +
                (option.value.name.empty() ? "" : " \\fI" + typeset(option.value.name) + "\\fR") +
                '\n' + typeset(option.description) + ".\n";
    return text;
}

std::string example(std::string_view lines) {
    std::string text = ".nf\n";
    for (const std::string& line : CLI::detail::split(std::string(lines), '\n'))
        text += typeset(line) + '\n';
    return text + ".fi\n";
}

std::string ending() {
    return ".SH EXIT STATUS\n0 done, 1 some file failed, 2 wrong usage, 3 input can\\(aqt be "
           "read,\n"
           "4 another Quillon is at work and can\\(aqt be reached.\n";
}

/// "quillon-folder(1)" of every page.
std::string seeAlso(const std::string& self) {
    std::string text = ".SH SEE ALSO\n";
    const std::vector<std::string> names = manualPageNames();
    for (const std::string& name : names)
        if (name != self)
            text += ".BR " + typeset(name) + " (1)" + (name == names.back() ? "" : ",") + '\n';
    return text;
}

std::string verbPage(const Verb& verb) {
    const VerbOutline outline = outlineOf(verb);
    const std::string page = "quillon-" + std::string(verb.name);
    return heading(page, verb.description) + ".SH SYNOPSIS\n" + synopsis(outline) +
           ".SH OPTIONS\n" + entries(outline) + ".SH EXAMPLE\n" + example(verb.example) + ending() +
           ".SH SEE ALSO\n.BR quillon (1)\n";
}

std::string nounPage(const Verb& noun) {
    const std::string name(noun.name);
    std::string synopses;
    std::string sections;
    for (const std::string& word : wordsBelow(noun.name)) {
        const Verb& verb = *findVerb(name + ' ' + word);
        const VerbOutline outline = outlineOf(verb);
        synopses += (synopses.empty() ? "" : ".br\n") + synopsis(outline);
        sections += ".SS " + typeset(name + ' ' + word) + '\n' + typeset(verb.description) + ".\n" +
                    entries(outline) + ".PP\nExample:\n" + example(verb.example);
    }
    return heading("quillon-" + name, noun.description) + ".SH SYNOPSIS\n" + synopses +
           ".SH COMMANDS\n" + sections + ending() + ".SH SEE ALSO\n.BR quillon (1)\n";
}

std::string wholePage() {
    std::string commands;
    for (const std::string& word : wordsBelow({}))
        commands +=
            ".TP\n\\fB" + typeset(word) + "\\fR\n" + typeset(findVerb(word)->description) + ".\n";
    return heading("quillon", "keep folders tidy by rules") +
           ".SH SYNOPSIS\n.B quillon\n\\fICOMMAND\\fR\n[\\fIOPTIONS\\fR]\n.SH DESCRIPTION\n"
           "Files, renames and tags what lands in folders, by rules, and can take everything "
           "back.\n"
           ".SH COMMANDS\n" +
           commands + ending() + seeAlso("quillon");
}

} // namespace

std::vector<std::string> manualPageNames() {
    std::vector<std::string> names{"quillon"};
    for (const std::string& word : wordsBelow({}))
        names.push_back("quillon-" + word);
    return names;
}

std::string manualPage(const std::string& verb) {
    if (verb.empty())
        return wholePage();
    return isNoun(verb) ? nounPage(*findVerb(verb)) : verbPage(*findVerb(verb));
}

} // namespace quillon
