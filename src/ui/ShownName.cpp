#include "ui/ShownName.h"

namespace quillon {
namespace {

bool turnsText(char16_t letter) {
    return (letter >= u'\u202A' && letter <= u'\u202E') ||
           (letter >= u'\u2066' && letter <= u'\u2069');
}

bool breaksLine(QChar letter) {
    return letter.category() == QChar::Other_Control ||
           letter.category() == QChar::Separator_Line ||
           letter.category() == QChar::Separator_Paragraph;
}

} // namespace

QString shownName(QString name) {
    for (QChar& letter : name)
        if (breaksLine(letter) || turnsText(letter.unicode()))
            letter = QChar::ReplacementCharacter;
    return name;
}

} // namespace quillon
