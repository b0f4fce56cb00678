#include "losses.h"

#include "config.h"

#include <QTest>

using namespace Qt::StringLiterals;
using libconfig::Config;

/* What a configuration loses by being written. */
class LossesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losses_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QStringList>("asCfg");
        QTest::addColumn<QStringList>("asXml");

        const QString unreadable = u"The saved file is no XML any more, and everything in it is lost."_s;
        const auto row = [](const char *name, const QByteArray &text, const QString &kind,
                            const QStringList &asCfg, const QStringList &asXml) {
            QTest::newRow(name) << text << kind << asCfg << asXml;
        };
        const QString cfg = u"cfg"_s;
        const QString xml = u"xml"_s;
        row("nothing", "", cfg, {}, {});
        row("plain", "s : { k = 1; t : { l = \" x \"; }; };", cfg, {}, {});
        row("siblings of one name", "s : { t : { k = 1; }; u : { k = 2; }; t : { k = 3; }; };", cfg, {}, {});
        row("plain xml", "<s k='1'><t l='2'/></s>", xml, {}, {});
        row("setting outside of sections", "a = 1; s : { k = 2; };", cfg, {},
            {unreadable, u"Settings outside sections make it so: a."_s});
        row("second section at the top", "s : { k = 1; }; t : { k = 2; };", cfg,
            {u"The section t is lost: only the first section at the top is saved."_s},
            {u"The section t is lost: only the first section at the top is saved."_s});
        row("second section of the same name", "s : { k = 1; }; s : { k = 2; };", cfg,
            {u"The section s is lost: only the first section at the top is saved."_s},
            {u"The section s is lost: only the first section at the top is saved."_s});
        row("what XML gives a meaning", "s : { k = Bar & Grill <x>; };", cfg, {},
            {unreadable,
             u"The value of s.k, \"Bar & Grill <x>\", has a character that XML gives a meaning: <, & or \"."_s});
        row("what looks like a reference", "s : { k = a&lt{ b; };", cfg, {},
            {unreadable,
             u"The value of s.k, \"a&lt{ b\", has a character that XML gives a meaning: <, & or \"."_s});
        row("a reference", "<s k='&amp;amp;'/>", xml, {u"The value of s.k, \"&amp;\", becomes \"&amp\"."_s},
            {u"The value of s.k, \"&amp;\", becomes \"&\"."_s});
        row("semicolon", "<s k='a;b' l='c'/>", xml,
            {u"The value of s.k, \"a;b\", becomes \"a\"."_s, u"The setting s.l is lost."_s,
             u"A setting s.b\"; l appears, with the value \"c\"."_s},
            {});
        row("quote", "<s k='a\"b'/>", xml, {u"The value of s.k, \"a\"b\", becomes \"ab\"."_s},
            {unreadable,
             u"The value of s.k, \"a\"b\", has a character that XML gives a meaning: <, & or \"."_s});
        row("beyond Latin-1", "<s k='5 \xE2\x82\xAC'/>", xml,
            {u"The value of s.k, \"5 €\", becomes \"5 ?\"."_s}, {});
        row("section without a setting", "<s k='1'><t/></s>", xml, {u"The section s.t is lost."_s}, {});
        row("a section made of a value", "<s k='a; t : { l = 1; }; x'/>", xml,
            {u"The value of s.k, \"a; t : { l = 1; }; x\", becomes \"a\"."_s, u"A section s.t appears."_s},
            {});
        row("a name that XML does not allow", "s t : { k = 1; };", cfg, {}, {unreadable});
        row("a comment in the place of a section", "<s k='1'><!-- x --><t l='2'/></s>", xml, {},
            {unreadable});
    }

    void losses()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, kind);
        Config store;
        store.readText(text, kind);
        QTEST(lossesByWriting(store, u"cfg"_s), "asCfg");
        QTEST(lossesByWriting(store, u"xml"_s), "asXml");
    }

    void saysMoreThanWasRead_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("more");
        const auto row = [](const char *name, const QString &kind, const QByteArray &text, bool more) {
            QTest::newRow(name) << kind << text << more;
        };
        const QString cfg = u"cfg"_s;
        row("everything is read", cfg,
            "a = 1;\n\"r\" : {\n  l = \" v\xE8 \"; k = a:b={c};"
            " s : { m = ; };\n};\nt : { n = 2; };\n",
            false);
        row("no text at all", cfg, "", false);
        row("missing ends", cfg, "r : { s : { k = v", false);
        row("remark before a brace", cfg, "r : remark { k = v; };", true);
        row("remark after a brace", cfg, "r : { k = v; } remark;", true);
        row("text at the end", cfg, "r : { k = v; }; text", true);
        row("setting given twice", cfg, "r : { k = v; k = v; };", true);
        row("section without a setting", cfg, "r : { k = v; s : { }; };", true);
        row("after a brace too many", cfg, "r : { k = v; }; }; t : { l = w; };", true);
        row("after a missing semicolon", cfg, "r : { s : { k = v; } l = w; };", true);

        const QString xml = u"xml"_s;
        row("elements only", xml, "<r k='1'>\n  <s l='2'/>\n</r>\n", false);
        row("comment", xml, "<r><!-- note --></r>", true);
        row("comment at the end", xml, "<r/><!-- note -->", true);
        row("comment below a prefix", xml, "<p:r><!-- note --></p:r>", true);
        row("text in an element", xml, "<r>text</r>", true);
        row("processing instruction", xml, "<r/><?target data?>", true);
        row("document type", xml, "<!DOCTYPE r><r/>", true);
    }

    void saysMoreThanWasRead()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, kind);
        Config store;
        store.readText(text, kind);
        QTEST(saysMore(text, kind, store.content()), "more");
    }
};

QTEST_GUILESS_MAIN(LossesTest)
#include "losses_test.moc"
