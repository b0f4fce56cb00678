#include "configuration_text.h"

#include "config.h"
#include "read_file.h"

#include <QDir>
#include <QDirIterator>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using libconfig::ConfigurationText;
using libconfig::TextChange;
using Entry = ConfigurationText::Entry;

namespace {

/* What two trees are compared by: everything but where it stands. */
QStringList meaning(const ConfigurationText &text, int without = -1)
{
    QStringList lines;
    for (int i = 0; i < static_cast<int>(text.entries().size()); ++i) {
        int ancestor = i;
        while (ancestor > 0 && ancestor != without)
            ancestor = text.entry(ancestor).parent;
        if (without > 0 && ancestor == without)
            continue;
        const Entry &entry = text.entry(i);
        lines << text.keyOf(i) + (entry.isSetting() ? u" = "_s + entry.value : u" {"_s);
    }
    return lines;
}

QString storeLookup(const ConfigurationText &text, const QString &key)
{
    libconfig::Config store;
    store.readText(text.text(), text.kind());
    return store.lookup(key);
}

ConfigurationText changed(const ConfigurationText &text, const TextChange &change)
{
    return ConfigurationText(change.appliedTo(text.text()), text.kind());
}

} // namespace

class ConfigurationTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesOneValue_data();
    void changesOneValue();
    void addsASetting_data();
    void addsASetting();
    void unsetsASetting_data();
    void unsetsASetting();
    void refusesWhatWouldBeReadBackDifferently_data();
    void refusesWhatWouldBeReadBackDifferently();
    void refusesToRemoveWhatHasNoPlainEnd_data();
    void refusesToRemoveWhatHasNoPlainEnd();
    void findsTheSettingThatALookupFinds_data();
    void findsTheSettingThatALookupFinds();
    void everyChangeOfEveryFileTouchesNothingElse_data();
    void everyChangeOfEveryFileTouchesNothingElse();
    void saysWhyATextCannotBeChanged();
    void aChangeIsUndoneByItsReverse();
};

void ConfigurationTextTest::changesOneValue_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("a number") << "cfg"
                              << "t:{d : {\n  w = 40 ;\n  x=1;};};"_ba
                              << "t.d.w"
                              << "42"
                              << "t:{d : {\n  w = 42 ;\n  x=1;};};"_ba;
    QTest::newRow("in quotes, which stay") << "cfg"
                                           << "t : { f = \"/\"; };"_ba
                                           << "t.f"
                                           << "it"
                                           << "t : { f = \"it\"; };"_ba;
    QTest::newRow("blanks at the ends need quotes") << "cfg"
                                                    << "t : { f = a; };"_ba
                                                    << "t.f"
                                                    << " x "
                                                    << "t : { f = \" x \"; };"_ba;
    QTest::newRow("an empty value") << "cfg"
                                    << "t : { f = a; };"_ba
                                    << "t.f"
                                    << ""
                                    << "t : { f = \"\"; };"_ba;
    QTest::newRow("the value was empty") << "cfg"
                                         << "t : { f = ; };"_ba
                                         << "t.f"
                                         << "a"
                                         << "t : { f = a; };"_ba;
    QTest::newRow("quotes in the middle go with the old value") << "cfg"
                                                                << "t : { f = a\"b\"c; };"_ba
                                                                << "t.f"
                                                                << "d"
                                                                << "t : { f = d; };"_ba;
    QTest::newRow("without a semicolon at the end of the file") << "cfg"
                                                                << "t : { f = a\n"_ba
                                                                << "t.f"
                                                                << "b"
                                                                << "t : { f = b\n"_ba;
    QTest::newRow("Latin-1 is one byte") << "cfg"
                                         << "t : { f = a; };"_ba
                                         << "t.f" << u"caf\u00e9"_s << "t : { f = caf\xe9; };"_ba;
    QTest::newRow("of two in one section the last") << "cfg"
                                                    << "t : { f = a; f = b; };"_ba
                                                    << "t.f"
                                                    << "c"
                                                    << "t : { f = a; f = c; };"_ba;
    QTest::newRow("of two sections the first with a value") << "cfg"
                                                            << "t : { d : { f = ; }; d : { f = b; }; };"_ba
                                                            << "t.d.f"
                                                            << "c"
                                                            << "t : { d : { f = ; }; d : { f = c; }; };"_ba;
    QTest::newRow("remarks between colon and brace stay") << "cfg"
                                                          << "t : the till { f = a; };"_ba
                                                          << "t.f"
                                                          << "b"
                                                          << "t : the till { f = b; };"_ba;
    QTest::newRow("what follows the closing brace of the file stays") << "cfg"
                                                                      << "t : { f = a; }; } ; f = 1;"_ba
                                                                      << "t.f"
                                                                      << "b"
                                                                      << "t : { f = b; }; } ; f = 1;"_ba;
    QTest::newRow("line ends of two characters") << "cfg"
                                                 << "t : {\r\n  f = a;\r\n};\r\n"_ba
                                                 << "t.f"
                                                 << "b"
                                                 << "t : {\r\n  f = b;\r\n};\r\n"_ba;

    QTest::newRow("xml: an attribute") << "xml"
                                       << "<t>\n<!-- <d w='0'/> --><d w = '40' x=\"1\"/></t>"_ba
                                       << "t.d.w"
                                       << "42"
                                       << "<t>\n<!-- <d w='0'/> --><d w = '42' x=\"1\"/></t>"_ba;
    QTest::newRow("xml: the other quotes and a greater-than sign in a value")
        << "xml"
        << "<t a='\">'><d w='1'/></t>"_ba
        << "t.d.w"
        << "2"
        << "<t a='\">'><d w='2'/></t>"_ba;
    QTest::newRow("xml: what means something is escaped")
        << "xml"
        << "<t><d w=\"\"/></t>"_ba
        << "t.d.w"
        << "a<b&\"c'\n"
        << "<t><d w=\"a&lt;b&amp;&quot;c&apos;&#10;\"/></t>"_ba;
    QTest::newRow("xml: characters of two bytes before it")
        << "xml" << u"<t n='caf\u00e9'><d w='1'/></t>"_s.toUtf8() << "t.d.w" << u"\u00e9"_s
        << u"<t n='caf\u00e9'><d w='\u00e9'/></t>"_s.toUtf8();
    QTest::newRow("xml: text and other markup between elements")
        << "xml"
        << "<t>a='1'<![CDATA[<d w='0'/>]]><?p <d?><e></e><d w='1'></d></t>"_ba
        << "t.d.w"
        << "2"
        << "<t>a='1'<![CDATA[<d w='0'/>]]><?p <d?><e></e><d w='2'></d></t>"_ba;
}

void ConfigurationTextTest::changesOneValue()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, text);
    QFETCH(QString, key);
    QFETCH(QString, value);
    const ConfigurationText configuration(text, kind);
    const TextChange change = configuration.set(key, value);
    QCOMPARE(change.fault, QString());
    QTEST(change.appliedTo(text), "expected");
    QCOMPARE(storeLookup(changed(configuration, change), key), value);
}

void ConfigurationTextTest::addsASetting_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("on a line of its own, indented as the others")
        << "cfg"
        << "t : {\n\td : {\n\t\tw = 1;\n\t};\n};\n"_ba
        << "t.d.x"
        << "2"
        << "t : {\n\td : {\n\t\tw = 1;\n\t\tx = 2;\n\t};\n};\n"_ba;
    QTest::newRow("on the same line, as the others") << "cfg"
                                                     << "t : { d : { w = 1; }; };"_ba
                                                     << "t.d.x"
                                                     << "2"
                                                     << "t : { d : { w = 1; x = 2; }; };"_ba;
    QTest::newRow("without blanks, as the others") << "cfg"
                                                   << "t:{d:{w=1;};};"_ba
                                                   << "t.d.x"
                                                   << "2"
                                                   << "t:{d:{w=1;x = 2;};};"_ba;
    QTest::newRow("before text that belongs to nothing") << "cfg"
                                                         << "t : {\n  w = 1;\n  # the end\n};\n"_ba
                                                         << "t.x"
                                                         << "2"
                                                         << "t : {\n  w = 1;\n  x = 2;\n  # the end\n};\n"_ba;
    QTest::newRow("with line ends of two characters") << "cfg"
                                                      << "t : {\r\n  w = 1;\r\n};\r\n"_ba
                                                      << "t.x"
                                                      << "2"
                                                      << "t : {\r\n  w = 1;\r\n  x = 2;\r\n};\r\n"_ba;
    QTest::newRow("the semicolon that is missing before it") << "cfg"
                                                             << "t : {\n  w = 1\n"_ba
                                                             << "t.x"
                                                             << "2"
                                                             << "t : {\n  w = 1;\n  x = 2;\n"_ba;
    QTest::newRow("in an empty section of two lines")
        << "cfg"
        << "t : {\n  d : {\n  };\n  e : { a = 1; };\n};\n"_ba
        << "t.d.x"
        << "2"
        << "t : {\n  d : {\n    x = 2;\n  };\n  e : { a = 1; };\n};\n"_ba;
    QTest::newRow("in an empty section of one line") << "cfg"
                                                     << "t : { d : {}; e : { a = 1; }; };"_ba
                                                     << "t.d.x"
                                                     << "2"
                                                     << "t : { d : { x = 2; }; e : { a = 1; }; };"_ba;
    QTest::newRow("after the last section, in the section around it")
        << "cfg"
        << "t : {\n  d : {\n    a = 1;\n  };\n\n  e : {\n    a = 1;\n  };\n};\n"_ba
        << "t.x"
        << "2"
        << "t : {\n  d : {\n    a = 1;\n  };\n\n  e : {\n    a = 1;\n  };\n  x = 2;\n};\n"_ba;
    QTest::newRow("text with blanks is quoted") << "cfg"
                                                << "t : { a = 1; };"_ba
                                                << "t.x"
                                                << "a b"
                                                << "t : { a = 1; x = \"a b\"; };"_ba;
    QTest::newRow("an empty value is quoted") << "cfg"
                                              << "t : { a = 1; };"_ba
                                              << "t.x"
                                              << ""
                                              << "t : { a = 1; x = \"\"; };"_ba;
    QTest::newRow("a section, with the empty line that the others have")
        << "cfg"
        << "t : {\n  d : {\n    a = 1;\n  };\n\n  e : {\n    a = 1;\n  };\n};\n"_ba
        << "t.f.x"
        << "2"
        << "t : {\n  d : {\n    a = 1;\n  };\n\n  e : {\n    a = 1;\n  };\n\n  f : {\n    x = 2;\n  };\n};\n"_ba;
    QTest::newRow("a section on one line, as the others are")
        << "cfg"
        << "t : {\n  d : { a = 1; };\n};\n"_ba
        << "t.f.x"
        << "2"
        << "t : {\n  d : { a = 1; };\n  f : { x = 2; };\n};\n"_ba;
    QTest::newRow("a section in a new section")
        << "cfg"
        << "t : {\n  a = 1;\n};\n"_ba
        << "t.printers.till.model"
        << "x"
        << "t : {\n  a = 1;\n  printers : {\n    till : {\n      model = "
           "x;\n    };\n  };\n};\n"_ba;
    QTest::newRow("all in an empty file") << "cfg"
                                          << ""_ba
                                          << "t.d.x"
                                          << "2"
                                          << "t : {\n    d : {\n        x = 2;\n    };\n};\n"_ba;
    QTest::newRow("a first section that is empty") << "cfg"
                                                   << "t : { };\n"_ba
                                                   << "t.x"
                                                   << "2"
                                                   << "t : { x = 2; };\n"_ba;

    QTest::newRow("xml: an attribute on the same line") << "xml"
                                                        << "<t><d w='1'/></t>"_ba
                                                        << "t.d.x"
                                                        << "2"
                                                        << "<t><d w='1' x=\"2\"/></t>"_ba;
    QTest::newRow("xml: an attribute on its own line") << "xml"
                                                       << "<t>\n  <d\n    w='1'\n  />\n</t>"_ba
                                                       << "t.d.x"
                                                       << "2"
                                                       << "<t>\n  <d\n    w='1'\n    x=\"2\"\n  />\n</t>"_ba;
    QTest::newRow("xml: the first attribute") << "xml"
                                              << "<t><d/></t>"_ba
                                              << "t.d.x"
                                              << "2"
                                              << "<t><d x=\"2\"/></t>"_ba;
    QTest::newRow("xml: an element after the last") << "xml"
                                                    << "<t>\n  <d w='1'/>\n</t>"_ba
                                                    << "t.e.x"
                                                    << "2"
                                                    << "<t>\n  <d w='1'/>\n  <e x=\"2\"/>\n</t>"_ba;
    QTest::newRow("xml: an element in an empty one") << "xml"
                                                     << "<t/>\n"_ba
                                                     << "t.e.x"
                                                     << "2"
                                                     << "<t>\n    <e x=\"2\"/>\n</t>\n"_ba;
    QTest::newRow("xml: an element in one with two tags") << "xml"
                                                          << "<t></t>"_ba
                                                          << "t.e.x"
                                                          << "2"
                                                          << "<t>\n    <e x=\"2\"/>\n</t>"_ba;
    QTest::newRow("xml: an element in a new element")
        << "xml"
        << "<t>\n  <d w='1'/>\n</t>"_ba
        << "t.e.f.x"
        << "2"
        << "<t>\n  <d w='1'/>\n  <e>\n    <f x=\"2\"/>\n  </e>\n</t>"_ba;
}

void ConfigurationTextTest::addsASetting()
{
    changesOneValue();
}

void ConfigurationTextTest::unsetsASetting_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("with its line") << "cfg"
                                   << "t : {\n  w = 1;\n  x = 2;\t\n  y = 3;\n};\n"_ba
                                   << "t : {\n  w = 1;\n  y = 3;\n};\n"_ba;
    QTest::newRow("from a line with others") << "cfg"
                                             << "t : { w = 1; x = 2; y = 3; };"_ba
                                             << "t : { w = 1; y = 3; };"_ba;
    QTest::newRow("at the begin of a line") << "cfg"
                                            << "t : {\n  x = 2; y = 3;\n};"_ba
                                            << "t : {\n  y = 3;\n};"_ba;
    QTest::newRow("at the end of a line") << "cfg"
                                          << "t : {\n  w = 1; x = 2;\n};"_ba
                                          << "t : {\n  w = 1;\n};"_ba;
    QTest::newRow("not what stands in its line without belonging to it")
        << "cfg"
        << "t : {\n  w = 1;\n  x = 2; remark }; "_ba
        << "t : {\n  w = 1;\n  remark }; "_ba;
    QTest::newRow("with line ends of two characters") << "cfg"
                                                      << "t : {\r\n  x = 2;\r\n  y = 3;\r\n};"_ba
                                                      << "t : {\r\n  y = 3;\r\n};"_ba;
    QTest::newRow("a section") << "cfg"
                               << "t : {\n  w = 1;\n  x : {\n    a = 1;\n  };\n};\n"_ba
                               << "t : {\n  w = 1;\n};\n"_ba;
    QTest::newRow("xml: an attribute") << "xml"
                                       << "<t w='1' x='2' y='3'/>"_ba
                                       << "<t w='1' y='3'/>"_ba;
    QTest::newRow("xml: an attribute in its line") << "xml"
                                                   << "<t\n  w='1'\n  x='2'/>"_ba
                                                   << "<t\n  w='1'/>"_ba;
    QTest::newRow("xml: an element in its line") << "xml"
                                                 << "<t>\n  <x a='1'/>\n  <y/>\n</t>"_ba
                                                 << "<t>\n  <y/>\n</t>"_ba;
    QTest::newRow("xml: an element with others inside") << "xml"
                                                        << "<t><x><z/></x><y/></t>"_ba
                                                        << "<t><y/></t>"_ba;
}

void ConfigurationTextTest::unsetsASetting()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, text);
    const ConfigurationText configuration(text, kind);
    const std::optional<int> setting = configuration.settingOf(u"t.x"_s);
    const std::optional<int> index = setting ? setting : configuration.sectionOf(u"t.x"_s);
    QVERIFY(index);
    const TextChange change = configuration.remove(*index);
    QCOMPARE(change.fault, QString());
    QTEST(change.appliedTo(text), "expected");
}

void ConfigurationTextTest::refusesWhatWouldBeReadBackDifferently_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("fault");

    QTest::newRow("a semicolon") << "cfg"
                                 << "t : { a = 1; };"_ba
                                 << "t.a"
                                 << "b;c"
                                 << "a value cannot have a semicolon: \"b;c\"";
    QTest::newRow("a double quote") << "cfg"
                                    << "t : { a = 1; };"_ba
                                    << "t.b"
                                    << "b\"c"
                                    << "a value cannot have a double quote: \"b\"c\"";
    QTest::newRow("beyond Latin-1")
        << "cfg"
        << "t : { a = 1; };"_ba
        << "t.a" << u"5 \u20ac"_s
        << u"the value \"5 \u20ac\" has characters outside of Latin-1, which would be lost"_s;
    QTest::newRow("xml: beyond Latin-1")
        << "xml"
        << "<t a='1'/>"_ba
        << "t.a" << u"5 \u20ac"_s
        << u"the value \"5 \u20ac\" has characters outside of Latin-1, which would be lost"_s;
    QTest::newRow("a key of one name") << "cfg"
                                       << "t : { a = 1; };"_ba
                                       << "t"
                                       << "1"
                                       << "\"t\" is no key that could be looked up";
    QTest::newRow("a name with a colon") << "cfg"
                                         << "t : { a = 1; };"_ba
                                         << "t.b:c"
                                         << "1"
                                         << "\"t.b:c\" is no key that could be looked up";
    QTest::newRow("xml: a name with a blank") << "xml"
                                              << "<t a='1'/>"_ba
                                              << "t.b c"
                                              << "1"
                                              << "\"t.b c\" is no key that could be looked up";
    QTest::newRow("another first section") << "cfg"
                                           << "s : { a = 1; }; t : { a = 1; };"_ba
                                           << "t.a"
                                           << "1"
                                           << "the first section is \"s\", and no other is ever read";
    QTest::newRow("a section without a brace") << "cfg"
                                               << "t : { a = 1; }; t : "_ba
                                               << "t.d.e"
                                               << "1"
                                               << "";
    QTest::newRow("a section that is not closed") << "cfg"
                                                  << "t : {\n d : {\n a = 1;\n"_ba
                                                  << "t.b"
                                                  << "1"
                                                  << "line 2: the section \"d\" is not closed";
    QTest::newRow("a text that cannot be read") << "xml"
                                                << "<t a='1'/"_ba
                                                << "t.a"
                                                << "1"
                                                << "line 1: this is no well-formed XML";
}

void ConfigurationTextTest::refusesWhatWouldBeReadBackDifferently()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, text);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, fault);
    const TextChange change = ConfigurationText(text, kind).set(key, value);
    if (fault.isEmpty())
        QCOMPARE(change.fault, fault);
    else
        QVERIFY2(change.fault.startsWith(fault), qPrintable(change.fault));
}

void ConfigurationTextTest::refusesToRemoveWhatHasNoPlainEnd_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("text before the semicolon") << "t : { x : { a = 1; } b = 2; };"_ba;
    QTest::newRow("no closing brace") << "t : { x : { a = 1;"_ba;
    QTest::newRow("no semicolon") << "t : { x : { a = 1; }"_ba;
}

void ConfigurationTextTest::refusesToRemoveWhatHasNoPlainEnd()
{
    QFETCH(QByteArray, text);
    const ConfigurationText configuration(text);
    const TextChange change = configuration.remove(configuration.sectionOf(u"t.x"_s).value());
    QVERIFY2(change.fault.startsWith("the end of the section \"x\", from line 1 on, is not plain"_L1),
             qPrintable(change.fault));
}

void ConfigurationTextTest::findsTheSettingThatALookupFinds_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("an empty section first") << "cfg"
                                            << "t : {}; t : { a = 1; d : { a = 2; }; };"_ba;
    QTest::newRow("a nameless section first") << "cfg"
                                              << " : { a = 1; }; t : { a = 2; };"_ba;
    QTest::newRow("the second section is never searched") << "cfg"
                                                          << "t : { a = ; }; t : { a = 2; };"_ba;
    QTest::newRow("sections of one name") << "cfg"
                                          << "t : { d : { e : { a = ; }; }; d : { e : { a = 2; }; }; };"_ba;
    QTest::newRow("names of many lines") << "cfg"
                                         << "t : { x\ny = 1; d : { # no\n a = 3; }; };"_ba;
    QTest::newRow("settings of the file") << "cfg"
                                          << "a = 1; t : { a = 2; };"_ba;
    QTest::newRow("xml: an empty element first") << "xml"
                                                 << "<t><d/><d a='1'/></t>"_ba;
}

void ConfigurationTextTest::findsTheSettingThatALookupFinds()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, text);
    const ConfigurationText configuration(text, kind);
    for (const QString &key :
         {u"t.a"_s, u"t.d.a"_s, u"t.d.e.a"_s, u"t.x\ny"_s, u"t..a"_s, u"t.d..a"_s, u"a"_s}) {
        const std::optional<int> setting = configuration.settingOf(key);
        QCOMPARE(setting ? configuration.entry(*setting).value : QString(), storeLookup(configuration, key));
    }
}

void ConfigurationTextTest::everyChangeOfEveryFileTouchesNothingElse_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("kind");

    const QDir project(QStringLiteral(TAVOLUX_SOURCE_DIR));
    const auto addFiles = [&](const QString &folder, const QStringList &names, const QString &kind) {
        qsizetype found = 0;
        for (QDirIterator file(project.filePath(folder), names, QDir::Files, QDirIterator::Subdirectories);
             file.hasNext(); ++found) {
            const QString path = file.next();
            QTest::newRow(qPrintable(project.relativeFilePath(path))) << path << kind;
        }
        QVERIFY2(found > 0, qPrintable(folder));
    };
    addFiles(u"examples"_s, {u"*.conf"_s}, u"cfg"_s);
    addFiles(u"tests/golden"_s, {u"*.conf"_s}, u"cfg"_s);
    addFiles(u"tests/golden-escpos"_s, {u"*.conf"_s}, u"cfg"_s);
    addFiles(u"fuzz/corpus/cfg"_s, {}, u"cfg"_s);
    addFiles(u"fuzz/corpus/xml"_s, {}, u"xml"_s);
}

void ConfigurationTextTest::everyChangeOfEveryFileTouchesNothingElse()
{
    QFETCH(QString, file);
    QFETCH(QString, kind);
    const ConfigurationText configuration(readRegularFile(file).bytes, kind);
    const QStringList before = meaning(configuration);
    const int count = static_cast<int>(configuration.entries().size());
    QRandomGenerator random(20);
    for (int i = 0; i < count; ++i) {
        // Of a large file some.
        if (count > 15 && random.bounded(count) > 15)
            continue;
        const Entry &entry = configuration.entry(i);
        if (entry.isSetting()) {
            const TextChange change = configuration.setValue(i, u" new "_s);
            QVERIFY2(change, qPrintable(change.fault));
            const ConfigurationText after = changed(configuration, change);
            QStringList expected = before;
            expected[i] = configuration.keyOf(i) + u" =  new "_s;
            QCOMPARE(meaning(after), expected);
            const QString key = configuration.keyOf(i);
            if (configuration.settingOf(key) == i)
                QCOMPARE(storeLookup(after, key), u" new "_s);
        } else if (const TextChange change = configuration.addSetting(i, u"added"_s, u"1"_s)) {
            const ConfigurationText after = changed(configuration, change);
            QStringList left = meaning(after);
            QCOMPARE(left.removeAll((i == 0 ? QString() : configuration.keyOf(i) + u'.') + u"added = 1"_s),
                     1);
            QCOMPARE(left, before);
        }
        if (const TextChange change = configuration.addSection(i, {u"added"_s}, {{u"a"_s, u"1"_s}});
            !entry.isSetting() && change) {
            QStringList left = meaning(changed(configuration, change));
            const QString key = (i == 0 ? QString() : configuration.keyOf(i) + u'.') + u"added"_s;
            QCOMPARE(left.removeAll(key + u" {"_s), 1);
            QCOMPARE(left.removeAll(key + u".a = 1"_s), 1);
            QCOMPARE(left, before);
        }
        if (const TextChange change = configuration.remove(i)) {
            QCOMPARE(meaning(changed(configuration, change)), meaning(configuration, i));
            QCOMPARE(change.reversed().appliedTo(change.appliedTo(configuration.text())),
                     configuration.text());
        }
    }
}

void ConfigurationTextTest::saysWhyATextCannotBeChanged()
{
    QVERIFY(ConfigurationText("<?xml version='1.0'?><t a='1'/>"_ba, u"xml"_s)
                .fault()
                .startsWith("it does not begin with its root element"_L1));
    const QString utf16 = u"\uFEFF<t a='1'/>"_s;
    const QByteArray bytes(reinterpret_cast<const char *>(utf16.utf16()), utf16.size() * 2);
    QCOMPARE(ConfigurationText(bytes, u"xml"_s).fault(),
             u"it is in UTF-16, and only UTF-8 can be changed in place"_s);
    QCOMPARE(ConfigurationText("<t a='1'/>"_ba, u"xml"_s).fault(), QString());
}

void ConfigurationTextTest::aChangeIsUndoneByItsReverse()
{
    const QByteArray text = "t : { a = 1; };"_ba;
    const ConfigurationText configuration(text);
    for (const TextChange &change : {configuration.set(u"t.a"_s, u"2"_s), configuration.set(u"t.b"_s, u"2"_s),
                                     configuration.set(u"t.d.e.f"_s, u"2"_s)}) {
        QVERIFY(change.appliedTo(text) != text);
        QCOMPARE(change.reversed().appliedTo(change.appliedTo(text)), text);
    }
}

QTEST_GUILESS_MAIN(ConfigurationTextTest)
#include "configuration_text_test.moc"
