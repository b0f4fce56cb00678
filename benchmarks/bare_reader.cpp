#include <QCoreApplication>
#include <QFile>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

/* Reads the document that its argument names, and does nothing with it. */
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QXmlDefaultHandler handler;
    QXmlSimpleReader reader;
    reader.setContentHandler(&handler);
    QFile inputFile(QFile::decodeName(argv[1]));
    QXmlInputSource inputSource(&inputFile);
    return reader.parse(inputSource) ? 0 : 1;
}
