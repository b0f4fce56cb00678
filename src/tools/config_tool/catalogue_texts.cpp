#include "catalogue_texts.h"

#include <QDataStream>
#include <QFile>

namespace {

// A catalogue consists of a signature and sections: a kind, a length and as many bytes. The section of the
// messages consists of fields, most of which are built likewise.
constexpr int signatureSize = 16;
constexpr quint8 messagesSection = 0x69;
enum Field : quint8 { endOfMessage = 1, translation = 3, obsolete = 5 };

/* The bytes after a length of four bytes, the highest first; none when they are cut off. */
QByteArray countedBytes(QDataStream &stream)
{
    quint32 size = 0;
    stream >> size;
    const qint64 rest = stream.device()->bytesAvailable();
    QByteArray bytes;
    if (size == 0xFFFFFFFF) // an empty text
        return bytes;
    if (size > rest)
        stream.setStatus(QDataStream::ReadPastEnd);
    else
        bytes = stream.device()->read(size);
    return bytes;
}

QString textOf(const QByteArray &utf16)
{
    QDataStream stream(utf16);
    QString text;
    for (qsizetype unit = 0; unit < utf16.size() / 2; ++unit) {
        quint16 character = 0;
        stream >> character;
        text += QChar(character);
    }
    return text;
}

QStringList translationsIn(const QByteArray &messages)
{
    QStringList texts;
    QDataStream stream(messages);
    while (!stream.atEnd() && stream.status() == QDataStream::Ok) {
        quint8 field = 0;
        stream >> field;
        if (field == translation)
            texts.append(textOf(countedBytes(stream)));
        else if (field == obsolete)
            stream.skipRawData(4);
        else if (field != endOfMessage)
            countedBytes(stream);
    }
    return texts;
}

} // namespace

QStringList catalogueTexts(const QString &file)
{
    QFile catalogue(file);
    if (!catalogue.open(QIODevice::ReadOnly))
        return {};
    QDataStream stream(&catalogue);
    stream.skipRawData(signatureSize);
    while (!stream.atEnd() && stream.status() == QDataStream::Ok) {
        quint8 kind = 0;
        stream >> kind;
        const QByteArray section = countedBytes(stream);
        if (kind == messagesSection)
            return translationsIn(section);
    }
    return {};
}
