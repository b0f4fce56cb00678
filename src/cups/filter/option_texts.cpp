#include "option_texts.h"

#include <cctype>

using namespace Qt::StringLiterals;

namespace {

bool isBlank(char byte)
{
    return std::isspace(static_cast<unsigned char>(byte)) != 0;
}

/* Takes one word off the text, without its quotes and backslashes. */
QByteArray takeWord(QByteArrayView &text)
{
    QByteArray word;
    char quote = 0;
    while (!text.isEmpty() && (quote != 0 || !isBlank(text.front()))) {
        char byte = text.front();
        text = text.sliced(1);
        if (byte == '\\' && !text.isEmpty()) {
            byte = text.front();
            text = text.sliced(1);
        } else if (quote == 0 && (byte == '\'' || byte == '"')) {
            quote = byte;
            continue;
        } else if (byte == quote) {
            quote = 0;
            continue;
        }
        word += byte;
    }
    return word;
}

} // namespace

OptionTexts jobOptions(QByteArrayView text)
{
    OptionTexts options;
    while (!text.isEmpty()) {
        if (isBlank(text.front())) {
            text = text.sliced(1);
            continue;
        }
        const QString word = QString::fromUtf8(takeWord(text));
        const qsizetype equals = word.indexOf(u'=');
        if (equals >= 0)
            options.insert(word.first(equals).toLower(), word.sliced(equals + 1));
        else if (word.startsWith("no"_L1))
            options.insert(word.sliced(2).toLower(), u"false"_s);
        else
            options.insert(word.toLower(), u"true"_s);
    }
    return options;
}

OptionTexts ppdDefaults(QByteArrayView ppd)
{
    constexpr QByteArrayView prefix = "*Default";
    OptionTexts defaults;
    for (const QByteArray &line : ppd.toByteArray().split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (line.startsWith(prefix) && colon > prefix.size())
            defaults.insert(QString::fromLatin1(line.first(colon).sliced(prefix.size())).trimmed().toLower(),
                            QString::fromLatin1(line.sliced(colon + 1)).trimmed());
    }
    return defaults;
}
