#include "quoted.h"

QString quoted(const QString &text)
{
    constexpr qsizetype longest = 50;
    QString shown = text.contains(u'\n') || text.contains(u'\r') ? text.simplified() : text;
    if (shown.size() > longest)
        shown = shown.first(longest) + u'…';
    for (QChar &character : shown)
        if (character.category() == QChar::Other_Control)
            character = QChar::ReplacementCharacter;
    return u'"' + shown + u'"';
}
