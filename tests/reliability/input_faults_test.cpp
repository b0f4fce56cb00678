#include "print_run.h"

#include <QDir>
#include <QFile>
#include <QStringEncoder>
#include <QTest>

#include <arpa/inet.h>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype million = 1'000'000;

/* Tells whether a file was opened since, by whatever process. */
class OpenWatch
{
public:
    explicit OpenWatch(const QString &file)
    {
        if (inotify_add_watch(descriptor, QFile::encodeName(file).constData(), IN_OPEN) < 0)
            qFatal("cannot watch the file %s", qPrintable(file));
    }
    OpenWatch(const OpenWatch &) = delete;
    OpenWatch &operator=(const OpenWatch &) = delete;
    ~OpenWatch() { close(descriptor); }

    bool opened()
    {
        char events[4096];
        return read(descriptor, events, sizeof events) > 0;
    }

private:
    int descriptor = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
};

/* A port of this machine that tells whether somebody connected to it since. */
class ListeningPort
{
public:
    ListeningPort()
    {
        socklen_t size = sizeof address;
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        auto *const anyAddress = reinterpret_cast<sockaddr *>(&address);
        if (bind(descriptor, anyAddress, size) != 0 || listen(descriptor, 1) != 0
            || getsockname(descriptor, anyAddress, &size) != 0)
            qFatal("cannot listen on this machine");
    }
    ListeningPort(const ListeningPort &) = delete;
    ListeningPort &operator=(const ListeningPort &) = delete;
    ~ListeningPort() { close(descriptor); }

    QByteArray url() const
    {
        return "http://127.0.0.1:" + QByteArray::number(ntohs(address.sin_port)) + "/e";
    }

    bool connected()
    {
        const int connection = accept(descriptor, nullptr, nullptr);
        close(connection);
        return connection >= 0;
    }

    void connectOnce() const
    {
        const int client = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        QCOMPARE(connect(client, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
        close(client);
    }

private:
    int descriptor = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
};

QByteArray withDeclarations(const QByteArray &declarations, const QByteArray &text)
{
    return "<!DOCTYPE document [" + declarations + "]>" + text;
}

QByteArray entity(const QByteArray &name, const QByteArray &value)
{
    return "<!ENTITY " + name + " \"" + value + "\">";
}

/* Ten entities, each ten times the one before, all beginning with a text of ten characters. */
QByteArray tenfoldEntities()
{
    QByteArray declarations = entity("e0", "0123456789");
    for (char digit = '1'; digit <= '9'; ++digit) {
        const QByteArray previous = QByteArray("&e") + static_cast<char>(digit - 1) + ';';
        declarations += entity(QByteArray("e") + digit, previous.repeated(10));
    }
    return declarations;
}

QByteArray manyEntities(int count, const QByteArray &value)
{
    QByteArray declarations;
    for (int number = 0; number < count; ++number)
        declarations += entity("e" + QByteArray::number(number), value);
    return declarations;
}

} // namespace

class InputFaultsTest : public QObject
{
    Q_OBJECT

private:
    static void verifyPrints(const PrintRun &run, const QByteArray &printed)
    {
        const ProgramResult result = run.run();
        QCOMPARE(misbehaviour(result), QByteArray());
        QCOMPARE(result.standardOutput, QByteArray());
        QCOMPARE(run.printed(), printed);
    }

private Q_SLOTS:
    void nothingToRead_data()
    {
        QTest::addColumn<QString>("name"); // in the home directory
        QTest::newRow("missing") << u"missing.xml"_s;
        QTest::newRow("in a missing directory") << u"missing/document.xml"_s;
        QTest::newRow("directory") << u"."_s;
        QTest::newRow("unreadable") << u"unreadable.xml"_s;
        QTest::newRow("empty") << u"empty.xml"_s;
        QTest::newRow("white space only") << u"blank.xml"_s;
        QTest::newRow("byte order mark only") << u"mark.xml"_s;
        QTest::newRow("one byte") << u"byte.xml"_s;
    }

    void nothingToRead()
    {
        QFETCH(const QString, name);
        PrintRun run;
        const QString unreadable = run.home.writeFile(u"unreadable.xml"_s, document(item(1, "Pasta")));
        QFile::setPermissions(unreadable, {});
        run.home.writeFile(u"empty.xml"_s, {});
        run.home.writeFile(u"blank.xml"_s, " \n\t\r\n");
        run.home.writeFile(u"mark.xml"_s, "\xFE\xFF");
        run.home.writeFile(u"byte.xml"_s, "<");
        run.home.writeFile(u"printed.txt"_s, "of the document before");
        run.input = run.home.filePath(name);
        run.beforeStart = becomeOrdinaryUser;
        verifyPrints(run, {});
    }

    void emptyNameIsNoDocument()
    {
        PrintRun run;
        run.input.clear();
        verifyPrints(run, {});
    }

    void truncatedAtEveryByte()
    {
        const QString examples = QStringLiteral(TAVOLUX_SOURCE_DIR "/examples/");
        const QByteArray text = fileBytes(examples + "documents/full-receipt.xml"_L1);
        const PrintRun run;
        run.home.writeConfiguration(fileBytes(examples + "tavolux.conf"_L1));
        run.home.writeFile(u"document.xml"_s, text);
        QCOMPARE(misbehaviour(run.run()), QByteArray());
        const QByteArray whole = run.printed();
        QVERIFY(whole.endsWith("\x1Bp0")); // the drawer opens at the end

        const qsizetype end = text.lastIndexOf('>') + 1;
        qsizetype atLeast = 0;
        for (qsizetype length = 0; length < end; ++length) {
            run.home.writeFile(u"document.xml"_s, text.first(length));
            const ProgramResult result = run.run();
            QCOMPARE(misbehaviour(result), QByteArray());
            QCOMPARE(result.standardOutput, QByteArray());
            const QByteArray printed = run.printed();
            QVERIFY2(whole.startsWith(printed), printed.constData());
            QVERIFY2(printed.size() >= atLeast && printed.size() < whole.size(), printed.constData());
            atLeast = printed.size();
        }
        // Only the end of the document was missing.
        QCOMPARE(whole.first(atLeast) + "\x1Bp0", whole);
    }

    void noiseAlonePrintsNothing()
    {
        const PrintRun run;
        for (quint32 seed = 1; seed <= 100; ++seed) {
            run.home.writeFile(u"document.xml"_s, noise(seed));
            verifyPrints(run, {});
        }
    }

    void noiseEndsDocument()
    {
        const PrintRun run;
        const QByteArray head = "<document><method name=\"printPartialOrder\"/>" + item(1, "Pasta");
        for (quint32 seed = 1; seed <= 100; ++seed) {
            run.home.writeFile(u"document.xml"_s, head + '<' + noise(seed) + item(2, "Vino"));
            verifyPrints(run, row(1, "Pasta"));
        }
    }

    void huge_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("printed");
        const QByteArray first = item(1, "Pasta");
        const QByteArray last = item(2, "Vino");
        const auto nested = [](qsizetype levels) {
            return QByteArray("<a>").repeated(levels) + QByteArray("</a>").repeated(levels);
        };

        QTest::newRow("8,000 nested elements")
            << document(first + nested(8000) + last) << row(1, "Pasta") + row(2, "Vino");
        QTest::newRow("1,000,000 nested elements")
            << document(first + nested(million) + last) << row(1, "Pasta");
        QTest::newRow("1,000,000 nested elements without an end")
            << document(first + QByteArray("<a>").repeated(million)) << row(1, "Pasta");
        QTest::newRow("1,000,000 nested parentheses in a declaration") << withDeclarations(
            "<!ELEMENT a " + QByteArray(million, '(') + 'b' + QByteArray(million, ')') + '>', document(first))
                                                                       << QByteArray();
        QTest::newRow("attribute of 50 MB")
            << document(first + item(2, QByteArray(50 * million, 'x')) + item(3, "Vino"))
            << row(1, "Pasta") + row(2, QByteArray(14, 'x')) + row(3, "Vino");
        QTest::newRow("attribute of 50 MB without an end")
            << document(first + "<receipe name=\"" + QByteArray(50 * million, 'x')) << row(1, "Pasta");
        QTest::newRow("text of 50 MB")
            << document(first + QByteArray(50 * million, 'x') + last) << row(1, "Pasta") + row(2, "Vino");
        QTest::newRow("comment of 50 MB")
            << document(first + "<!--" + QByteArray(50 * million, 'x') + "-->" + last)
            << row(1, "Pasta") + row(2, "Vino");
        QTest::newRow("element name of 1 MB")
            << document(first + '<' + QByteArray(million, 'x') + "/>" + last)
            << row(1, "Pasta") + row(2, "Vino");

        QByteArray attributes;
        for (int number = 0; number < 100'000; ++number)
            attributes += " a" + QByteArray::number(number) + "=\"\"";
        QByteArray namespaces;
        for (int number = 0; number < 50'000; ++number)
            namespaces += " xmlns:a" + QByteArray::number(number) + "=\"u\"";
        QTest::newRow("50,000 namespaces of one element")
            << document(first + "<receipe number=\"2\" name=\"Vino\"" + namespaces + "/>")
            << row(1, "Pasta") + row(2, "Vino");
        QByteArray nestedNamespaces;
        for (int number = 0; number < 2000; ++number)
            nestedNamespaces += "<a xmlns:b" + QByteArray::number(number) + "='u' xmlns:c"
                + QByteArray::number(number) + "='v'>";
        QTest::newRow("two namespaces in each of 2,000 nested elements")
            << document(first + nestedNamespaces + QByteArray("</a>").repeated(2000) + last)
            << row(1, "Pasta") + row(2, "Vino");

        QTest::newRow("100,000 attributes")
            << document(first + "<receipe number=\"2\" name=\"Vino\"" + attributes + "/>")
            << row(1, "Pasta") + row(2, "Vino");
    }

    void huge()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QByteArray, printed);
        const PrintRun run;
        run.home.writeFile(u"document.xml"_s, text);
        verifyPrints(run, printed);
    }

    void smallStack_data()
    {
        QTest::addColumn<unsigned long>("kilobytes");
        for (const unsigned long kilobytes : {256UL, 1024UL, 8192UL})
            QTest::addRow("%lu KB", kilobytes) << kilobytes;
    }

    // As much of it as there is is used, and no more.
    void smallStack()
    {
        QFETCH(const unsigned long, kilobytes);
        PrintRun run;
        run.beforeStart = [kilobytes] { limitStack(kilobytes * 1024); };
        run.home.writeFile(u"document.xml"_s,
                           document(item(1, "Pasta") + QByteArray("<a>").repeated(200) + item(2, "Vino")
                                    + QByteArray("<a>").repeated(million)));
        verifyPrints(run, row(1, "Pasta") + row(2, "Vino"));
    }

    void entities_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("printed");
        const QByteArray first = item(1, "Pasta");
        const QByteArray last = item(2, "Vino");
        const auto references = [](qsizetype count) { return QByteArray("&e;").repeated(count); };
        const QByteArray longest(4096, 'x');

        QTest::newRow("an entity or two")
            << withDeclarations(entity("w", "Wein") + entity("e", "&w; &amp; Brot"), document(item(1, "&e;")))
            << row(1, "Wein & Brot");
        QTest::newRow("1,000 declared")
            << withDeclarations(manyEntities(1000, "x"), document(item(1, "&e999;"))) << row(1, "x");
        QTest::newRow("20,000 declared")
            << withDeclarations(manyEntities(20'000, "x"), document(first)) << QByteArray();
        QTest::newRow("one of 10,000,000 characters")
            << withDeclarations(entity("e", QByteArray(10 * million, 'x')), document(item(1, "&e;") + last))
            << row(1, QByteArray(14, 'x')) + row(2, "Vino");
        QTest::newRow("markup in an entity that nobody uses")
            << withDeclarations(entity("br", "<b/>"), document(first)) << row(1, "Pasta");
        QTest::newRow("an item in an entity")
            << withDeclarations(entity("e", "<receipe number='2' name='Vino'/>"), document(first + "&e;"))
            << row(1, "Pasta") + row(2, "Vino");
        QTest::newRow("1,000,000 nested elements in an entity") << withDeclarations(
            entity("e", QByteArray("<a>").repeated(million)), document(first + "&e;" + last))
                                                                << row(1, "Pasta");
        QTest::newRow("a predefined entity declared again")
            << withDeclarations(entity("lt", "&#38;#60;") + entity("gt", "<"), document(item(1, "&lt;&gt;")))
            << row(1, "<>");
        QTest::newRow("a percent sign in an entity")
            << withDeclarations(entity("e", "10&#37;"), document(item(1, "&e; off"))) << row(1, "10% off");
        QTest::newRow("half a reference, made whole by what follows")
            << withDeclarations(entity("e", longest) + entity("h", "&#38;e"),
                                document(first + QByteArray(1024, ' ') + item(2, "&h;;")))
            << row(1, "Pasta");

        QByteArray offers;
        QByteArray offersPrinted;
        for (int number = 0; number < 10'050; ++number) {
            offers += item(number % 1000, "&amp; 10% &lt;");
            offersPrinted += row(number % 1000, "& 10% <");
        }
        QTest::newRow("one declared, 10,050 items with predefined ones and percent signs")
            << withDeclarations(entity("e", "Vino"), document(offers + item(2, "&e;")))
            << offersPrinted + row(2, "Vino");

        QTest::newRow("10,000 references in an attribute")
            << withDeclarations(entity("e", longest),
                                document(first + item(2, references(10'000)) + item(3, "Vino")))
            << row(1, "Pasta") + row(2, longest.first(14)) + row(3, "Vino");
        QTest::newRow("1,000,000 references in an attribute")
            << withDeclarations(entity("e", longest), document(first + item(2, references(million)) + last))
            << row(1, "Pasta");
        QTest::newRow("1,000,000 references in text")
            << withDeclarations(entity("e", longest), document(first + references(million) + last))
            << row(1, "Pasta");
        QTest::newRow("1,000,000 references in a declaration") << withDeclarations(
            entity("% p", longest) + entity("e", QByteArray("%p;").repeated(million)), document(first))
                                                               << QByteArray();
        QTest::newRow("1,000,000 predefined references") << withDeclarations(
            entity("e", longest), document(first + item(2, QByteArray("&amp;").repeated(million))))
                                                         << row(1, "Pasta") + row(2, QByteArray(14, '&'));

        QTest::newRow("ten to the tenth characters in text")
            << withDeclarations(tenfoldEntities(), document(first + "&e9;" + last)) << QByteArray();
        QTest::newRow("ten to the tenth characters in an attribute")
            << withDeclarations(tenfoldEntities(), document(first + item(2, "&e9;"))) << QByteArray();
        QTest::newRow("entities of each other")
            << withDeclarations(entity("a", "&b;") + entity("b", "&a;"), document(first + "&a;" + last))
            << row(1, "Pasta");
    }

    void entities()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QByteArray, printed);
        const PrintRun run;
        run.home.writeFile(u"document.xml"_s, text);
        verifyPrints(run, printed);
    }

    // %FILE is an absolute path, %URL an address on this machine.
    void externalEntities_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("printed");
        const QByteArray first = item(1, "Pasta");
        const QByteArray last = item(2, "Vino");
        const QByteArray both = row(1, "Pasta") + row(2, "Vino");

        for (const QByteArray &system : {"secret.xml"_ba, "%FILE"_ba, "file://%FILE"_ba, "%URL"_ba}) {
            const QByteArray external = " SYSTEM \"" + system + '"';
            QTest::addRow("in text, %s", system.constData())
                << withDeclarations("<!ENTITY e" + external + '>', document(first + "&e;" + last)) << both;
            QTest::addRow("parameter entity, %s", system.constData())
                << withDeclarations("<!ENTITY % e" + external + ">%e;", document(first + last)) << both;
            QTest::addRow("document type, %s", system.constData())
                << "<!DOCTYPE document" + external + '>' + document(first + last) << both;
            // Not well-formed.
            QTest::addRow("in an attribute, %s", system.constData())
                << withDeclarations("<!ENTITY e" + external + '>', document(first + item(2, "&e;")))
                << row(1, "Pasta");
        }
    }

    void externalEntities()
    {
        QFETCH(QByteArray, text);
        QFETCH(const QByteArray, printed);
        PrintRun run;
        const QString secret = run.home.writeFile(u"secret.xml"_s, item(3, "Segreto"));
        ListeningPort port;
        run.home.writeFile(u"document.xml"_s,
                           text.replace("%FILE", secret.toUtf8()).replace("%URL", port.url()));
        run.beforeStart = inFolder(run.home.path());

        OpenWatch watch(secret);
        verifyPrints(run, printed);
        QVERIFY(!watch.opened());
        QVERIFY(!port.connected());

        // Both would have told.
        (void)fileBytes(secret);
        QVERIFY(watch.opened());
        port.connectOnce();
        QVERIFY(port.connected());
    }

    void encodings_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("name"); // in the output; nothing is printed when it is empty
        const auto text = [](const QString &encoding, const QString &name) -> QString {
            return "<?xml version=\"1.0\" encoding=\""_L1 + encoding
                + "\"?><document><method name=\"printPartialOrder\"/><receipe number=\"1\" name=\""_L1 + name
                + "\"/></document>"_L1;
        };
        const auto encoded = [](QStringConverter::Encoding encoding, const QString &characters,
                                QStringConverter::Flag flag = QStringConverter::Flag::Default) -> QByteArray {
            return QStringEncoder(encoding, flag)(characters);
        };
        const auto latin = [text](const QString &encoding, const QByteArray &name) {
            return text(encoding, QString::fromLatin1(name)).toLatin1();
        };
        using Convert = QStringConverter;
        const QString coffee = u"Caff\u00E8 2\u20AC"_s;
        const QByteArray coffeeBytes = "Caff\xC3\xA8 2\xE2\x82\xAC";

        QTest::newRow("UTF-8") << text(u"UTF-8"_s, coffee).toUtf8() << coffeeBytes;
        QTest::newRow("UTF-8 with byte order mark")
            << "\xEF\xBB\xBF" + text(u"UTF-8"_s, coffee).toUtf8() << coffeeBytes;
        QTest::newRow("UTF-16 with byte order mark, little end first")
            << encoded(Convert::Utf16LE, text(u"UTF-16"_s, coffee), Convert::Flag::WriteBom) << coffeeBytes;
        QTest::newRow("UTF-16 with byte order mark, big end first")
            << encoded(Convert::Utf16BE, text(u"UTF-16"_s, coffee), Convert::Flag::WriteBom) << coffeeBytes;
        QTest::newRow("UTF-32 with byte order mark")
            << encoded(Convert::Utf32LE, text(u"UTF-32"_s, coffee), Convert::Flag::WriteBom) << coffeeBytes;
        QTest::newRow("UTF-16 without byte order mark, little end first")
            << encoded(Convert::Utf16LE, text(u"UTF-16"_s, coffee)) << coffeeBytes;
        QTest::newRow("UTF-16 without byte order mark, big end first")
            << encoded(Convert::Utf16BE, text(u"UTF-16"_s, coffee)) << QByteArray();
        QTest::newRow("UTF-16 that ends in half a character")
            << encoded(Convert::Utf16LE, text(u"UTF-16"_s, coffee), Convert::Flag::WriteBom).chopped(1)
            << coffeeBytes;
        QTest::newRow("ISO-8859-15") << latin(u"ISO-8859-15"_s, "Caff\xE8 2\xA4") << coffeeBytes;
        QTest::newRow("windows-1252") << latin(u"windows-1252"_s, "Caff\xE8 2\x80") << coffeeBytes;
        QTest::newRow("ISO-8859-1") << latin(u"ISO-8859-1"_s, "Caff\xE8 2") << "Caff\xC3\xA8 2"_ba;

        QTest::newRow("ISO-8859-15 declared as UTF-8")
            << latin(u"UTF-8"_s, "Caff\xE8 2\xA4") << "Caff\xEF\xBF\xBD 2\xEF\xBF\xBD"_ba;
        QTest::newRow("UTF-8 declared as ISO-8859-1")
            << text(u"ISO-8859-1"_s, u"Caff\u00E8"_s).toUtf8() << "Caff\xC3\x83\xC2\xA8"_ba;
        QTest::newRow("UTF-8 declared as UTF-16") << text(u"UTF-16"_s, coffee).toUtf8() << QByteArray();
        QTest::newRow("UTF-16 declared as ISO-8859-15")
            << encoded(Convert::Utf16LE, text(u"ISO-8859-15"_s, coffee), Convert::Flag::WriteBom)
            << QByteArray();
        QTest::newRow("UTF-8 declared as unknown") << text(u"x-unknown"_s, coffee).toUtf8() << coffeeBytes;
        QTest::newRow("UTF-8 without a name declared") << text({}, coffee).toUtf8() << coffeeBytes;
        QTest::newRow("bytes that no UTF-8 has")
            << latin(u"UTF-8"_s, "a\xFF\xC0z") << "a\xEF\xBF\xBD\xEF\xBF\xBDz"_ba;
        QTest::newRow("NUL in a name") << latin(u"UTF-8"_s, "a\0z"_ba) << "a\0z"_ba;
        QTest::newRow("escape and bell in a name") << latin(u"UTF-8"_s, "a\x1Bp0\az") << "a\x1Bp0\az"_ba;
        QTest::newRow("escape and line feed as references")
            << latin(u"UTF-8"_s, "a&#27;p0&#10;z") << "a\x1Bp0\nz"_ba;
        QTest::newRow("NUL before the document")
            << QByteArray(1, '\0') + document(item(1, "Pasta")) << QByteArray();
    }

    void encodings()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QByteArray, name);
        const PrintRun run;
        run.home.writeFile(u"document.xml"_s, bytes);
        const auto blanks = 14 - QString::fromUtf8(name).size();
        verifyPrints(run, name.isEmpty() ? name : "  1 " + name + QByteArray(blanks, ' ') + '\n');
    }
};

QTEST_GUILESS_MAIN(InputFaultsTest)
#include "input_faults_test.moc"
