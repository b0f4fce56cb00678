#include "file_name.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr char16_t carrier = 0xDC00; // of a byte, which is added to it

// Of a character that is no second half of a pair.
bool carriesByte(QChar character)
{
    return character >= QChar(carrier + 0x80) && character <= QChar(carrier + 0xFF);
}

bool isSecondOfPair(const QString &text, qsizetype index)
{
    return index > 0 && text[index - 1].isHighSurrogate();
}

// How many bytes a character takes that begins with this one.
qsizetype characterLength(char first)
{
    const auto byte = static_cast<unsigned char>(first);
    return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

QString fromValidUtf8(QByteArrayView bytes)
{
    // A byte order mark is part of a name like any other character.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder(bytes);
}

} // namespace

QString fileNameFromBytes(QByteArrayView bytes)
{
    if (bytes.isValidUtf8())
        return fromValidUtf8(bytes);
    QString name;
    while (!bytes.isEmpty()) {
        const QByteArrayView character = bytes.first(std::min(characterLength(bytes.front()), bytes.size()));
        if (character.isValidUtf8()) {
            name += fromValidUtf8(character);
            bytes = bytes.sliced(character.size());
        } else {
            name += QChar(carrier + static_cast<unsigned char>(bytes.front()));
            bytes = bytes.sliced(1);
        }
    }
    return name;
}

QByteArray fileNameBytes(const QString &name)
{
    QByteArray bytes;
    qsizetype textBegin = 0; // of the text that is not encoded yet
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (!carriesByte(name[i]) || isSecondOfPair(name, i))
            continue;
        bytes += QStringView(name).sliced(textBegin, i - textBegin).toUtf8();
        bytes += static_cast<char>(name[i].unicode() - carrier);
        textBegin = i + 1;
    }
    return bytes + QStringView(name).sliced(textBegin).toUtf8();
}

QStringList commandLineArguments(int argc, const char *const argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(fileNameFromBytes(argv[i]));
    return arguments;
}

QByteArray shownFileName(const QString &name)
{
    QString shown = name;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        if (isSecondOfPair(shown, i))
            continue;
        const QChar character = carriesByte(shown[i]) ? QChar(shown[i].unicode() - carrier) : shown[i];
        if (character.category() == QChar::Other_Control)
            shown[i] = u'?';
    }
    return fileNameBytes(shown);
}
