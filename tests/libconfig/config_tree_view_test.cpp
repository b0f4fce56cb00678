#include "config.h"
#include "file_size_limit.h"
#include "temporary_home.h"
#include "tx_configuration.h"

#include <QTest>
#include <QTreeWidget>

#include <memory>

using namespace Qt::StringLiterals;
using libconfig::Config;

namespace {

// One line for each item, indented by its depth; what can be edited is marked by a pencil.
void appendOutline(const QTreeWidgetItem *item, const QString &indentation, QStringList &lines)
{
    for (int i = 0; i < item->childCount(); ++i) {
        const QTreeWidgetItem *child = item->child(i);
        const bool editable = child->flags().testFlag(Qt::ItemIsEditable);
        lines << indentation + (editable ? u"✎"_s : QString()) + child->text(0);
        appendOutline(child, indentation + u"  "_s, lines);
    }
}

QStringList outline(const QTreeWidget &view)
{
    QStringList lines;
    appendOutline(view.invisibleRootItem(), {}, lines);
    return lines;
}

QTreeWidgetItem *itemAt(const QTreeWidget &view, const QStringList &path)
{
    QTreeWidgetItem *item = view.topLevelItem(0);
    for (const QString &name : path) {
        int i = 0;
        while (i < item->childCount() && item->child(i)->text(0) != name)
            ++i;
        if (i == item->childCount())
            qFatal("there is no item %s", qPrintable(name));
        item = item->child(i);
    }
    return item;
}

std::unique_ptr<QTreeWidget> viewOf(const Config &config)
{
    return std::unique_ptr<QTreeWidget>(config.buildConfigListView());
}

} // namespace

class ConfigTreeViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheWholeTree();
    void showsOnlyElements();
    void showsNothingOfAnEmptyStore();
    void isTheSameUnderEachName();
    void isSavedAsWritten_data();
    void isSavedAsWritten();
    void isTakenBackAsTheNewTree();
    void savesTheSameTwice();
    void savesEditedValues();
    void comesBackCutAtTheSemicolon();
    void savesRootSettingsAsCfgLinesInXmlToo();
    void leavesOutWhatLostItsValue_data();
    void leavesOutWhatLostItsValue();
    void leavesOutTheSectionThatLostAllValues();
    void isNotSavedAsAnotherKind();
    void withoutViewDoesNothing();
    void keepsTheFileThatCannotBeWrittenWhole();
    void leavesAloneWhatIsNoFileAnyMore();
    void itemIsRebuiltInTheDocumentOfItsParent();

private:
    const TemporaryHome home;
};

void ConfigTreeViewTest::showsTheWholeTree()
{
    const QString file = home.writeFile(u"a.conf"_s,
                                        "top = 1;"
                                        "s : { zeta = last; alpha = \" x \"; t : { k = v; }; };"
                                        "u : { k = w; };");
    const std::unique_ptr<QTreeWidget> view = viewOf(Config(file, u"cfg"_s));
    QCOMPARE(view->parent(), nullptr);
    QCOMPARE(view->columnCount(), 1);
    QCOMPARE(view->headerItem()->text(0), u"ConfigurationFile"_s);
    const QStringList expected{
        file,          u"  top"_s,       u"    ✎1"_s, u"  s"_s,     u"    alpha"_s,  u"      ✎ x "_s,
        u"    zeta"_s, u"      ✎last"_s, u"    t"_s,  u"      k"_s, u"        ✎v"_s, u"  u"_s,
        u"    k"_s,    u"      ✎w"_s,
    };
    QCOMPARE(outline(*view), expected);
}

void ConfigTreeViewTest::showsOnlyElements()
{
    const QString file =
        home.writeFile(u"a.xml"_s, "<r k='1'><!-- note -->text<s l='2'/><?target data?></r>");
    const QStringList expected{file,       u"  r"_s,     u"    k"_s,     u"      ✎1"_s,
                               u"    s"_s, u"      l"_s, u"        ✎2"_s};
    QCOMPARE(outline(*viewOf(Config(file, u"xml"_s))), expected);
}

void ConfigTreeViewTest::showsNothingOfAnEmptyStore()
{
    QCOMPARE(outline(*viewOf(Config())), QStringList());
    QCOMPARE(outline(*viewOf(Config(home.writeFile(u"blank.conf"_s, " \n"), u"cfg"_s))), QStringList());
}

void ConfigTreeViewTest::isTheSameUnderEachName()
{
    home.writeConfiguration("tavolux : { language : { file = /; }; };");
    home.enter();
    const QStringList expected{home.filePath(u".tavolux/conf/tavolux.conf"_s), u"  tavolux"_s,
                               u"    language"_s, u"      file"_s, u"        ✎/"_s};
    const TXConfiguration configuration;
    const std::unique_ptr<QTreeWidget> view(configuration.newConfigListView());
    QCOMPARE(outline(*view), expected);
    QCOMPARE(outline(*viewOf(configuration)), expected);
}

void ConfigTreeViewTest::isSavedAsWritten_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<QByteArray>("written");

    QTest::newRow("settings in the order of their names") << u"cfg"_s << QByteArray("s : { b = 2; a = 1; };")
                                                          << QByteArray("s: \n"
                                                                        "{\n"
                                                                        "    a = \"1\";\n"
                                                                        "    b = \"2\";\n"
                                                                        "};\n"
                                                                        "\n");
    QTest::newRow("sections below the first one stay where they are")
        << u"cfg"_s << QByteArray("r : { s : { t : { k = v; }; }; };")
        << QByteArray("r: \n"
                      "{\n"
                      "    s: \n"
                      "    {\n"
                      "        t: \n"
                      "        {\n"
                      "            k = \"v\";\n"
                      "        };\n"
                      "\n"
                      "    };\n"
                      "\n"
                      "};\n"
                      "\n");
    // The subsection of the second section is rebuilt below the first section of its receiver.
    QTest::newRow("a section below the second one ends up in the first")
        << u"cfg"_s << QByteArray("r : { s1 : { a = 1; }; s2 : { b = 2; t : { c = 3; }; }; };")
        << QByteArray("r: \n"
                      "{\n"
                      "    s1: \n"
                      "    {\n"
                      "        a = \"1\";\n"
                      "        t: \n"
                      "        {\n"
                      "            c = \"3\";\n"
                      "        };\n"
                      "\n"
                      "    };\n"
                      "\n"
                      "    s2: \n"
                      "    {\n"
                      "        b = \"2\";\n"
                      "    };\n"
                      "\n"
                      "};\n"
                      "\n");
    QTest::newRow("only the first section at the top")
        << u"cfg"_s << QByteArray("s1 : { a = 1; }; s2 : { b = 2; };")
        << QByteArray("s1: \n"
                      "{\n"
                      "    a = \"1\";\n"
                      "};\n"
                      "\n");
    QTest::newRow("settings outside sections") << u"cfg"_s << QByteArray("top = 1; s : { k = v; };")
                                               << QByteArray("top = \"1\";\n"
                                                             "s: \n"
                                                             "{\n"
                                                             "    k = \"v\";\n"
                                                             "};\n"
                                                             "\n");
    QTest::newRow("xml") << u"xml"_s << QByteArray("<r a='1' b='2'><s k='v'/></r>")
                         << QByteArray("\n"
                                       "<r\n"
                                       "    a = \"1\"\n"
                                       "    b = \"2\">\n"
                                       "\n"
                                       "    <s\n"
                                       "        k = \"v\">\n"
                                       "    </s>\n"
                                       "</r>\n");
    QTest::newRow("an empty section is left out") << u"xml"_s << QByteArray("<r k='v'><s/></r>")
                                                  << QByteArray("\n"
                                                                "<r\n"
                                                                "    k = \"v\">\n"
                                                                "</r>\n");
    QTest::newRow("an empty file stays one") << u"cfg"_s << QByteArray(" ") << QByteArray();
}

void ConfigTreeViewTest::isSavedAsWritten()
{
    QFETCH(const QString, kind);
    QFETCH(const QByteArray, read);
    QFETCH(const QByteArray, written);
    const QString file = home.writeFile(u"saved"_s, read);
    Config config(file, kind);
    QVERIFY(config.loadListView(viewOf(config).get()));
    QCOMPARE(fileBytes(file), written);
}

void ConfigTreeViewTest::isTakenBackAsTheNewTree()
{
    Config config(home.writeFile(u"a.conf"_s, "r : { s : { k = old; }; };"), u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view = viewOf(config);
    itemAt(*view, {u"r"_s, u"s"_s, u"k"_s, u"old"_s})->setText(0, u"new"_s);
    QCOMPARE(config.lookup(u"r.s.k"_s), u"old"_s);
    QVERIFY(config.loadListView(view.get()));
    QCOMPARE(config.lookup(u"r.s.k"_s), u"new"_s);
    QCOMPARE(outline(*viewOf(config)), outline(*view));
}

void ConfigTreeViewTest::savesTheSameTwice()
{
    const QString file = home.writeFile(u"a.conf"_s, "r : { s1 : { a = 1; b = 2; }; s2 : { c = 3; }; };");
    Config config(file, u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view = viewOf(config);
    QVERIFY(config.loadListView(view.get()));
    const QByteArray once = fileBytes(file);
    QVERIFY(config.loadListView(view.get()));
    QCOMPARE(fileBytes(file), once);
}

void ConfigTreeViewTest::savesEditedValues()
{
    const QString file = home.writeFile(u"a.conf"_s, "s : { k = v; };");
    Config config(file, u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view = viewOf(config);
    itemAt(*view, {u"s"_s, u"k"_s, u"v"_s})->setText(0, u" Menü "_s);
    QVERIFY(config.loadListView(view.get()));
    QCOMPARE(fileBytes(file), QByteArray("s: \n{\n    k = \" Men\xFC \";\n};\n\n"));
    QCOMPARE(Config(file, u"cfg"_s).lookup(u"s.k"_s), u" Menü "_s);
}

void ConfigTreeViewTest::comesBackCutAtTheSemicolon()
{
    const QString file = home.writeFile(u"a.conf"_s, "s : { k = v; };");
    Config config(file, u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view = viewOf(config);
    itemAt(*view, {u"s"_s, u"k"_s, u"v"_s})->setText(0, u"a;b"_s);
    QVERIFY(config.loadListView(view.get()));
    QCOMPARE(fileBytes(file), QByteArray("s: \n{\n    k = \"a;b\";\n};\n\n"));
    QCOMPARE(Config(file, u"cfg"_s).lookup(u"s.k"_s), u"a"_s);
}

void ConfigTreeViewTest::savesRootSettingsAsCfgLinesInXmlToo()
{
    const QString file = home.writeFile(u"a.xml"_s, "<s k='v'/>");
    Config config(file, u"xml"_s);
    const std::unique_ptr<QTreeWidget> view = viewOf(config);
    auto *name = new QTreeWidgetItem({u"top"_s});
    name->addChild(new QTreeWidgetItem({u"1"_s}));
    view->topLevelItem(0)->insertChild(0, name);
    QVERIFY(config.loadListView(view.get()));
    QCOMPARE(fileBytes(file), QByteArray("top = \"1\";\n\n<s\n    k = \"v\">\n</s>\n"));
    QVERIFY(!QDomDocument().setContent(fileBytes(file)));
}

void ConfigTreeViewTest::leavesOutWhatLostItsValue_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QByteArray>("settings");

    QTest::newRow("the first") << QStringList{u"a"_s} << QByteArray("    b = \"2\";\n");
    QTest::newRow("the last") << QStringList{u"b"_s} << QByteArray("    a = \"1\";\n");
    QTest::newRow("none") << QStringList() << QByteArray("    a = \"1\";\n    b = \"2\";\n");
}

void ConfigTreeViewTest::leavesOutWhatLostItsValue()
{
    QFETCH(const QStringList, names);
    QFETCH(const QByteArray, settings);
    const QString file = home.writeFile(u"a.conf"_s, "s : { a = 1; b = 2; };");
    Config config(file, u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view = viewOf(config);
    for (const QString &name : names)
        std::unique_ptr<QTreeWidgetItem>(itemAt(*view, {u"s"_s, name})->takeChild(0)).reset();
    QVERIFY(config.loadListView(view.get()));
    QCOMPARE(fileBytes(file), "s: \n{\n" + settings + "};\n\n");
}

void ConfigTreeViewTest::leavesOutTheSectionThatLostAllValues()
{
    const QString file = home.writeFile(u"a.conf"_s, "r : { s : { a = 1; }; t : { b = 2; }; };");
    Config config(file, u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view = viewOf(config);
    std::unique_ptr<QTreeWidgetItem>(itemAt(*view, {u"r"_s, u"s"_s, u"a"_s})->takeChild(0)).reset();
    QVERIFY(config.loadListView(view.get()));
    QCOMPARE(fileBytes(file), QByteArray("r: \n{\n    t: \n    {\n        b = \"2\";\n    };\n\n};\n\n"));
}

void ConfigTreeViewTest::isNotSavedAsAnotherKind()
{
    const QString file = home.writeFile(u"a.conf"_s, "s : { k = v; };");
    const Config shown(file, u"cfg"_s);
    Config config(file, u"CFG"_s);
    QVERIFY(!config.loadListView(viewOf(shown).get()));
    QCOMPARE(fileBytes(file), QByteArray("s : { k = v; };"));
    QCOMPARE(config.lookup(u"s.k"_s), u"v"_s); // but the view was taken back
}

void ConfigTreeViewTest::withoutViewDoesNothing()
{
    const QString file = home.writeFile(u"a.conf"_s, "s : { k = v; };");
    Config config(file, u"cfg"_s);
    QVERIFY(!config.loadListView(nullptr));
    QCOMPARE(fileBytes(file), QByteArray("s : { k = v; };"));
    QCOMPARE(config.lookup(u"s.k"_s), u"v"_s);
}

void ConfigTreeViewTest::keepsTheFileThatCannotBeWrittenWhole()
{
    const QByteArray original = "s : { k = " + QByteArray(20'000, 'x') + "; };";
    const QString file = home.writeFile(u"a.conf"_s, original);
    Config config(file, u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view = viewOf(config);
    {
        const FileSizeLimit limit(10'000);
        QVERIFY(!config.loadListView(view.get()));
    }
    QCOMPARE(fileBytes(file), original);
}

void ConfigTreeViewTest::leavesAloneWhatIsNoFileAnyMore()
{
    const QString file = home.writeFile(u"b.conf"_s, "s : { k = v; };");
    Config config(file, u"cfg"_s);
    const std::unique_ptr<QTreeWidget> view = viewOf(config);
    QVERIFY(QFile::remove(file));
    home.makeFifo(u"b.conf"_s); // which nobody reads
    QCOMPARE(config.loadListView(view.get()).fault, u"Not a regular file"_s);
}

void ConfigTreeViewTest::itemIsRebuiltInTheDocumentOfItsParent()
{
    const std::unique_ptr<QTreeWidget> view =
        viewOf(Config(home.writeFile(u"a.conf"_s, "r : { s : { a = 1; }; };"), u"cfg"_s));
    Config empty; // which has no document of its own
    QDomDocument document(u"own"_s);
    empty.loadListView(itemAt(*view, {u"r"_s}), document);
    QCOMPARE(document.documentElement().tagName(), u"r"_s);
    QCOMPARE(empty.lookup(document.documentElement(), u"r.s.a"_s), u"1"_s);
    empty.loadListView(itemAt(*view, {u"r"_s}), QDomNode()); // has nowhere to go
}

QTEST_MAIN(ConfigTreeViewTest)
#include "config_tree_view_test.moc"
