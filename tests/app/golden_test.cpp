#include "program_run.h"
#include "temporary_home.h"
#include "text_difference.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString goldens = QStringLiteral(TAVOLUX_GOLDENS);
const QString printouts = QStringLiteral(TAVOLUX_PRINTOUTS);

QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden | QDir::System,
                                  QDir::Name);
}

/* Every case as "document/case". */
QStringList cases()
{
    QStringList paths;
    for (const QString &document : entries(goldens))
        for (const QString &name : entries(goldens + u'/' + document))
            paths.append(document + u'/' + name);
    return paths;
}

} // namespace

/*
 * The printouts as they must be, byte for byte: each folder below a document's folder is a case, made of a
 * document, a configuration and what comes out.
 */
class GoldenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereAreCases() { QVERIFY(!cases().isEmpty()); }

    void everyDocumentHasCases_data()
    {
        QTest::addColumn<QString>("document");
        for (const QString &document : entries(goldens))
            QTest::addRow("%s", qPrintable(document)) << document;
    }

    void everyDocumentHasCases()
    {
        QFETCH(const QString, document);
        const QString folder = goldens + u'/' + document;
        QVERIFY2(QFileInfo(folder).isDir(), "a stray file");
        QVERIFY2(!entries(folder).isEmpty(), "a folder without cases");
    }

    void printout_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString &path : cases())
            QTest::addRow("%s", qPrintable(path)) << path;
    }

    void printout()
    {
        QFETCH(const QString, path);
        const QString folder = goldens + u'/' + path;
        QCOMPARE(entries(folder), QStringList({u"document.xml"_s, u"printed.txt"_s, u"tavolux.conf"_s}));

        const TemporaryHome home;
        home.writeConfiguration(fileBytes(folder + "/tavolux.conf"_L1));
        const QString output = home.filePath(u"printed.txt"_s);
        const ProgramResult run =
            runProgram(QStringLiteral(TAVOLUX_PRINTER), {folder + "/document.xml"_L1, output},
                       {{u"HOME"_s, home.path()}, {u"LC_ALL"_s, u"C.UTF-8"_s}, {u"LANGUAGE"_s, {}}});
        QVERIFY(!run.crashed);
        QCOMPARE(run.exitStatus, 0);
        QCOMPARE(run.standardError, QByteArray());
        // The one thing there can be to say when configuration and output are in their places.
        if (!run.standardOutput.isEmpty())
            QCOMPARE(run.standardOutput, "File Format Not Supported\n");

        const QByteArray expected = fileBytes(folder + "/printed.txt"_L1);
        const QByteArray printed = fileBytes(output);
        if (printed == expected)
            return;
        const QString kept = printouts + u'/' + path + "/printed.txt"_L1;
        QVERIFY(QDir().mkpath(QFileInfo(kept).path()));
        QFile file(kept);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(printed), printed.size());
        QFAIL(qPrintable("the printout, kept as "_L1 + kept + ", differs:\n"_L1
                         + QString::fromUtf8(textDifference(expected, printed))));
    }
};

QTEST_GUILESS_MAIN(GoldenTest)
#include "golden_test.moc"
