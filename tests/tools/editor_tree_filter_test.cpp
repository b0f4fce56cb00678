#include "tree_filter.h"

#include "config.h"
#include "temporary_home.h"

#include <QTest>
#include <QTreeWidget>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

// One line for each item that can be seen, indented by its depth.
void appendVisible(const QTreeWidgetItem *item, const QString &indentation, QStringList &lines)
{
    for (int i = 0; i < item->childCount(); ++i) {
        const QTreeWidgetItem *child = item->child(i);
        if (child->isHidden())
            continue;
        lines << indentation + child->text(0);
        if (child->isExpanded())
            appendVisible(child, indentation + u' ', lines);
    }
}

} // namespace

class EditorTreeFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showsMatchesAndWhatIsAboveThem_data();
    void showsMatchesAndWhatIsAboveThem();
    void showsEverythingAsItWasInTheEnd();
    void looksAfreshForEachText();

private:
    // Below the item of the file.
    QStringList visible() const
    {
        QStringList lines;
        appendVisible(view->topLevelItem(0), {}, lines);
        return lines;
    }

    const TemporaryHome home;
    std::unique_ptr<QTreeWidget> view;
};

void EditorTreeFilterTest::init()
{
    // The file's name holds a text that is looked for below, and must not match.
    const QString file = home.writeFile(u"width.conf"_s,
                                        "r : { language : { file = /usr; };"
                                        " receipt : { paperWidth = 42; printHeader = true; };"
                                        " invoice : { paperWidth = 40; printHeader = false; }; };");
    view.reset(libconfig::Config(file, u"cfg"_s).buildConfigListView());
    view->topLevelItem(0)->setExpanded(true);
    view->topLevelItem(0)->child(0)->setExpanded(true);
}

void EditorTreeFilterTest::showsMatchesAndWhatIsAboveThem_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("seen");
    QTest::addColumn<QString>("first");

    QTest::newRow("nothing looked for")
        << u""_s << QStringList{u"r"_s, u" language"_s, u" receipt"_s, u" invoice"_s} << QString();
    // A setting that matches is opened, so its value is seen.
    QTest::newRow("setting, in another case")
        << u"WIDTH"_s << QStringList{u"r"_s,        u" receipt"_s,     u"  paperWidth"_s, u"   42"_s,
                                     u" invoice"_s, u"  paperWidth"_s, u"   40"_s}
        << u"paperWidth"_s;
    QTest::newRow("value") << u"40"_s << QStringList{u"r"_s, u" invoice"_s, u"  paperWidth"_s, u"   40"_s}
                           << u"40"_s;
    // Its settings can be seen, and opened one by one.
    QTest::newRow("section") << u"lang"_s << QStringList{u"r"_s, u" language"_s, u"  file"_s}
                             << u"language"_s;
    QTest::newRow("nothing matches") << u"zebra"_s << QStringList() << QString();
    QTest::newRow("the file's own item") << u".conf"_s << QStringList() << QString();
}

void EditorTreeFilterTest::showsMatchesAndWhatIsAboveThem()
{
    QFETCH(const QString, text);
    TreeFilter filter(*view);
    const QTreeWidgetItem *first = filter.lookFor(text);
    QTEST(visible(), "seen");
    QTEST(first ? first->text(0) : QString(), "first");
    QVERIFY(!view->topLevelItem(0)->isHidden());
}

void EditorTreeFilterTest::showsEverythingAsItWasInTheEnd()
{
    QTreeWidgetItem *receipt = view->topLevelItem(0)->child(0)->child(1);
    receipt->setExpanded(true);
    const QStringList before = visible();
    TreeFilter filter(*view);
    filter.lookFor(u"4"_s);
    filter.lookFor(u"40"_s);
    QVERIFY(visible() != before);
    filter.lookFor(QString());
    QCOMPARE(visible(), before);

    // What is opened or closed in between is remembered the next time.
    receipt->setExpanded(false);
    filter.lookFor(u"42"_s);
    filter.lookFor(QString());
    QCOMPARE(visible(), QStringList({u"r"_s, u" language"_s, u" receipt"_s, u" invoice"_s}));
}

void EditorTreeFilterTest::looksAfreshForEachText()
{
    TreeFilter filter(*view);
    filter.lookFor(u"40"_s);
    filter.lookFor(u"42"_s);
    QCOMPARE(visible(), QStringList({u"r"_s, u" receipt"_s, u"  paperWidth"_s, u"   42"_s}));
}

QTEST_MAIN(EditorTreeFilterTest)
#include "editor_tree_filter_test.moc"
