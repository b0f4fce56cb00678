#include "configuration_document.h"

#include "temporary_home.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray configuration = "tavolux : { doc : { paperWidth = 42; }; };\n";

} // namespace

class EditorDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheKindByTheContent_data();
    void knowsTheKindByTheContent();
    void tellsWhatCannotBeEdited_data();
    void tellsWhatCannotBeEdited();
    void keepsWhatItHadWhenAFileCannotBeRead();
    void undoesAndRedoesBytes();
    void replacesInOneStep_data();
    void replacesInOneStep();
    void isModifiedWhileItsBytesAreOthers();
    void aChangeOfNothingIsNoStep();
    void tellsWhatWasChangedLast();
    void savesTheBytesAndNothingElse();
    void savesANewFileWithItsFolders();
    void noticesChangesOnDisk();
    void findsWhatIsWrong();
    void knowsWhichFindingsAreNew();
    void readsWhatAPrintReads();

private:
    void change(const QString &key, const QString &value)
    {
        document->apply(document->text().set(key, value), u"Change"_s);
    }

    const TemporaryHome home;
    const std::unique_ptr<ConfigurationDocument> document = std::make_unique<ConfigurationDocument>();
};

void EditorDocumentTest::knowsTheKindByTheContent_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("kind");
    QTest::newRow("cfg") << configuration << u"cfg"_s;
    QTest::newRow("nothing") << ""_ba << u"cfg"_s;
    QTest::newRow("a name with a tag in its value") << "t : { a = <b>; };"_ba << u"cfg"_s;
    QTest::newRow("xml") << "<tavolux/>"_ba << u"xml"_s;
    QTest::newRow("xml after blanks") << "\n  <tavolux/>"_ba << u"xml"_s;
    QTest::newRow("xml after the mark of UTF-8") << "\xEF\xBB\xBF<tavolux/>"_ba << u"xml"_s;
}

void EditorDocumentTest::knowsTheKindByTheContent()
{
    QFETCH(const QByteArray, bytes);
    QCOMPARE(document->open(home.writeFile(u"my.conf"_s, bytes)), QString());
    QTEST(document->text().kind(), "kind");
    QCOMPARE(document->text().text(), bytes);
}

void EditorDocumentTest::tellsWhatCannotBeEdited_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason"); // its beginning
    QTest::newRow("missing") << u"missing"_s << u"No such file or directory"_s;
    QTest::newRow("folder") << u"folder"_s << u"Not a regular file"_s;
    QTest::newRow("not well-formed") << u"open.xml"_s
                                     << u"line 2: this is no well-formed XML, so nothing in it is read: "_s;
    QTest::newRow("declaration") << u"declared.xml"_s << u"it does not begin with its root element"_s;
    QTest::newRow("deep") << u"deep.xml"_s << u"line 1: sections nest deeper than 256"_s;
    QTest::newRow("two bytes for each character") << u"wide.xml"_s << u"it is in UTF-16"_s;
}

void EditorDocumentTest::tellsWhatCannotBeEdited()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    QDir(home.path()).mkdir(u"folder"_s);
    home.writeFile(u"open.xml"_s, "<r>\n</s>\n");
    home.writeFile(u"declared.xml"_s, "<?xml version='1.0'?><r k='v'/>");
    home.writeFile(u"deep.xml"_s, QByteArray("<s>").repeated(300) + QByteArray("</s>").repeated(300));
    home.writeFile(u"wide.xml"_s, "\xFF\xFE<\0r\0/\0>\0"_ba);
    const QString found = document->open(home.filePath(name));
    QVERIFY2(found.startsWith(reason), qPrintable(found));
}

void EditorDocumentTest::keepsWhatItHadWhenAFileCannotBeRead()
{
    const QString file = home.writeFile(u"my.conf"_s, configuration);
    QCOMPARE(document->open(file), QString());
    change(u"tavolux.doc.paperWidth"_s, u"48"_s);
    QVERIFY(!document->open(home.filePath(u"missing"_s)).isEmpty());
    QCOMPARE(document->path(), file);
    QVERIFY(document->text().text().contains("48"));
    QVERIFY(document->undoStack().canUndo());
}

void EditorDocumentTest::undoesAndRedoesBytes()
{
    QCOMPARE(document->open(home.writeFile(u"my.conf"_s, configuration)), QString());
    change(u"tavolux.doc.paperWidth"_s, u"48"_s);
    change(u"tavolux.doc.printDate"_s, u"true"_s);
    document->undoStack().undo();
    QCOMPARE(document->text().text(), QByteArray(configuration).replace("42", "48"));
    document->undoStack().undo();
    QCOMPARE(document->text().text(), configuration);
    document->undoStack().redo();
    document->undoStack().redo();
    QCOMPARE(document->text().text(), "tavolux : { doc : { paperWidth = 48; printDate = true; }; };\n"_ba);
}

void EditorDocumentTest::replacesInOneStep_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("in the middle") << "t : { a = 1; b = 2; };"_ba
                                   << "t : { a = 3; c = 4; b = 2; };"_ba;
    QTest::newRow("repetitions that overlap") << "t : { a = 11; };"_ba
                                              << "t : { a = 111; };"_ba;
    QTest::newRow("shorter") << "t : { a = 111; };"_ba
                             << "t : { a = 11; };"_ba;
    QTest::newRow("all") << "t : { a = 1; };"_ba
                         << "x"_ba;
    QTest::newRow("from nothing") << ""_ba
                                  << "t : { };"_ba;
    QTest::newRow("to nothing") << "t : { };"_ba
                                << ""_ba;
}

void EditorDocumentTest::replacesInOneStep()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    QCOMPARE(document->open(home.writeFile(u"my.conf"_s, before)), QString());
    document->replace(after, u"All"_s);
    QCOMPARE(document->text().text(), after);
    QCOMPARE(document->undoStack().count(), 1);
    document->undoStack().undo();
    QCOMPARE(document->text().text(), before);
}

void EditorDocumentTest::isModifiedWhileItsBytesAreOthers()
{
    QCOMPARE(document->open(home.writeFile(u"my.conf"_s, configuration)), QString());
    QVERIFY(!document->isModified());
    change(u"tavolux.doc.paperWidth"_s, u"48"_s);
    QVERIFY(document->isModified());
    change(u"tavolux.doc.paperWidth"_s, u"42"_s); // typed, not undone
    QVERIFY(!document->isModified());
}

void EditorDocumentTest::aChangeOfNothingIsNoStep()
{
    QCOMPARE(document->open(home.writeFile(u"my.conf"_s, configuration)), QString());
    change(u"tavolux.doc.paperWidth"_s, u"42"_s);
    document->apply(document->text().set(u"tavolux.doc.paperWidth"_s, u"4;2"_s), u"Refused"_s);
    document->replace(configuration, u"Same"_s);
    QCOMPARE(document->undoStack().count(), 0);
}

void EditorDocumentTest::tellsWhatWasChangedLast()
{
    QCOMPARE(document->open(home.writeFile(u"my.conf"_s, "t : { d : { a = 1; b = 2; }; e : { c = 3; }; };")),
             QString());
    change(u"t.d.b"_s, u"4"_s);
    change(u"t.e.c"_s, u"5"_s);
    QCOMPARE(document->text().keyOf(document->entryChangedLast()), u"t.e.c"_s);
    document->undoStack().undo();
    document->undoStack().undo();
    QCOMPARE(document->text().keyOf(document->entryChangedLast()), u"t.d.b"_s);
}

void EditorDocumentTest::savesTheBytesAndNothingElse()
{
    const QByteArray untidy = "tavolux:{\r\n b=2;\ta= \"1\";# note\n;};s:{c=3;}; };";
    const QString file = home.writeFile(u"my.conf"_s, untidy);
    QCOMPARE(document->open(file), QString());
    change(u"tavolux.a"_s, u"9"_s);
    QVERIFY(document->save(file));
    QCOMPARE(fileBytes(file), QByteArray(untidy).replace("\"1\"", "\"9\""));
    QVERIFY(!document->isModified());
    document->undoStack().undo(); // which a save does not end
    QVERIFY(document->isModified());
    QCOMPARE(document->text().text(), untidy);
}

void EditorDocumentTest::savesANewFileWithItsFolders()
{
    const QString file = home.filePath(u"new/folder/my.conf"_s);
    document->begin(file, configuration);
    QVERIFY(document->isModified());
    QVERIFY(!document->changedOnDisk());
    QVERIFY(document->save(file));
    QCOMPARE(fileBytes(file), configuration);

    // Those that went since are not made again.
    QVERIFY(QDir(home.path()).rename(u"new"_s, u"old"_s));
    change(u"tavolux.doc.paperWidth"_s, u"48"_s);
    QCOMPARE(document->save(file).fault, u"No such file or directory"_s);
    QVERIFY(document->isModified());
}

void EditorDocumentTest::noticesChangesOnDisk()
{
    const QString file = home.writeFile(u"shared.conf"_s, configuration);
    QCOMPARE(document->open(file), QString());
    QVERIFY(!document->changedOnDisk());
    home.writeFile(u"shared.conf"_s, "other");
    QVERIFY(document->changedOnDisk());
    QVERIFY(QFile::remove(file));
    QVERIFY(document->changedOnDisk());
    home.makeFifo(u"shared.conf"_s);
    QVERIFY(document->changedOnDisk());

    document->begin(home.filePath(u"new.conf"_s), configuration);
    home.writeFile(u"new.conf"_s, configuration); // by somebody else
    QVERIFY(document->changedOnDisk());
}

void EditorDocumentTest::findsWhatIsWrong()
{
    QCOMPARE(document->open(home.writeFile(u"my.conf"_s, configuration)), QString());
    QVERIFY(document->findings().empty());
    QSignalSpy spy(document.get(), &ConfigurationDocument::findingsChanged);
    change(u"tavolux.doc.paperWidth"_s, u"wide"_s);
    QTRY_COMPARE(spy.count(), 1); // by itself
    QCOMPARE(document->findings().size(), std::size_t(1));
    QCOMPARE(document->findings().front().key, u"tavolux.doc.paperWidth"_s);
    document->undoStack().undo();
    QVERIFY(document->findings().empty()); // when asked, at once
}

void EditorDocumentTest::knowsWhichFindingsAreNew()
{
    const QString file = home.writeFile(u"my.conf"_s, "tavolux : { doc : { printDate = yes; }; };");
    QCOMPARE(document->open(file), QString());
    QCOMPARE(document->newFindings(), QStringList());
    change(u"tavolux.doc.printTime"_s, u"no"_s);
    QCOMPARE(document->newFindings(),
             QStringList{u"\"printTime\" is \"no\", neither \"true\" nor \"false\", so it is off"_s});
    QVERIFY(document->save(file));
    QCOMPARE(document->newFindings(), QStringList());
}

void EditorDocumentTest::readsWhatAPrintReads()
{
    QCOMPARE(document->open(home.writeFile(u"my.xml"_s, "<tavolux><doc paperWidth='42'/></tavolux>")),
             QString());
    QCOMPARE(document->configuration().getStrValue(u"tavolux.doc.paperWidth"_s), u"42"_s);
    change(u"tavolux.doc.paperWidth"_s, u"48"_s);
    QCOMPARE(document->configuration().getStrValue(u"tavolux.doc.paperWidth"_s), u"48"_s);
}

QTEST_GUILESS_MAIN(EditorDocumentTest)
#include "editor_document_test.moc"
